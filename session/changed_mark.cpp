#include "session/changed_mark.h"

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void OfferSaving() {
    if (AmendMode) return;
    frmMain.Command5[0].SetEnabled(true);
    frmMain.mnuSave.SetEnabled(true);
}

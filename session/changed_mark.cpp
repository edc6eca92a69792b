#include "session/changed_mark.h"

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void MarkSheetChanged(bool changed) {
    frmMain.Command5[0].SetEnabled(changed);
}

bool IsSheetChanged() {
    return frmMain.Command5[0].Enabled();
}

void OfferSaving() {
    if (AmendMode) return;
    MarkSheetChanged(true);
    frmMain.mnuSave.SetEnabled(true);
}

#include "session/changed_mark.h"

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void MarkSheetChanged(bool changed) {
    frmMain.SaveButton.SetEnabled(changed);
}

bool IsSheetChanged() {
    return frmMain.SaveButton.Enabled();
}

void OfferSaving() {
    if (AmendMode) return;
    MarkSheetChanged(true);
    frmMain.mnuSave.SetEnabled(true);
}

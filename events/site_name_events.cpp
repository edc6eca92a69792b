#include "events/join.h"
#include "files/new_sheet.h"
#include "session/state/sheet_state.h"
#include "taxa/edit_boxes.h"
#include "windows/name_windows.h"

void JoinSiteNameEvents() {
    frmSiteName.Loaded.Calls(LoadSiteNameWindow);
    frmSiteName.FrameClosed.Calls([] {});  // it is left by OK alone
    frmSiteName.SampleName.Change.Calls(TakeFirstSampleName);
    frmSiteName.SampleNote.GotFocus.Calls([] { PutCaretBehind(frmSiteName.SampleNote); });
    for (int p = 1; p <= kParams; ++p) {
        TextBox& value = frmSiteName.ParamBoxes[p];
        value.GotFocus.Calls([&value] { ClearDashes(value); });
        value.LostFocus.Calls([&value] { RestoreDashes(value); });
    }
    frmSiteName.OkButton.Click.Calls(AcceptFirstSample);
}

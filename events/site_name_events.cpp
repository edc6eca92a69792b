#include "events/join.h"
#include "files/new_sheet.h"
#include "session/state/sheet_state.h"
#include "taxa/edit_boxes.h"
#include "windows/site_name_window.h"

void JoinSiteNameEvents() {
    frmSiteName.Loaded.Calls(LoadSiteNameWindow);
    frmSiteName.FrameClosed.Calls([] {});  // it is left by OK alone
    frmSiteName.Text1.Change.Calls(TakeFirstSampleName);
    frmSiteName.Text2.GotFocus.Calls([] { PutCaretBehind(frmSiteName.Text2); });
    for (int p = 1; p <= kParams; ++p) {
        TextBox& value = frmSiteName.Text3[p];
        value.GotFocus.Calls([&value] { ClearDashes(value); });
        value.LostFocus.Calls([&value] { RestoreDashes(value); });
    }
    frmSiteName.Command1.Click.Calls(AcceptFirstSample);
}

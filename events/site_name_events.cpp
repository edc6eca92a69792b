#include "events/join.h"
#include "files/new_sheet.h"
#include "platform/text.h"
#include "session/sheet_state.h"
#include "windows/site_name_window.h"

void JoinSiteNameEvents() {
    frmSiteName.Loaded.Calls(LoadSiteNameWindow);
    frmSiteName.FrameClosed.Calls([] {});  // it is left by OK alone
    frmSiteName.Text1.Change.Calls(TakeFirstSampleName);
    frmSiteName.Text2.GotFocus.Calls([] { frmSiteName.Text2.SetSelStart(static_cast<int>(Length(frmSiteName.Text2.Text()))); });
    for (int p = 1; p <= kParams; ++p) {
        TextBox& value = frmSiteName.Text3[p];
        value.GotFocus.Calls([&value] {
            if (value.Text() == kEmpty) value.SetText("");
        });
        value.LostFocus.Calls([&value] {
            if (value.Text().empty()) value.SetText(kEmpty);
        });
    }
    frmSiteName.Command1.Click.Calls(AcceptFirstSample);
}

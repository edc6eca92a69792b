#include "events/boxes.h"
#include "events/join.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "taxa/edit_boxes.h"
#include "taxa/param_names.h"
#include "taxa/quotation_guard.h"
#include "windows/next_window.h"

namespace {
void JoinNote() {
    TextBox& note = frmNext.Text2;
    note.GotFocus.Calls([] {
        PutCaretBehind(frmNext.Text2);
        EnterGuardedBox();
    });
    JoinGuardedKeys(note);
    note.Change.Calls([] { RefuseQuotationMark(frmNext.Text2); });
    note.DoubleClick.Calls(AddSample);  // a short cut for OK
}

void JoinParam(TextBox& value) {
    value.GotFocus.Calls([&value] {
        ClearDashes(value);
        EnterGuardedBox();
    });
    value.LostFocus.Calls([&value] { RestoreDashes(value); });
    JoinGuardedKeys(value);
    value.Change.Calls([&value] { RefuseQuotationMark(value); });
}
}  // namespace

void JoinNextEvents() {
    frmNext.Loaded.Calls([] {
        LoadNextWindow();
        SayIfSilent();
    });
    frmNext.Activated.Calls(BringNextToFront);
    frmNext.FrameClosed.Calls(CloseNextByFrame);
    frmNext.Command4.Click.Calls(ShowSampleFields);
    frmNext.Command2.Click.Calls(OpenSheet);
    frmNext.Command1.Click.Calls(AcceptSample);
    frmNext.Command3.Click.Calls(CancelSample);
    JoinNote();
    for (int p = 1; p <= kParams; ++p) {
        JoinParam(frmNext.Text3[p]);
        frmNext.Command5[p].Click.Calls([p] { RenameParamOfNextSample(p); });
    }
}

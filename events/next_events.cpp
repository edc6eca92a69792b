#include "events/boxes.h"
#include "events/join.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "taxa/dialogs.h"
#include "taxa/edit_boxes.h"
#include "taxa/quotation_guard.h"
#include "windows/next_window.h"

namespace {
void JoinNote() {
    TextBox& note = frmNext.SampleNote;
    note.GotFocus.Calls([] {
        PutCaretBehind(frmNext.SampleNote);
        EnterGuardedBox();
    });
    JoinGuardedKeys(note);
    note.Change.Calls([] { RefuseQuotationMark(frmNext.SampleNote); });
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
    frmNext.CreateButton.Click.Calls(ShowSampleFields);
    frmNext.OpenButton.Click.Calls(OpenSheet);
    frmNext.OkButton.Click.Calls(AcceptSample);
    frmNext.CancelButton.Click.Calls(CancelSample);
    JoinNote();
    for (int p = 1; p <= kParams; ++p) {
        JoinParam(frmNext.ParamBoxes[p]);
        frmNext.RenameButtons[p].Click.Calls([p] { RenameParamOfNextSample(p); });
    }
}

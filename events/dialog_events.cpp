#include "accessories/rest_pictures.h"
#include "events/join.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "session/focus.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "taxa/edit_boxes.h"
#include "taxa/param_names.h"
#include "taxa/quotation_guard.h"
#include "taxa/subtotals.h"
#include "windows/about_windows.h"
#include "windows/next_window.h"
#include "windows/note_window.h"
#include "windows/para_name_window.h"
#include "windows/picture_window.h"
#include "windows/site_name_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr int kEscape = 27;

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

void JoinParaNameEvents() {
    TextBox& name = frmParaName.NewName;
    name.GotFocus.Calls(EnterGuardedBox);
    JoinGuardedKeys(name);
    name.Change.Calls([] { RefuseQuotationMark(frmParaName.NewName); });
    frmParaName.FrameClosed.Calls(CancelParamName);
    frmParaName.OkButton.Click.Calls(AcceptParamName);
    frmParaName.CancelButton.Click.Calls(CancelParamName);
}

void JoinSubtotalEvents() {
    frmSubtotal.Loaded.Calls(FillSubtotalWindow);
    frmSubtotal.FrameClosed.Calls(CancelSubtotals);
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal) {
        TextBox& name = frmSubtotal.SubtotalNames[subtotal];
        name.GotFocus.Calls(EnterGuardedBox);
        JoinGuardedKeys(name);
        name.Change.Calls([subtotal] { TakeSubtotalName(subtotal); });
        frmSubtotal.SubtotalOptions[subtotal].Click.Calls(ShowChosenSubtotal);
    }
    for (int slot = 1; slot <= kSlots; ++slot) frmSubtotal.Members[slot].Click.Calls([slot] { TakeSubtotalFlag(slot); });
    for (const int flag : {0, 1}) frmSubtotal.FlagButtons[flag].Click.Calls([flag] { SetAllFlags(flag); });
    frmSubtotal.OkButton.Click.Calls(AcceptSubtotals);
    frmSubtotal.CancelButton.Click.Calls(CancelSubtotals);
}

void JoinAccessoryEvents() {
    frmAboutMB1.FrameClosed.Calls([] { CloseDialog(frmAboutMB1); });
    frmAboutMB1.OkButton.Click.Calls([] { CloseDialog(frmAboutMB1); });
    frmAboutDX1.FrameClosed.Calls([] { CloseDialog(frmAboutDX1); });
    frmAboutDX1.OkButton.Click.Calls([] { CloseDialog(frmAboutDX1); });
    frmNote.OkButton.Click.Calls([] { frmNote.Unload(); });
    frmPicture.Loaded.Calls(CoverScreen);
    frmPicture.FrameClosed.Calls([] { frmPicture.Hide(); });
    frmPicture.KeyDown.Calls([](int code) {
        if (code == kEscape) frmPicture.Hide();
    });
    for (PictureBox* picture : frmPicture.pictures) picture->Click.Calls([] { frmPicture.Hide(); });
}

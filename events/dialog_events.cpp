#include <filesystem>
#include <string>

#include "events/join.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "platform/control.h"
#include "platform/services.h"
#include "session/focus.h"
#include "session/sound.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "taxa/dialogs.h"
#include "taxa/edit_boxes.h"
#include "taxa/quotation_guard.h"
#include "windows/picture_window.h"

namespace {
void JoinNote(TextBox& note) {
    note.GotFocus.Calls([&note] {
        PutCaretBehind(note);
        EnterGuardedBox();
    });
    JoinGuardedKeys(note);
    note.Change.Calls([&note] { RefuseQuotationMark(note); });
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

// With the separators of the system. By UTF-8, which is not what a program for Windows takes a plain string for.
std::string AsSystemWritesIt(const std::string& path) {
    const std::u8string native = std::filesystem::path(std::u8string(path.begin(), path.end())).make_preferred().u8string();
    return {native.begin(), native.end()};
}

template <class AboutWindow>
void JoinAbout(AboutWindow& window) {
    const auto close = [&window] { CloseDialog(window); };
    window.FrameClosed.Calls(close);
    window.OkButton.Click.Calls(close);
}
}  // namespace

void JoinNextEvents(NextWindow& window) {
    window.Loaded.Calls([] {
        LoadNextWindow();
        SayIfWaveIsBroken();
        SayIfSilent();
    });
    window.Activated.Calls(BringNextToFront);
    window.FrameClosed.Calls(CloseNextByFrame);
    window.CreateButton.Click.Calls(ShowSampleFields);
    window.OpenButton.Click.Calls(OpenSheet);
    JoinDrop(window, window.OpenButton);
    window.ManualButton.Click.Calls([] { services.host->ShowManual(); });
    window.OkButton.Click.Calls(AcceptSample);
    window.CancelButton.Click.Calls(CancelSample);
    JoinNote(window.SampleNote);
    for (int p = 1; p <= kParams; ++p) {
        JoinParam(window.ParamBoxes[p]);
        window.RenameButtons[p].Click.Calls([p] { RenameParamOfNextSample(p); });
    }
}

void JoinSiteNameEvents(SiteNameWindow& window) {
    window.Loaded.Calls(LoadSiteNameWindow);
    window.FrameClosed.Calls([] {});  // it is left by OK alone
    window.SampleName.Change.Calls(StoreFirstSampleName);
    window.SampleNote.GotFocus.Calls([&window] { PutCaretBehind(window.SampleNote); });
    for (int p = 1; p <= kParams; ++p) {
        TextBox& value = window.ParamBoxes[p];
        value.GotFocus.Calls([&value] { ClearDashes(value); });
        value.LostFocus.Calls([&value] { RestoreDashes(value); });
    }
    window.OkButton.Click.Calls(AcceptFirstSample);
}

void JoinParaNameEvents(ParaNameWindow& window) {
    TextBox& name = window.NewName;
    name.GotFocus.Calls(EnterGuardedBox);
    JoinGuardedKeys(name);
    name.Change.Calls([&name] { RefuseQuotationMark(name); });
    window.FrameClosed.Calls(CancelParamName);
    window.OkButton.Click.Calls(AcceptParamName);
    window.CancelButton.Click.Calls(CancelParamName);
}

void JoinSubtotalEvents(SubtotalWindow& window) {
    window.Loaded.Calls(FillSubtotalWindow);
    window.FrameClosed.Calls(CancelSubtotals);
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal) {
        TextBox& name = window.SubtotalNames[subtotal];
        name.GotFocus.Calls(EnterGuardedBox);
        JoinGuardedKeys(name);
        name.Change.Calls([subtotal] { StoreSubtotalName(subtotal); });
        window.SubtotalOptions[subtotal].Click.Calls(ShowChosenSubtotal);
    }
    for (int slot = 1; slot <= kSlots; ++slot) window.Members[slot].Click.Calls([slot] { StoreSubtotalFlag(slot); });
    for (const int flag : {0, 1}) window.FlagButtons[flag].Click.Calls([flag] { SetAllFlags(flag); });
    window.OkButton.Click.Calls(AcceptSubtotals);
    window.CancelButton.Click.Calls(CancelSubtotals);
}

void JoinAboutEvents(AboutProgramWindow& program, AboutKeypadWindow& keypad) {
    JoinAbout(program);
    JoinAbout(keypad);
    program.Loaded.Calls([&program] { program.FolderBox.SetText(AsSystemWritesIt(services.host->Folder())); });
}

void JoinNoteEvents(NoteWindow& window) {
    window.OkButton.Click.Calls([&window] { window.Unload(); });
}

void JoinPictureEvents(PictureWindow& window) {
    const auto hide = [&window] { window.Hide(); };
    window.Loaded.Calls(CoverScreen);
    window.FrameClosed.Calls(hide);
    window.KeyDown.Calls([&window](int code) {
        if (code == kEscapeKey) window.Hide();
    });
    for (PictureBox* picture : window.pictures) picture->Click.Calls(hide);
}

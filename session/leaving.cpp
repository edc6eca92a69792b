#include "session/leaving.h"

#include <string>

#include "files/format/sheet_rows.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/diagram_window.h"
#include "windows/information_windows.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr int kForgottenUndos = 101;

bool ConfirmLoss(const std::string& text) {
    return services.messages->Show({"Caution!", text, Icon::None, Buttons::YesNo, true}) == Answer::Yes;
}

std::string ClosingQuestion() {
    const std::string name = Length(SheetPath) < 4 ? "Untitled" : SheetBaseName(SheetPath);
    return "Do you want to save the changes you made to '" + name + ".csv'?";
}

void CloseForGood(Window& window) {
    try {
        window.Unload();
    } catch (const Failure&) {
        // The others are to close all the same.
    }
}

// Cancel ends the program too, without a save (docs/quirks.md), and so does a save that failed.
void AskAndEnd() {
    SaveOutcome = 1;
    const bool is_changed = IsSheetChanged();
    if (is_changed) {
        const Message question{"Marlbrook", ClosingQuestion(), Icon::None, Buttons::YesNoCancel};
        if (services.messages->Show(question) == Answer::Yes) SaveAsked.Raise();
    }
    if (SaveOutcome != 2) SoundOn = false;
    SheetGivenUp.Raise(is_changed);
    UnloadAll();
    services.host->End();
}
}  // namespace

void AbortCount() {
    PlayIfOn(WaveError);
    if (AllTotal != 0) {
        const bool confirmed = ConfirmLoss("This action will abort all inputs after last saving. Do you proceed?");
        if (confirmed) {
            RestoreSheet();
            AddHistoryLine("(Reset)");
            for (int i = 0; i < kForgottenUndos; ++i) UndoList[i][kUndoSlot] = 0;
            SheetReset.Raise();
        }
        frmMain.ResetButton.SetEnabled(!confirmed);
    }
    CountsChanged.Raise();
    ReturnFocus();
}

bool MayAbortData() {
    if (!ConfirmLoss("This action will abort current data. Do you proceed?")) return false;
    SheetGivenUp.Raise(true);
    return true;
}

void QuitProgram() {
    PlayIfOn(WaveError);
    if (!MayAbortData()) return;
    RestoreSheet();
    SoundOn = false;
    UnloadAll();
    services.host->End();
}

void CloseMainWindow() {
    try {
        AskAndEnd();
    } catch (const Failure&) {
        // The program stays open: whatever failed, nothing is lost.
    }
}

void UnloadAll() {
    for (Window* window : std::initializer_list<Window*>{&frmAboutDX1, &frmAboutMB1, &frmDiagram, &frmInitial, &frmKeyCode, &frmNext,
                                                         &frmNote, &frmParaName, &frmSiteName, &frmSubtotal, &frmPicture})
        CloseForGood(*window);
}

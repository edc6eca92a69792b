#include "session/leaving.h"

#include <algorithm>
#include <string>

#include "files/format/sheet_base_name.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "session/changed_mark.h"
#include "session/focus_rule.h"
#include "session/history.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/about_windows.h"
#include "windows/diagram_window.h"
#include "windows/initial_window.h"
#include "windows/key_code_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/note_window.h"
#include "windows/para_name_window.h"
#include "windows/picture_window.h"
#include "windows/site_name_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr int kForgottenUndos = 101;

bool ConfirmLoss(const std::string& text) {
    return services.messages->Show({"Caution!", text, Icon::None, Buttons::YesNo, true}) == Answer::Yes;
}

void RestoreSlot(int slot) {
    frmMain.TaxonCounts[slot].SetBold(false);
    frmMain.TaxonNames[slot].SetBold(false);
    const int samples = std::min<int>(SampleCount, static_cast<int>(CountsAtOpen.size()) - 1);
    if (CurrentSample <= samples) ShowCountOf(slot, CountsAtOpen[CurrentSample][slot]);
    frmMain.TaxonNames[slot].SetText(TaxonTableAtOpen[slot][4].Text());
    for (int field = 1; field <= 4; ++field) TaxonTable[slot][field] = TaxonTableAtOpen[slot][field];
    for (int sample = 1; sample <= samples; ++sample) Counts[slot][sample] = CountsAtOpen[sample][slot];
}

void RestoreParams() {
    for (int p = 1; p <= kParams; ++p) {
        const std::string value = ParamValuesAtOpen[p][CurrentSample].Text();
        frmMain.ParamBoxes[p].SetText(value.empty() ? kEmpty : value);
        frmMain.ParamNames[p].SetCaption(ParamValuesAtOpen[p][0].Text());
    }
}

std::string ClosingQuestion() {
    const std::string name = Length(SheetPath) < 4 ? "Untitled" : SheetBaseName(SheetPath);
    return "Do you want to save the changes you made to '" + name + ".csv'?";
}

void CloseForGood(Window& window) {
    try {
        window.Unload();
    } catch (const Failure&) {
        // No reason for the others to stay.
    }
}

// An answer of Cancel, like a failed save, has never kept the program open: all that it does is not to save.
void AskAndEnd() {
    SaveOutcome = 1;
    if (IsSheetChanged()) {
        const Message question{"Marlbrook", ClosingQuestion(), Icon::None, Buttons::YesNoCancel};
        if (services.messages->Show(question) == Answer::Yes) SaveAsked.Raise();
    }
    if (SaveOutcome != 2) SoundOn = false;
    UnloadAll();
    services.host->End();
}
}  // namespace

void RestoreSheet() {
    for (int slot = 1; slot <= kSlots; ++slot) RestoreSlot(slot);
    RestoreParams();
    RecountTotals(CurrentSample);
}

void AbortCount() {
    PlayIfOn(WaveError);
    if (AllTotal != 0) {
        if (ConfirmLoss("This action will abort all inputs after last saving. Do you proceed?")) {
            RestoreSheet();
            AddHistoryLine("(Reset)");
            for (int i = 0; i < kForgottenUndos; ++i) UndoList[i][1] = 0;
            frmMain.ResetButton.SetEnabled(false);
            SheetReset.Raise();
        } else {
            frmMain.ResetButton.SetEnabled(true);
        }
    }
    CountsChanged.Raise();
    ReturnFocus();
}

bool MayAbortData() {
    return ConfirmLoss("This action will abort current data. Do you proceed?");
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

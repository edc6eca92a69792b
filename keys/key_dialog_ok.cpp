#include "keys/key_dialog_ok.h"

#include <optional>

#include "keys/settings/key_settings.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "windows/key_windows.h"

namespace {
constexpr Colour kRed{255, 0, 0};
constexpr int kLastRow = 62;

struct Fault {
    const char* text;
    int tab;
    TextBox* boxes[2];
};

bool HaveSameText(const TextBox* boxes, int i, int j) {
    return boxes[i].Text() == boxes[j].Text();
}

std::optional<Fault> FindDoubleKey() {
    KeyCodeWindow& dialog = frmKeyCode;
    for (int i = 1; i <= kKeys; ++i)
        for (int j = 1; j < i; ++j) {
            if (HaveSameText(dialog.Definitions, i, j) || HaveSameText(dialog.Codes, i, j))
                return Fault{"Same key code is being used for more than one taxon.", 0, {&dialog.Definitions[i], &dialog.Definitions[j]}};
            if (HaveSameText(dialog.KeyNumbers, i, j))
                return Fault{"Same Ergodex key is being used for more than one place.", 2, {&dialog.KeyNumbers[i], &dialog.KeyNumbers[j]}};
        }
    return std::nullopt;
}

std::optional<Fault> FindDoubleFunctionalKey() {
    for (int i = 0; i < kFunctionalKeys; ++i)
        for (int j = 0; j < i; ++j)
            if (HaveSameText(frmKeyCode.FunctionalBoxes, i, j))
                return Fault{"Same functional key is being used for more than one place.",
                             1,
                             {&frmKeyCode.FunctionalBoxes[i], &frmKeyCode.FunctionalBoxes[j]}};
    return std::nullopt;
}

std::optional<Fault> FindFault() {
    for (const auto find : {FindDoubleKey, FindDoubleFunctionalKey})
        if (const auto fault = find()) return fault;
    return std::nullopt;
}

void PutProgressAway() {
    frmKeyCode.Progress.SetValue(0);
    frmKeyCode.Progress.SetVisible(false);
}

void Report(const Fault& fault) {
    PlayIfOn(WaveError);
    services.messages->Show({"Error", fault.text, Icon::Exclamation, Buttons::Ok});
    frmKeyCode.MapTabs.SetTab(fault.tab);
    for (TextBox* box : fault.boxes) box->SetForeColor(kRed);
    PutProgressAway();
}

std::int16_t CodeInBox(int row) {
    return ToInt16(frmKeyCode.Codes[row].Number());
}

void StoreRow(int row) {
    if (row <= kKeys) KeySettings[row][kKeyDefinition] = frmKeyCode.Definitions[row].Text();
    KeySettings[row][kKeyCode] = frmKeyCode.Codes[row].Text();
    KeySettings[row][kKeyNumber] = frmKeyCode.KeyNumbers[row].Text();
}

void StoreFunctionalKeys() {
    for (int key = 0; key < kFunctionalKeys; ++key)
        KeySettings[kFunctionalRows[key]][kKeyDefinition] = frmKeyCode.FunctionalBoxes[key].Text();
    KeySettings[kSecondShift1][kKeyDefinition] = frmKeyCode.Shift1Box.Text();
}

void Store() {
    Shift1Code = CodeInBox(kFunctionalRows[0]);
    Shift2Code = CodeInBox(kFunctionalRows[1]);
    UndoKeyCode = CodeInBox(kFunctionalRows[2]);
    for (int row = 1; row <= kLastRow; ++row) {
        frmKeyCode.Progress.SetValue(row);
        if (row <= kMapRows) StoreRow(row);
    }
    StoreFunctionalKeys();
    WriteKeySettings();
    PlayIfOn(WaveSave);
}
}  // namespace

void AcceptKeySettings() {
    frmKeyCode.Progress.SetRange(0, kLastRow);
    frmKeyCode.Progress.SetVisible(true);
    if (const auto fault = FindFault()) {
        Report(*fault);
        return;
    }
    Store();
    ShowKeysInTips();
    PlaceKeyCellsIfKnown();
    PutProgressAway();
    CloseDialog(frmKeyCode);
}

void CheckDouble() {
    FindDoubleKey();
}

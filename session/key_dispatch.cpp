#include "session/key_dispatch.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

#include "keys/settings/key_settings.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/undo.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kCounted{255, 255, 110};

bool IsShiftKey(int code) {
    return code == Shift1Code || code == Shift2Code;
}

bool IsShiftOrUndoKey(int code) {
    return IsShiftKey(code) || code == UndoKeyCode;
}

bool IsSaveKey(int code) {
    const Any& save_key = KeySettings[50][kKeyCode];
    return !save_key.Text().empty() && save_key == code;
}

void UseBuiltInShifts() {
    Shift1Code = kBuiltInShift1;
    Shift2Code = kBuiltInShift2;
    UndoKeyCode = kBuiltInUndo;
}

bool IsKnownKey(int code) {
    if (!KeySettingsLoaded) return BuiltInKeyNumber(code) != 0 || IsShiftOrUndoKey(code);
    return std::any_of(&KeySettings[1], &KeySettings[50], [code](const Any(&row)[kKeyColumns]) { return row[kKeyCode] == code; });
}

// One shift key held is level 1, both are level 2, whichever came first; the repeat of a held one changes nothing.
void TrackShiftPress(int code) {
    if (code == Shift1Code && Shift2Down) ++ShiftLevel;
    if (code == Shift2Code) {
        if (Shift1Down) ++ShiftLevel;
        if (!Shift2Down) ++ShiftLevel;
    }
    if (code == Shift1Code && !Shift1Down) ++ShiftLevel;
    ShiftLevel = std::min<std::int16_t>(ShiftLevel, 2);
    if (code == Shift1Code) Shift1Down = true;
    if (code == Shift2Code) Shift2Down = true;
}

void ShowBank() {
    frmMain.BankTabs.SetTab(ShiftLevel);
}

// What the key has typed: the field that has the focus while counting stays empty.
void DropTypedText() {
    frmMain.FocusRest.SetText("");
}

void EnableCommandsOfACount() {
    frmMain.ResetButton.SetEnabled(true);
    frmMain.mnuReset.SetEnabled(true);
    OfferSaving();
    frmMain.mnuSaveHistory.SetEnabled(true);
}

void DetectReverse(int code) {
    ReverseCount = UndoKeyState >= 1 && !IsShiftOrUndoKey(code);
    if (ReverseCount) ++UndoKeyState;
}

bool IsOldSample() {
    return SampleTable[kSampleSerial][CurrentSample].Number() != SampleCount;
}

bool AskAboutOldSample() {
    if (SoundOn)
        services.sounds->Play(WaveError);
    else
        services.sounds->Beep();
    const Message question{"Warning!!", "The datasheet that you are trying to modify is not the latest one. Do you continue?", Icon::None,
                           Buttons::YesNo};
    return services.messages->Show(question) == Answer::Yes;
}

void AnswerWithSound() {
    const bool alarm_due = AlarmDueAfterCount();
    if (SoundOn) {
        if (alarm_due && AlarmArmed) {
            services.sounds->Play(WaveAlarm);
            AlarmArmed = false;
            HundredReached.Raise();
        } else if (ReverseCount) {
            services.sounds->Play(WaveUndo);
            AlarmArmed = true;
        } else {
            services.sounds->Play(ShiftLevel == 0 ? WaveKey1 : ShiftLevel == 1 ? WaveKey2 : WaveKey3);
        }
    }
    WarnOldSample = false;
}

// The panels of the pad vanish while the undo key is held: the next counter key will subtract.
void ShowPadPanels(bool visible) {
    for (Frame& panel : frmMain.PadBlocks) panel.SetVisible(visible);
}

// While the question is up, the releases of the shift keys go to it.
void ForgetShifts() {
    ShiftLevel = 0;
    ShowBank();
    Shift1Down = Shift2Down = false;
}

// A key of a known number, in counting mode and not the undo key. Returns false if the analyst declined: the key is lost.
bool CountOrAsk(int code) {
    SheetClean = false;
    frmMain.mnuNew.SetEnabled(true);
    frmMain.mnuUndo.SetEnabled(true);
    if (code == RepeatKeyCode) return true;
    bool asked = false;
    if (WarnOldSample && IsOldSample() && !IsShiftKey(code)) {
        if (!AskAboutOldSample()) return false;
        WarnOldSample = false;
        asked = true;
    }
    CountKeyPress(code);
    if (!IsShiftKey(code)) AnswerWithSound();
    if (asked) ForgetShifts();
    return true;
}

// Two digits or three: a text of one character is no slot.
std::string SlotText(int code) {
    int slot = 0;
    if (KeySettingsLoaded) {
        for (int key = 1; key <= kKeys; ++key)
            if (KeySettings[key][kKeyCode] == code) slot = ToInt16(TaxonTable[key][kTaxonKey].Number());
    } else {
        slot = BuiltInKeyNumber(code);
    }
    if (slot == 0) return "";
    slot += ShiftLevel * kKeys;
    return (slot < 10 ? "0" : "") + std::to_string(slot);
}

void PushOnUndoList(int slot) {
    std::memmove(&UndoList[1], &UndoList[0], sizeof(UndoList[0]) * kUndoDepth);
    UndoList[0][kUndoSample] = CurrentSample;
    UndoList[0][kUndoSlot] = ToInt16(ReverseCount ? -slot : slot);
}
}  // namespace

void DispatchKeyDown(int code) {
    frmMain.SetEnabled(true);
    if (!KeySettingsLoaded) UseBuiltInShifts();
    if (IsSaveKey(code)) {
        SaveAsked.Raise();
        return;
    }
    if (!frmMain.KeysEnabled || !IsKnownKey(code)) return;
    TrackShiftPress(code);
    SampleUntouched = false;
    frmMain.mnuNext.SetEnabled(false);
    if (!AmendMode && ShiftLevel > 0) ShowBank();
    if (!AmendMode && !IsShiftOrUndoKey(code)) EnableCommandsOfACount();
    DetectReverse(code);
    if (code == UndoKeyCode || AmendMode)
        DropTypedText();
    else if (!CountOrAsk(code))
        return;
    if (code == UndoKeyCode && UndoKeyState == 0) {
        UndoKeyState = 1;
        ShowPadPanels(false);
    }
    if (!IsShiftKey(code)) CountsChanged.Raise();
}

void CountKeyPress(int code) {
    const std::string slot_text = SlotText(code);
    frmMain.CountChannel.SetText(slot_text);  // its change applies the count
    DropTypedText();
    const int new_slot = static_cast<int>(Val(slot_text));
    if (UndoList[0][kUndoSlot] != 0) PaintCell(new_slot, kWhite);  // a key that shifts too gets no highlight below
    if (!IsShiftKey(code)) PushOnUndoList(new_slot);
    const int slot = std::abs(UndoList[0][kUndoSlot]);
    if (slot == 0 || SampleUntouched || IsShiftOrUndoKey(code)) return;
    AddHistoryLine((ReverseCount ? "(Amend) " : "") + SlotAndName(slot));
    ShowBold(slot, true);
    MoveHighlight(slot, kCounted);
}

void DispatchKeyUp(int code) {
    if (IsShiftKey(code)) {
        ShiftLevel = std::max<std::int16_t>(ShiftLevel - 1, 0);
        if (code == Shift1Code) Shift1Down = false;
        if (code == Shift2Code) Shift2Down = false;
    }
    if (!AmendMode && ShiftLevel < 2) ShowBank();
    if (UndoKeyState == 1 && !AmendMode) Undo();
    if (code == UndoKeyCode) {
        UndoKeyState = 0;
        if (!AmendMode) ShowPadPanels(true);
    }
}

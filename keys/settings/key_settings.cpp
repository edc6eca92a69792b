#include "keys/settings/key_settings.h"

#include <algorithm>
#include <iterator>
#include "files/format/cells.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kFile = "References/KeySetting.csv";
constexpr double kUnknownCode = 999;

constexpr int kBuiltInCodes[] = {
    'Q', 'W', 'E', 'A', 'S', 'D', 'Z', 'X', 'C',  // 1..9
    'R', 'T', 'Y', 'F', 'G', 'H', 'V', 'B', 'N',  // 10..18
    'U', 'I', 'O', 'J', 'K', 'L', 'M', 188, 190,  // 19..27: the last two are comma and full stop
    112, 113, 114, '1', '2', '3', 115, 116, 117,  // 28..36: F1..F3, digits, F4..F6
    '4', '5', '6', 118, 119, 120, '7', '8', '9',  // 37..45: digits, F7..F9, digits
};
}  // namespace

void ReadKeySettings() {
    KeyboardKnown = 0;
    CellReader cells(DecodeFile(services.files->ReadAll(ProgramFile(kFile))));
    for (Any(&row)[kKeyColumns] : KeySettings)
        for (Any& field : row) field = cells.Next();
    Shift1Code = ToInt16(KeySettings[46][kKeyCode].Number());
    Shift2Code = ToInt16(KeySettings[47][kKeyCode].Number());
    UndoKeyCode = ToInt16(KeySettings[49][kKeyCode].Number());
    for (int place = 1; place <= kKeys; ++place)
        for (const int slot : {place, place + kKeys, place + 2 * kKeys}) frmMain.SlotNumbers[slot].SetCaption(std::to_string(slot));
    PlaceKeyCells();
    ShowKeysInTips();
    KeyboardKnown = AreNamedKeysKnown() ? 1 : 0;
}

void WriteKeySettings() {
    const auto file = services.files->OpenForWriting(ProgramFile(kFile));
    CellWriter cells(*file);
    for (const Any(&row)[kKeyColumns] : KeySettings) {
        for (const Any& field : row) cells.Write(field);
        cells.EndRow();
    }
    cells.Close();
}

void PlaceKeyCells() {
    for (int place = 1; place <= kKeys; ++place) {
        const std::int16_t key = ToInt16(KeySettings[place][kKeyNumber].Number());
        if (key < 1 || key > kSlots) throw Failure(kSubscriptOutOfRange);
        if (key > kKeys) continue;
        frmMain.PlaceSlot(key, KeyLeft[place], KeyTop[place]);
    }
}

void PlaceKeyCellsIfKnown() {
    try {
        PlaceKeyCells();
    } catch (const Failure&) {
        // Settings that could not be read: the session goes on by the built-in keys, its cells where they are.
    }
}

void ShowKeysInTips() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        const int key = (slot - 1) % kKeys + 1;
        std::string tip = "taxon " + std::to_string(slot) + ", key " + KeySettings[key][kKeyDefinition].Text();
        if (slot <= kKeys)
            tip += ", Shift-1: " + std::to_string(slot + kKeys) + ", both shifts: " + std::to_string(slot + 2 * kKeys);
        else
            tip += slot <= 2 * kKeys ? " with Shift-1 or Shift-2" : " with Shift-1 and Shift-2";
        for (TextBox* box : frmMain.Cell(slot)) box->SetToolTip(tip);
    }
}

bool AreNamedKeysKnown() {
    for (int row = 51; row <= 62; ++row)
        if (KeySettings[row][kKeyCode] == 0 || KeySettings[row][kKeyCode] == kUnknownCode) return false;
    return true;
}

int KeyNumber(const Any& field) {
    const double number = RoundHalfEven(field.Number(), 0);
    return number >= 1 && number <= kKeys ? static_cast<int>(number) : 0;
}

int BuiltInKeyNumber(int code) {
    const auto key = std::find(std::begin(kBuiltInCodes), std::end(kBuiltInCodes), code);
    return key == std::end(kBuiltInCodes) ? 0 : static_cast<int>(key - std::begin(kBuiltInCodes)) + 1;
}

#include "keys/settings/key_settings.h"

#include "files/format/cells.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"
#include "windows/pad_places.h"

namespace {
constexpr const char* kFile = "References/KeySetting.csv";
constexpr double kUnknownCode = 999;

}  // namespace

void ReadKeySettings() {
    KeyboardKnown = 0;
    CellReader cells(DecodeFile(services.files->ReadAll(ProgramFile(kFile))));
    for (Any(&row)[3] : KeySettings)
        for (Any& field : row) field = cells.Next();
    Shift1Code = ToInteger(KeySettings[46][1].Number());
    Shift2Code = ToInteger(KeySettings[47][1].Number());
    UndoKeyCode = ToInteger(KeySettings[49][1].Number());
    for (int place = 1; place <= kKeys; ++place)
        for (const int slot : {place, place + kKeys, place + 2 * kKeys}) frmMain.SlotNumbers[slot].SetCaption(std::to_string(slot));
    PlaceKeyCells();
    KeyboardKnown = AreNamedKeysKnown() ? 1 : 0;
}

void WriteKeySettings() {
    const auto file = services.files->OpenForWriting(ProgramFile(kFile));
    CellWriter cells(*file);
    for (const Any(&row)[3] : KeySettings) {
        for (const Any& field : row) cells.Write(field);
        cells.EndRow();
    }
    cells.Close();
}

void PlaceKeyCells() {
    for (int place = 1; place <= kKeys; ++place) {
        const std::int16_t key = ToInteger(KeySettings[place][2].Number());
        if (key < 1 || key > kSlots) throw Failure(kSubscriptOutOfRange);
        if (key > kKeys) continue;
        frmMain.TaxonNames[key].SetPlace(KeyLeft[place], KeyTop[place]);
        frmMain.TaxonCounts[key].SetPlace(KeyLeft[place], KeyTop[place] + kCountBelowName);
        frmMain.SlotNumbers[key].SetPlace(KeyLeft[place], KeyTop[place] + kNumberBelowName);
    }
}

void PlaceKeyCellsIfKnown() {
    try {
        PlaceKeyCells();
    } catch (const Failure&) {
        // Settings that could not be read: the session goes on by the built-in keys, its cells where they are.
    }
}

bool AreNamedKeysKnown() {
    for (int row = 51; row <= 62; ++row)
        if (KeySettings[row][1] == 0 || KeySettings[row][1] == kUnknownCode) return false;
    return true;
}

int KeyNumber(const Any& field) {
    const double number = RoundHalfEven(field.Number(), 0);
    return number >= 1 && number <= kKeys ? static_cast<int>(number) : 0;
}

#include "keys/key_dialog.h"

#include <algorithm>
#include <iterator>

#include "keys/settings/key_settings.h"
#include "platform/services.h"
#include "session/focus.h"
#include "session/state/sheet_state.h"
#include "windows/key_windows.h"

namespace {
constexpr int kNumberTab = 2;

// Those that the maps show; the named keys are not of this dialog.
void CopyRows(const Any (*from)[3], Any (*to)[3]) {
    for (int row = 0; row <= kMapRows; ++row) std::copy(std::begin(from[row]), std::end(from[row]), std::begin(to[row]));
}

void FillBoxes() {
    for (int row = 0; row <= kMapRows; ++row) {
        if (row <= kKeys) frmKeyCode.Definitions[row].SetText(KeySettings[row][kKeyDefinition].Text());
        frmKeyCode.Codes[row].SetText(KeySettings[row][kKeyCode].Text());
        frmKeyCode.KeyNumbers[row].SetText(KeySettings[row][kKeyNumber].Text());
    }
    for (int key = 0; key < kFunctionalKeys; ++key)
        frmKeyCode.FunctionalBoxes[key].SetText(KeySettings[kFunctionalRows[key]][kKeyDefinition].Text());
}

void PutAt(TextBox& box, const TextBox& place) {
    box.SetPlace(place.Left(), place.Top());
}

// To the right, in twips, when the left hand is chosen.
int MirrorStep(int row) {
    if (row <= kKeys) return -600;
    return row <= kSecondShift1 ? 855 : 5055;  // the row of shift keys; Undo and Save
}

void EmptyBoxes(TextBox* boxes, int first, int last) {
    for (int i = first; i <= last; ++i) boxes[i].SetText("");
}
}  // namespace

void FillKeyDialog() {
    CopyRows(KeySettings, frmKeyCode.SettingsAtOpening);
    frmKeyCode.Characters = services.keyboard->Characters();
    FillBoxes();
    LayOutMaps();
}

void ShowCharacter(int row) {
    std::string tip;
    for (const auto& [code, character] : frmKeyCode.Characters)
        if (frmKeyCode.Codes[row].Text() == std::to_string(code)) tip = "on this keyboard: " + character;
    frmKeyCode.Definitions[row].SetToolTip(tip);
    frmKeyCode.Codes[row].SetToolTip(tip);
    for (int key = 0; key < kFunctionalKeys; ++key)
        if (kFunctionalRows[key] == row) frmKeyCode.FunctionalBoxes[key].SetToolTip(tip);
}

void LayOutMaps() {
    for (int place = 1; place <= kKeys; ++place) {
        const int key = KeyNumber(frmKeyCode.KeyNumbers[place].Text());
        if (key == 0) continue;
        PutAt(frmKeyCode.Definitions[key], frmKeyCode.KeyNumbers[place]);
        PutAt(frmKeyCode.Codes[key], frmKeyCode.KeyNumbers[place]);
    }
}

void MirrorMaps(int side) {
    for (int row = 1; row <= kMapRows; ++row)
        for (TextBox* map : {frmKeyCode.Definitions, frmKeyCode.Codes, frmKeyCode.KeyNumbers})
            map[row].SetLeft(map[row].Left() + side * MirrorStep(row));
}

void OfferDefault() {
    frmKeyCode.DefaultButton.SetVisible(frmKeyCode.MapTabs.Tab() == kNumberTab);
}

void NumberPlacesInOrder() {
    for (int place = 1; place <= kKeys; ++place) {
        frmKeyCode.KeyNumbers[place].SetText(std::to_string(place));
        KeySettings[place][kKeyNumber] = place;
    }
    LayOutMaps();
}

void ClearOpenMap() {
    if (frmKeyCode.MapTabs.Tab() == kNumberTab) {
        EmptyBoxes(frmKeyCode.KeyNumbers, 1, kKeys);
        return;
    }
    EmptyBoxes(frmKeyCode.Definitions, 1, kKeys);
    EmptyBoxes(frmKeyCode.Codes, 1, kKeys);
    EmptyBoxes(frmKeyCode.FunctionalBoxes, 0, kFunctionalKeys - 1);
}

void CancelKeySettings() {
    CopyRows(frmKeyCode.SettingsAtOpening, KeySettings);
    PlaceKeyCellsIfKnown();
    CloseDialog(frmKeyCode);
}

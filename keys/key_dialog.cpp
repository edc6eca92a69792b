#include "keys/key_dialog.h"

#include <algorithm>
#include <iterator>

#include "keys/settings/key_settings.h"
#include "platform/services.h"
#include "session/dialog.h"
#include "session/state/sheet_state.h"
#include "windows/key_code_window.h"

namespace {
constexpr int kNumberTab = 2;

// Those that the maps show; the named keys are not of this dialog.
void CopyRows(const Any (*from)[3], Any (*to)[3]) {
    for (int row = 0; row <= kMapRows; ++row) std::copy(std::begin(from[row]), std::end(from[row]), std::begin(to[row]));
}

void FillBoxes() {
    for (int row = 0; row <= kMapRows; ++row) {
        if (row <= kKeys) frmKeyCode.Text1[row].SetText(KeySettings[row][0].Text());
        frmKeyCode.Text2[row].SetText(KeySettings[row][1].Text());
        frmKeyCode.Text3[row].SetText(KeySettings[row][2].Text());
    }
    for (int key = 0; key < kFunctionalKeys; ++key) frmKeyCode.Text4[key].SetText(KeySettings[kFunctionalRows[key]][0].Text());
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
        if (frmKeyCode.Text2[row].Text() == std::to_string(code)) tip = "on this keyboard: " + character;
    frmKeyCode.Text1[row].SetToolTip(tip);
    frmKeyCode.Text2[row].SetToolTip(tip);
    for (int key = 0; key < kFunctionalKeys; ++key)
        if (kFunctionalRows[key] == row) frmKeyCode.Text4[key].SetToolTip(tip);
}

void LayOutMaps() {
    for (int place = 1; place <= kKeys; ++place) {
        const int key = KeyNumber(frmKeyCode.Text3[place].Text());
        if (key == 0) continue;
        PutAt(frmKeyCode.Text1[key], frmKeyCode.Text3[place]);
        PutAt(frmKeyCode.Text2[key], frmKeyCode.Text3[place]);
    }
}

void MirrorMaps(int side) {
    for (int row = 1; row <= kMapRows; ++row)
        for (TextBox* map : {frmKeyCode.Text1, frmKeyCode.Text2, frmKeyCode.Text3})
            map[row].SetLeft(map[row].Left() + side * MirrorStep(row));
}

void OfferDefault() {
    frmKeyCode.Command5.SetVisible(frmKeyCode.SSTab1.Tab() == kNumberTab);
}

void NumberPlacesInOrder() {
    for (int place = 1; place <= kKeys; ++place) {
        frmKeyCode.Text3[place].SetText(std::to_string(place));
        KeySettings[place][2] = place;
    }
    LayOutMaps();
}

void ClearOpenMap() {
    if (frmKeyCode.SSTab1.Tab() == kNumberTab) {
        EmptyBoxes(frmKeyCode.Text3, 1, kKeys);
        return;
    }
    EmptyBoxes(frmKeyCode.Text1, 1, kKeys);
    EmptyBoxes(frmKeyCode.Text2, 1, kKeys);
    EmptyBoxes(frmKeyCode.Text4, 0, kFunctionalKeys - 1);
}

void CancelKeySettings() {
    CopyRows(frmKeyCode.SettingsAtOpening, KeySettings);
    PlaceKeyCellsIfKnown();
    CloseDialog(frmKeyCode);
}

#include "windows/key_windows.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "platform/window_table.h"
#include "windows/pad_places.h"

InitialWindow frmInitial;

namespace {
constexpr Style kTitle{.points = 12, .bold = true};
constexpr const char* kKeyNames[kNamedKeys] = {
    "[Shift]:", "[Ctrl]:", "[Delete]:", "[BkSp]:", "[Esc]:", "[Enter]:", "[Space]:", "[F1]:", "[Left]:", "[Up]:", "[Right]:", "[Down]:"};
constexpr int kRows = 6;
constexpr int kRowPitch = 420;
constexpr int kColumnPitch = 3400;
constexpr int kKeyLeft = 540;
constexpr int kCodeLeft = 1740;
constexpr int kCodeWidth = 1400;
}  // namespace

InitialWindow::InitialWindow() : Window("frmInitial", "Initialize", 7200, 5660) {
    Lay({
        {Label1[0], {"Label1", 0}, nullptr, {240, 160, 6720, 360}, "Welcome to Marlbrook.", kTitle},
        {Label1[1], {"Label1", 1}, nullptr, {240, 600, 6720, 270}, "Before starting, please help Marlbrook to recognize "},
        {Label1[2], {"Label1", 2}, nullptr, {240, 870, 6720, 270}, "the type of your key board. "},
        {Label1[3], {"Label1", 3}, nullptr, {240, 1140, 6720, 270}, "Please place your cursor in the text box and press the "},
        {Label1[4], {"Label1", 4}, nullptr, {240, 1410, 2940, 270}, "requested key on your key board"},
        {Label1[5], {"Label1", 5}, nullptr, {3220, 1410, 3740, 270}, "(NOT the Ergodex "},
        {Label1[6], {"Label1", 6}, nullptr, {240, 1680, 6720, 270}, "DX-1 but the one you normally use for typing texts)."},
        {Label2[0], {"Label2", 0}, nullptr, {kCodeLeft, 2100, kCodeWidth, 270}, "Key code"},
        {Label2[1], {"Label2", 1}, nullptr, {kCodeLeft + kColumnPitch, 2100, kCodeWidth, 270}, "Key code"},
    });
    for (Label& head : Label2) head.centred = true;
    for (int key = 0; key < kNamedKeys; ++key) LayKey(key);
    Lay({{Command1, "Command1", nullptr, {2960, 5080, 1280, 420}, "OK"}});
    FirstFocus(Text1[0]);
    KeepDesign();
}

void InitialWindow::LayKey(int key) {
    const int right = kColumnPitch * (key / kRows);
    const int top = 2420 + kRowPitch * (key % kRows);
    Lay({
        {Label4[key], {"Label4", key}, nullptr, {kKeyLeft + right, top + 30, 1100, 280}, kKeyNames[key]},
        {Text1[key], {"Text1", key}, nullptr, {kCodeLeft + right, top, kCodeWidth, 330}, "", kPlain, "Key code", &Label4[key]},
    });
    Text1[key].centred = true;
    Text1[key].takes_keys = true;
}

KeyCodeWindow frmKeyCode;

namespace {
constexpr Box kMap{120, 420, 5855, 2880};
constexpr int kBoxHeight = 285;

// The map for the right hand. The one for the left hand, with Save and Undo on the other side, is its mirror image in the same frame.
constexpr int kLefts[9] = {734, 1272, 1810, 2430, 2968, 3506, 4126, 4664, 5202};
constexpr int kTops[5] = {340, 725, 1200, 1585, 1970};
constexpr int kKeyWidth = 520;

struct FunctionalKey {
    const char* word;
    const char* spoken;
    Box box;
};
constexpr FunctionalKey kFunctional[kMapRows - kKeys] = {
    {"Shift-1", "Shift-1", {670, 2445, 1180, kBoxHeight}},         // 46
    {"Shift-2", "Shift-2", {1910, 2445, 1180, kBoxHeight}},        // 47
    {"Shift-1", "Shift-1 again", {3150, 2445, 1180, kBoxHeight}},  // 48
    {"Undo", "Undo", {180, 725, 440, kBoxHeight}},                 // 49
    {"Save", "Save", {180, 340, 440, kBoxHeight}},                 // 50
};

constexpr Style kOpen{.points = 8};
constexpr Style kShut{.points = 8, .enabled = false};
constexpr Style kOpenToKeys{.points = 8, .tab_stop = false};  // Tab would not lead out again
constexpr Style kShutToKeys{.points = 8, .enabled = false, .tab_stop = false};
constexpr Style kKeyBox{.tab_stop = false};

constexpr int kSideLeft = 6355;
constexpr int kSideWidth = 1685;

Box MapBox(int row) {
    if (row == 0) return {};
    const PadCell cell = CellOfPlace(row);
    return {kLefts[cell.column], kTops[cell.row], kKeyWidth, kBoxHeight};
}
}  // namespace

KeyCodeWindow::KeyCodeWindow() : Window("frmKeyCode", "Key settings", 8160, 6500) {
    LayMaps();
    LayBesideMaps();
    LayBelowMaps();
    FirstFocus(Command4);
    confirm = &Command4;
    dismiss = &Command1;
    KeepDesign();
}

void KeyCodeWindow::LayMaps() {
    Lay({
        {SSTab1, "SSTab1", nullptr, {120, 120, 6095, 3420}, "", kPlain, "Maps of the keys"},
        {Frame1, "Frame1", &SSTab1, kMap, "Key definition map"},
        {Frame2, "Frame2", &SSTab1, kMap, "Key code map (automatically linked to the definition map)"},
        {Frame3, "Frame3", &SSTab1, kMap, "Ergodex key number map"},
    });
    SSTab1.SetTabCaptions({"Key definition", "Key code", "Key number"});
    Frame1.page = 0;
    Frame2.page = 1;
    Frame3.page = 2;
    for (int row = 0; row <= kKeys; ++row) LayCounterKey(row);
    for (int row = kKeys + 1; row <= kMapRows; ++row) LayFunctionalKey(row);
    for (TextBox* map : {Text1, Text2, Text3}) {
        map[0].SetVisible(false);
        for (int row = 0; row <= kMapRows; ++row) map[row].centred = true;
    }
    for (TextBox& definition : Text1) definition.takes_keys = true;
}

void KeyCodeWindow::LayCounterKey(int row) {
    const Box place = MapBox(row);
    const std::string number = std::to_string(row);
    Lay({
        {Text1[row], {"Text1", row}, &Frame1, place, "", kOpenToKeys, "Definition of key " + number},
        {Text2[row], {"Text2", row}, &Frame2, place, "", kShut, "Code of key " + number},
        {Text3[row], {"Text3", row}, &Frame3, place, "", kOpen, "Number of the key at place " + number},
    });
}

void KeyCodeWindow::LayFunctionalKey(int row) {
    const FunctionalKey& key = kFunctional[row - kKeys - 1];
    const std::string spoken = key.spoken;
    Lay({
        {Text1[row], {"Text1", row}, &Frame1, key.box, key.word, kShutToKeys, "Definition of key " + spoken},
        {Text2[row], {"Text2", row}, &Frame2, key.box, "", kShut, "Code of key " + spoken},
        {Text3[row], {"Text3", row}, &Frame3, key.box, "", kShut, "Number of key " + spoken},
    });
}

void KeyCodeWindow::LayBesideMaps() {
    Lay({
        {Option1[1], {"Option1", 1}, nullptr, {kSideLeft, 540, kSideWidth, 300}, "Right handed"},
        {Option1[0], {"Option1", 0}, nullptr, {kSideLeft, 880, kSideWidth, 300}, "Left handed"},
        {Label1, "Label1", nullptr, {kSideLeft, 1400, 1100, 280}, "Key code: "},
        {Label2, "Label2", nullptr, {7475, 1400, 565, 280}},
        {Label3, "Label3", nullptr, {kSideLeft, 1720, 1100, 280}, "Ascii code: "},
        {Label4, "Label4", nullptr, {7475, 1720, 565, 280}, "", kPlain, "Ascii code of the last character"},
        {Command2, "Command2", nullptr, {kSideLeft, 2240, kSideWidth, 400}, "All clear"},
        {Command5, "Command5", nullptr, {kSideLeft, 2740, kSideWidth, 400}, "Default", kHidden},
        {ProgressBar1, "ProgressBar1", nullptr, {kSideLeft, 3280, kSideWidth, 220}, "", kHidden, "Saving"},
    });
    Option1[1].SetValue(true);
}

void KeyCodeWindow::LayBelowMaps() {
    Lay({
        {Frame4, "Frame4", nullptr, {120, 3680, 7920, 2180}, "Functional keys"},
        {Label5, "Label5", &Frame4, {240, 260, 6200, 280}, "Place cursor in the text box and press a key of your choice: "},
        {Label6[0], {"Label6", 0}, &Frame4, {240, 630, 4240, 280}, "\"Shift-1\" key  (ex. [;], [Up], etc.]): "},
        {Text4[0], {"Text4", 0}, &Frame4, {4560, 620, 1060, 300}, "", kKeyBox, "Shift-1 key"},
        {Label6[1], {"Label6", 1}, &Frame4, {240, 1010, 4240, 280}, "\"Shift-2\" key  (ex. [p], [Down], etc.): "},
        {Text4[1], {"Text4", 1}, &Frame4, {4560, 1000, 1060, 300}, "", kKeyBox, "Shift-2 key"},
        {Label6[2], {"Label6", 2}, &Frame4, {240, 1390, 4240, 280}, "\"Undo\" key  (ex. [BkSp], [Delete], etc.): "},
        {Text4[2], {"Text4", 2}, &Frame4, {4560, 1380, 1060, 300}, "", kKeyBox, "Undo key"},
        {Label6[3], {"Label6", 3}, &Frame4, {240, 1770, 4240, 280}, "\"Save\" key  (ex. [=], [Return], etc.): "},
        {Text4[3], {"Text4", 3}, &Frame4, {4560, 1760, 1060, 300}, "", kKeyBox, "Save key"},
        {Command3, "Command3", &Frame4, {6235, 620, 1445, 400}, "Notice"},

        {Label7, "Label7", nullptr, {360, 6020, 4240, 280}, "Place the cursor in the box and press [F1] key: "},
        {Text4[kF1Box], {"Text4", kF1Box}, nullptr, {4680, 6010, 1060, 300}, "", kKeyBox, "F1 key"},
        {Command4, "Command4", nullptr, {6020, 5960, 960, 400}, "OK"},
        {Command1, "Command1", nullptr, {7080, 5960, 960, 400}, "Cancel"},
    });
    for (TextBox& box : Text4) box.centred = box.takes_keys = true;
}

void KeyCodeWindow::ForgetMembers() {
    OldDefinition.clear();
    OldCode.clear();
    OldFunctional.clear();
    Characters.clear();
    for (auto& row : SettingsAtOpening) std::fill(std::begin(row), std::end(row), Any());
}

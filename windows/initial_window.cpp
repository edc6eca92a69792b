#include "windows/initial_window.h"

#include "platform/window_table.h"

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

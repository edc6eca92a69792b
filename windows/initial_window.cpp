#include "windows/initial_window.h"

InitialWindow frmInitial;

namespace {
struct Line {
    const char* text;
    Box box;
};
constexpr Line kWelcome[kWelcomeLabels] = {
    {"Welcome to Marlbrook.", {240, 160, 6720, 360}},
    {"Before starting, please help Marlbrook to recognize ", {240, 600, 6720, 270}},
    {"the type of your key board. ", {240, 870, 6720, 270}},
    {"Please place your cursor in the text box and press the ", {240, 1140, 6720, 270}},
    {"requested key on your key board", {240, 1410, 2940, 270}},
    {"(NOT the Ergodex ", {3220, 1410, 3740, 270}},
    {"DX-1 but the one you normally use for typing texts).", {240, 1680, 6720, 270}},
};
constexpr const char* kKeyNames[kNamedKeys] = {
    "[Shift]:", "[Ctrl]:", "[Delete]:", "[BkSp]:", "[Esc]:", "[Enter]:", "[Space]:", "[F1]:", "[Left]:", "[Up]:", "[Right]:", "[Down]:"};
constexpr int kRows = 6;
}  // namespace

InitialWindow::InitialWindow() : Window("frmInitial", "Initialize", 7200, 5660) {
    for (int i = 0; i < kWelcomeLabels; ++i) {
        Add(Label1[i], "Label1", i, nullptr, kWelcome[i].box);
        Label1[i].SetCaption(kWelcome[i].text);
    }
    Label1[0].SetFontSize(12);
    Label1[0].SetBold(true);
    for (int column = 0; column < 2; ++column) {
        Add(Label2[column], "Label2", column, nullptr, {1740 + 3400 * column, 2100, 1400, 270});
        Label2[column].SetCaption("Key code");
        Label2[column].centred = true;
    }
    for (int key = 0; key < kNamedKeys; ++key) {
        const int left = 540 + 3400 * (key / kRows);
        const int top = 2420 + 420 * (key % kRows);
        Add(Label4[key], "Label4", key, nullptr, {left, top + 30, 1100, 280});
        Label4[key].SetCaption(kKeyNames[key]);
        Add(Text1[key], "Text1", key, nullptr, {left + 1200, top, 1400, 330});
        Text1[key].centred = true;
        Text1[key].takes_keys = true;
        Text1[key].accessible_name = "Key code";
        Text1[key].named_by = &Label4[key];
    }
    Add(Command1, "Command1", -1, nullptr, {2960, 5080, 1280, 420});
    Command1.SetCaption("OK");
    FirstFocus(Text1[0]);
    KeepDesign();
}

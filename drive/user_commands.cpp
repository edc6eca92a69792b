// The commands that are the user's hands.
#include <algorithm>

#include "drive/commands.h"
#include "drive/names.h"
#include "drive/script.h"
#include "platform/text.h"
#include "platform/user.h"

namespace drive {

namespace {

int Whole(const std::string& word) {
    const auto number = AsWhole(word);
    if (!number) throw ScriptFault(Quoted(word) + " is not a whole number");
    return *number;
}

double Number(const std::string& word) {
    const auto number = AsDecimal(word);
    if (!number) throw ScriptFault(Quoted(word) + " is not a number");
    return *number;
}

MouseButton ButtonNamed(const std::string& word) {
    if (word == "left") return MouseButton::Left;
    if (word == "right") return MouseButton::Right;
    throw ScriptFault("unknown mouse button " + word + " (known: left, right)");
}

Control& BoxOf(const std::string& name) {
    Control& box = ControlOf(name);
    if (box.kind() != Kind::TextBox && box.kind() != Kind::ComboBox) throw ScriptFault(name + " is not a box to write in");
    return box;
}

int KeyOf(char character) {
    if (character == '\n') return kEnterKey;
    const auto code = KeyThatTypes(character);
    if (!code) throw ScriptFault("no key of a US keyboard types all of that text: use press or paste");
    return *code;
}

}  // namespace

void PressDown(Stage& stage, const Command& command) {
    const int code = KeyCode(command.words[1]);
    stage.Act([&] { stage.hands.KeyDown(code); });
}

void LetGo(Stage& stage, const Command& command) {
    const int code = KeyCode(command.words[1]);
    stage.Act([&] { stage.hands.KeyUp(code); });
}

void PressKeys(Stage& stage, const Command& command) {
    for (std::size_t place = 1; place < command.words.size(); ++place) {
        const int code = KeyCode(command.words[place]);
        stage.Act([&] { stage.hands.KeyDown(code); });
        stage.Act([&] { stage.hands.KeyUp(code); });
    }
}

void PressWithCharacter(Stage& stage, const Command& command) {
    const int code = KeyCode(command.words[1]);
    const std::string& character = command.words[2];
    if (Length(character) > 1) throw ScriptFault("a key types one character or none: use type for " + Quoted(character));
    stage.Act([&] { stage.hands.Press(code, character); });
}

void TypeText(Stage& stage, const Command& command) {
    const std::string& text = command.words[1];
    std::for_each(text.begin(), text.end(), KeyOf);  // finds what cannot be typed before anything is
    for (const char character : text) stage.Act([&] { stage.hands.Press(KeyOf(character), std::string(1, character)); });
}

void SetText(Stage& stage, const Command& command) {
    Control& box = BoxOf(command.words[1]);
    stage.Act([&] { stage.hands.SetBox(box, command.words[2]); });
}

void PasteText(Stage& stage, const Command& command) {
    stage.Act([&] { stage.hands.Paste(command.words[1]); });
}

void FocusBox(Stage& stage, const Command& command) {
    Control& box = BoxOf(command.words[1]);
    stage.Act([&] { stage.hands.FocusBox(box); });
}

void Click(Stage& stage, const Command& command) {
    Control& control = ControlOf(command.words[1]);
    stage.Act([&] { stage.hands.Click(control); });
}

void DoubleClick(Stage& stage, const Command& command) {
    Control& control = ControlOf(command.words[1]);
    stage.Act([&] { stage.hands.DoubleClick(control); });
}

void RightClick(Stage& stage, const Command& command) {
    Control& control = ControlOf(command.words[1]);
    stage.Act([&] { stage.hands.RightClick(control); });
}

void ChooseItem(Stage& stage, const Command& command) {
    ComboBox& box = ControlOf<ComboBox>(command.words[1], "combo box");
    const auto item = std::find(box.List().begin(), box.List().end(), command.words[2]);
    if (item == box.List().end()) {
        if (CanReach(box)) throw ScriptFault("the list of " + command.words[1] + " has no item " + Quoted(command.words[2]));
        return;
    }
    stage.Act([&] { stage.hands.Choose(box, static_cast<int>(item - box.List().begin())); });
}

void PressTab(Stage& stage, const Command& command) {
    TabControl& tabs = ControlOf<TabControl>(command.words[1], "tab control");
    const int tab = Whole(command.words[2]);
    if (tab < 0 || tab >= static_cast<int>(tabs.TabCaptions().size()))
        throw ScriptFault(command.words[1] + " has no tab " + command.words[2]);
    stage.Act([&] { stage.hands.PressTab(tabs, tab); });
}

void Slide(Stage& stage, const Command& command) {
    RangeControl& range = ControlOf<RangeControl>(command.words[1], "slider or scroll bar");
    const int value = Whole(command.words[2]);
    stage.Act([&] { stage.hands.Slide(range, value); });
}

void Spin(Stage& stage, const Command& command) {
    UpDown& arrows = ControlOf<UpDown>(command.words[1], "up-down control");
    const std::string& way = command.words[2];
    if (way != "up" && way != "down") throw ScriptFault("unknown arrow " + way + " (known: up, down)");
    stage.Act([&] { stage.hands.Spin(arrows, way == "up"); });
}

void MouseDown(Stage& stage, const Command& command) {
    const std::string& name = command.words[1];
    const MouseButton button = ButtonNamed(command.words[2]);
    const double x = Number(command.words[3]), y = Number(command.words[4]);
    if (IsWindowName(name)) {
        Window& window = WindowOf(name);
        stage.Act([&] { stage.hands.MouseDownOnWindow(window, button, x, y); });
    } else {
        Control& control = ControlOf(name);
        stage.Act([&] { stage.hands.MouseDown(control, button, x, y); });
    }
}

void MouseUp(Stage& stage, const Command& command) {
    const std::string& name = command.words[1];
    const MouseButton button = ButtonNamed(command.words[2]);
    const double x = Number(command.words[3]), y = Number(command.words[4]);
    if (IsWindowName(name)) {
        Window& window = WindowOf(name);
        stage.Act([&] { stage.hands.MouseUpOnWindow(window, button, x, y); });
    } else {
        Control& control = ControlOf(name);
        stage.Act([&] { stage.hands.MouseUp(control, button, x, y); });
    }
}

void MouseMove(Stage& stage, const Command& command) {
    const std::string& name = command.words[1];
    const double x = Number(command.words[2]), y = Number(command.words[3]);
    if (IsWindowName(name)) {
        Window& window = WindowOf(name);
        stage.Act([&] { stage.hands.MouseMoveOverWindow(window, x, y); });
    } else {
        Control& control = ControlOf(name);
        stage.Act([&] { stage.hands.MouseMove(control, x, y); });
    }
}

void ResizeWindow(Stage& stage, const Command& command) {
    Window& window = WindowOf(command.words[1]);
    const int width = Whole(command.words[2]), height = Whole(command.words[3]);
    stage.Act([&] { stage.hands.Resize(window, width, height); });
}

void CloseWindow(Stage& stage, const Command& command) {
    Window& window = WindowOf(command.words[1]);
    stage.Act([&] { stage.hands.Close(window); });
}

}  // namespace drive

// What a NAME of a script stands for: a window, a control, a property of one of them, or a shared variable. And which key a CODE of a
// script, "81", "Q", "@12" or "@shift1", or a character stands for.
//
//     frmNext    frmNext.Title    frmKeyCode.Text1(7)    frmKeyCode.SSTab1.TabCaption(0)    Counts(5,1)
#pragma once
#include <optional>
#include <string>

#include "drive/script.h"
#include "platform/control.h"
#include "platform/window.h"

namespace drive {

// Each raises ScriptFault, with a sentence, for a name that stands for nothing of the kind.
std::string ValueOf(const std::string& name);
Window& WindowOf(const std::string& name);
Control& ControlOf(const std::string& name);
bool IsWindowName(const std::string& name);

// A control of one kind: "PictureBox".
template <class T>
T& ControlOf(const std::string& name, const char* kind) {
    auto* const control = dynamic_cast<T*>(&ControlOf(name));
    if (!control) throw ScriptFault(name + " is not a " + kind);
    return *control;
}

std::string FullName(const Control& control);  // "frmKeyCode.Text1(7)"

// A decimal virtual-key number; one upper-case letter for its own code; "@N" for the key of counter key N, "@shift1", "@shift2",
// "@undo" and "@save" for those keys, as the key settings that the program holds have them. ScriptFault for any other word and for
// a key that the settings do not hold.
int KeyCode(const std::string& word);

// The virtual-key number of the key of a US keyboard that types the character, with or without shift. Nothing if none does.
std::optional<int> KeyThatTypes(char character);

}  // namespace drive

// What scripts read of a control or a window: ".Text", ".Enabled", ".List(2)".
#pragma once
#include <optional>
#include <string>

#include "platform/control.h"
#include "platform/window.h"

namespace drive {

// The property that stands for the control when a script names none: "Text" of a box, "Caption" of a label. nullptr: it has none.
const char* MainProperty(Kind kind);

// Nothing if that kind of control, or windows, have no such property. ScriptFault if `index` is missing, unwanted or out of bounds.
std::optional<std::string> PropertyText(const Control& control, const std::string& property, std::optional<int> index);
std::optional<std::string> PropertyText(const Window& window, const std::string& property);

}  // namespace drive

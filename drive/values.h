// Values as texts, for one way of comparing them all: numbers in their shortest decimal form, Booleans as True and False, colours as
// "R,G,B", a tagged value as its text or its number's text. And what scripts read of a control or a window: ".Text", ".Enabled",
// ".List(2)".
#pragma once
#include <concepts>
#include <optional>
#include <string>

#include "platform/any.h"
#include "platform/control.h"
#include "platform/window.h"

namespace drive {

std::string ValueText(bool value);
std::string ValueText(float value);  // the shortest text that reads back as the same float; "inf", "nan" for what is no number
std::string ValueText(double value);
std::string ValueText(Colour value);
inline std::string ValueText(const std::string& value) {
    return value;
}
inline std::string ValueText(const Any& value) {
    return value.Text();
}
template <std::integral T>
std::string ValueText(T value) {
    return std::to_string(value);
}

// The property that stands for the control when a script names none: "Text" of a box, "Caption" of a label. nullptr: it has none.
const char* MainProperty(Kind kind);

// Nothing if that kind of control, or windows, have no such property. ScriptFault if `index` is missing, unwanted or out of bounds.
std::optional<std::string> PropertyText(const Control& control, const std::string& property, std::optional<int> index);
std::optional<std::string> PropertyText(const Window& window, const std::string& property);

}  // namespace drive

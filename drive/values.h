// Values as texts, for one way of comparing them all: numbers in their shortest decimal form, Booleans as True and False, colours as
// "R,G,B", a tagged value as its text or its number's text.
#pragma once
#include <concepts>
#include <string>

#include "platform/any.h"
#include "platform/control.h"

namespace drive {

std::string ValueText(bool value);
std::string ValueText(float value);  // the shortest text that reads back as the same Single; "inf", "nan" for what is no number
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

}  // namespace drive

#include "drive/values.h"

#include <cmath>

#include "platform/text.h"

namespace drive {

std::string ValueText(bool value) {
    return value ? "True" : "False";
}

std::string ValueText(float value) {
    return std::isfinite(value) ? SingleText(value) : std::to_string(value);
}

std::string ValueText(double value) {
    return std::isfinite(value) ? NumberText(value) : std::to_string(value);
}

std::string ValueText(Colour value) {
    return std::to_string(value.red) + "," + std::to_string(value.green) + "," + std::to_string(value.blue);
}

}  // namespace drive

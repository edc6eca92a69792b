// Which key of a US keyboard types a character.
#pragma once
#include <optional>

namespace drive {

// The virtual-key number of the key, with or without shift. Nothing if no key types the character.
std::optional<int> KeyThatTypes(char character);

}  // namespace drive

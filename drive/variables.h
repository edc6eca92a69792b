// The shared variables under the names that scripts use: "Counts(5,1)", "SheetPath". Index 0 counts as everywhere in the program.
#pragma once
#include <optional>
#include <string>
#include <vector>

namespace drive {

// The value of a variable as text. Nothing if no variable bears the name; ScriptFault for a wrong number of indices or one that is
// out of bounds.
std::optional<std::string> VariableText(const std::string& name, const std::vector<int>& indices);

}  // namespace drive

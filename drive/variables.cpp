#include "drive/variables.h"

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <utility>

#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "drive/script.h"
#include "drive/values.h"
#include "session/variables.h"

namespace drive {

namespace {

struct Variable {
    std::size_t dimensions;
    // Called with as many indices as there are dimensions; nothing if one is out of bounds.
    std::function<std::optional<std::string>(const std::vector<int>&)> text;
};

bool IsIndex(int index, std::size_t size) {
    return index >= 0 && static_cast<std::size_t>(index) < size;
}

template <class T>
Variable Of(const T& scalar) {
    return {0, [&scalar](const std::vector<int>&) { return ValueText(scalar); }};
}

template <class T, std::size_t kSize>
Variable Of(const T (&array)[kSize]) {
    return {1, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kSize)) return std::nullopt;
                return ValueText(array[at[0]]);
            }};
}

template <class T, std::size_t kRows, std::size_t kColumns>
Variable Of(const T (&array)[kRows][kColumns]) {
    return {2, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kRows) || !IsIndex(at[1], kColumns)) return std::nullopt;
                return ValueText(array[at[0]][at[1]]);
            }};
}

template <class T>
Variable Of(const std::vector<T>& array) {
    return {1, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], array.size())) return std::nullopt;
                return ValueText(array[at[0]]);
            }};
}

// Stored sample by sample, named slot first as Counts is.
template <class T, std::size_t kRows>
Variable Of(const std::vector<std::array<T, kRows>>& array) {
    return {2, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kRows) || !IsIndex(at[1], array.size())) return std::nullopt;
                return ValueText(array[at[1]][at[0]]);
            }};
}

const std::map<std::string, Variable>& Variables() {
    static const std::map<std::string, Variable> variables = [] {
        std::map<std::string, Variable> by_name;
        ForEachVariable([&by_name](const char* name, const auto& variable) { by_name.emplace(name, Of(variable)); });
        return by_name;
    }();
    return variables;
}

}  // namespace

std::optional<std::string> VariableText(const std::string& name, const std::vector<int>& indices) {
    const auto found = Variables().find(name);
    if (found == Variables().end()) return std::nullopt;
    const Variable& variable = found->second;
    if (indices.size() != variable.dimensions)
        throw ScriptFault(name + " takes " + std::to_string(variable.dimensions) + " indices, not " + std::to_string(indices.size()));
    auto text = variable.text(indices);
    if (!text) throw ScriptFault("an index of " + name + " is out of bounds");
    return text;
}

}  // namespace drive

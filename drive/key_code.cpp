#include "drive/key_code.h"

#include <optional>

#include "drive/script.h"
#include "session/state/sheet_state.h"

namespace drive {

namespace {

struct NamedRow {
    const char* word;
    int row;
};
constexpr NamedRow kNamedRows[] = {{"@shift1", 46}, {"@shift2", 47}, {"@undo", 49}, {"@save", 50}};
constexpr int kHighestCode = 32767;

std::optional<int> RowOf(const std::string& word) {
    for (const NamedRow& named : kNamedRows)
        if (word == named.word) return named.row;
    const auto key = AsWhole(word.substr(1));
    if (!key || *key < 1 || *key > kKeys) return std::nullopt;
    return key;
}

int HeldCode(const std::string& word) {
    const auto row = RowOf(word);
    if (!row) throw ScriptFault("unknown key " + word + " (known: @1 to @45, @shift1, @shift2, @undo, @save)");
    const Any& code = KeySettings[*row][1];
    if (code.Text().empty()) throw ScriptFault("the program holds no key settings yet that give " + word + " a code");
    constexpr double kLargestCode = 65535;
    const double number = code.Number();
    if (!(number >= 0 && number <= kLargestCode)) throw ScriptFault("the code that the key settings give " + word + " is no key");
    return static_cast<int>(number);
}

}  // namespace

int KeyCode(const std::string& word) {
    if (word.starts_with('@')) return HeldCode(word);
    if (word.size() == 1 && word[0] >= 'A' && word[0] <= 'Z') return word[0];
    const auto code = AsWhole(word);
    if (!code || *code < 0 || *code > kHighestCode)
        throw ScriptFault("unknown key " + word + " (a decimal code, a capital letter or @...)");
    return *code;
}

}  // namespace drive

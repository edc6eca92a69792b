#include "drive/names.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "drive/script.h"
#include "drive/values.h"
#include "drive/variables.h"
#include "session/state/sheet_state.h"

namespace drive {

namespace {

// "Text1(7)", one of the parts between the periods of a name.
struct Part {
    std::string name;
    std::vector<int> indices;
};

std::vector<int> ReadIndices(const std::string& list, const std::string& whole) {
    std::vector<int> indices;
    std::size_t from = 0;
    while (from <= list.size()) {
        const std::size_t comma = std::min(list.find(',', from), list.size());
        const auto index = AsWhole(list.substr(from, comma - from));
        if (!index) throw ScriptFault(whole + ": an index must be a whole number");
        indices.push_back(*index);
        from = comma + 1;
    }
    return indices;
}

Part ReadPart(const std::string& text, const std::string& whole) {
    const std::size_t bracket = text.find('(');
    if (bracket == std::string::npos) return {text, {}};
    if (text.back() != ')') throw ScriptFault(whole + ": a bracket is not closed");
    return {text.substr(0, bracket), ReadIndices(text.substr(bracket + 1, text.size() - bracket - 2), whole)};
}

std::vector<Part> ReadName(const std::string& name) {
    std::vector<Part> parts;
    std::size_t from = 0;
    while (from <= name.size()) {
        const std::size_t period = std::min(name.find('.', from), name.size());
        parts.push_back(ReadPart(name.substr(from, period - from), name));
        from = period + 1;
    }
    return parts;
}

Window* FindWindow(const Part& part) {
    if (!part.indices.empty()) return nullptr;
    const auto& windows = AllWindows();
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const Window* window) { return window->name == part.name; });
    return found == windows.end() ? nullptr : *found;
}

std::optional<int> SingleIndex(const Part& part) {
    if (part.indices.empty()) return std::nullopt;
    if (part.indices.size() > 1) throw ScriptFault(part.name + " takes one index at the most");
    return part.indices[0];
}

Control* FindControl(const Window& window, const Part& part) {
    const auto index = SingleIndex(part);
    if (index && *index < 0) return nullptr;
    return window.Find(part.name, index.value_or(-1));
}

std::string ControlText(const Control& control, const std::string& name) {
    const char* const property = MainProperty(control.kind());
    if (!property) throw ScriptFault(name + " has no value of its own: name a property, such as " + name + ".Visible");
    return *PropertyText(control, property, std::nullopt);
}

std::string InWindow(const Window& window, const std::vector<Part>& parts, const std::string& name) {
    const Control* const control = FindControl(window, parts[1]);
    if (control && parts.size() == 2) return ControlText(*control, name);
    std::optional<std::string> text;
    if (control && parts.size() == 3) text = PropertyText(*control, parts[2].name, SingleIndex(parts[2]));
    if (!control && parts.size() == 2 && parts[1].indices.empty()) text = PropertyText(window, parts[1].name);
    if (text) return *text;
    throw ScriptFault(control ? name + ": such a control has no such property" : "there is no " + name);
}

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
    const Any& code = KeySettings[*row][kKeyCode];
    if (code.Text().empty()) throw ScriptFault("the program holds no key settings yet that give " + word + " a code");
    constexpr double kLargestCode = 65535;
    const double number = code.Number();
    if (!(number >= 0 && number <= kLargestCode)) throw ScriptFault("the code that the key settings give " + word + " is no key");
    return static_cast<int>(number);
}

struct PunctuationKey {
    int code;
    std::string_view characters;  // without and with shift
};
constexpr PunctuationKey kPunctuation[] = {
    {186, ";:"}, {187, "=+"}, {188, ",<"},  {189, "-_"}, {190, ".>"},  {191, "/?"},
    {192, "`~"}, {219, "[{"}, {220, "\\|"}, {221, "]}"}, {222, "'\""},
};
constexpr std::string_view kDigitsWithShift = ")!@#$%^&*(";

}  // namespace

std::string ValueOf(const std::string& name) {
    const std::vector<Part> parts = ReadName(name);
    const Window* const window = FindWindow(parts[0]);
    if (window && parts.size() == 1) return *PropertyText(*window, "Visible");
    if (window) return InWindow(*window, parts, name);
    if (parts.size() == 1)
        if (const auto text = VariableText(parts[0].name, parts[0].indices)) return *text;
    throw ScriptFault("there is no window or shared variable " + parts[0].name);
}

Window& WindowOf(const std::string& name) {
    Window* const window = FindWindow({name, {}});
    if (!window) throw ScriptFault("there is no window " + name);
    return *window;
}

Control& ControlOf(const std::string& name) {
    const std::vector<Part> parts = ReadName(name);
    if (parts.size() != 2) throw ScriptFault(name + " is not the name of a control: WINDOW.CONTROL or WINDOW.CONTROL(INDEX)");
    Control* const control = FindControl(WindowOf(parts[0].name), parts[1]);
    if (!control) throw ScriptFault("there is no control " + name);
    return *control;
}

bool IsWindowName(const std::string& name) {
    return name.find('.') == std::string::npos;
}

std::string FullName(const Control& control) {
    const std::string name = control.window->name + "." + control.name;
    return control.index < 0 ? name : name + "(" + std::to_string(control.index) + ")";
}

int KeyCode(const std::string& word) {
    if (word.starts_with('@')) return HeldCode(word);
    if (word.size() == 1 && word[0] >= 'A' && word[0] <= 'Z') return word[0];
    const auto code = AsWhole(word);
    if (!code || *code < 0 || *code > kHighestCode)
        throw ScriptFault("unknown key " + word + " (a decimal code, a capital letter or @...)");
    return *code;
}

std::optional<int> KeyThatTypes(char character) {
    if (character == ' ') return 32;
    if (character >= '0' && character <= '9') return character;
    if (character >= 'A' && character <= 'Z') return character;
    if (character >= 'a' && character <= 'z') return character - 'a' + 'A';
    if (const auto digit = kDigitsWithShift.find(character); digit != std::string_view::npos) return '0' + static_cast<int>(digit);
    for (const PunctuationKey& key : kPunctuation)
        if (key.characters.find(character) != std::string_view::npos) return key.code;
    return std::nullopt;
}

}  // namespace drive

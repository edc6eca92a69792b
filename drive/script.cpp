#include "drive/script.h"

#include <string_view>

#include "drive/fault.h"
#include "drive/words.h"

namespace drive {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kOpening = "<<END";
constexpr std::string_view kClosing = "END";
constexpr std::string_view kMark = "\xEF\xBB\xBF";  // some editors put it at the head of UTF-8

std::string_view WithoutBlanks(std::string_view line) {
    const std::size_t first = line.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

// Cuts a last word <<END off.
bool TakeOpening(std::string_view& line) {
    if (!line.ends_with(kOpening)) return false;
    const std::string_view before = line.substr(0, line.size() - kOpening.size());
    if (!before.empty() && kBlanks.find(before.back()) == std::string_view::npos) return false;
    line = WithoutBlanks(before);
    return true;
}

}  // namespace

bool Script::ReadLine(std::string& line) {
    if (!std::getline(text_, line)) return false;
    if (line.ends_with('\r')) line.pop_back();
    if (lines_read_++ == 0 && line.starts_with(kMark)) line.erase(0, kMark.size());
    return true;
}

void Script::ReadLines(Command& command) {
    std::string line;
    while (ReadLine(line)) {
        if (line == kClosing) return;
        command.lines.push_back(line);
    }
    throw ScriptFault("the lines after <<END are not closed by END");
}

bool Script::Next(Command& command) {
    std::string line;
    while (ReadLine(line)) {
        line_ = lines_read_;
        std::string_view rest = WithoutBlanks(line);
        if (rest.empty() || rest[0] == '#') continue;
        command = {};
        command.line = line_;
        command.has_lines = TakeOpening(rest);
        command.words = SplitWords(rest);
        if (command.words.empty()) throw ScriptFault("no command before <<END");
        if (command.has_lines) ReadLines(command);
        return true;
    }
    return false;
}

}  // namespace drive

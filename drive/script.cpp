#include "drive/script.h"

#include <charconv>
#include <cmath>

namespace drive {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

char Unescaped(char letter) {
    switch (letter) {
        case '"':
        case '\\':
            return letter;
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        default:
            throw ScriptFault(std::string("unknown escape \\") + letter + R"( (known: \" \\ \n \r \t))");
    }
}

// Takes a quoted word off the head of `rest`, which begins with its quotation mark.
std::string TakeQuoted(std::string_view& rest) {
    std::string word;
    for (std::size_t place = 1; place < rest.size(); ++place) {
        if (rest[place] == '"') {
            rest.remove_prefix(place + 1);
            if (!rest.empty() && !IsBlank(rest[0])) throw ScriptFault("no blank after a closing quotation mark");
            return word;
        }
        const bool escaped = rest[place] == '\\' && place + 1 < rest.size();
        word += escaped ? Unescaped(rest[++place]) : rest[place];
    }
    throw ScriptFault("a quotation mark is not closed");
}

std::string TakePlain(std::string_view& rest) {
    std::size_t end = 0;
    while (end < rest.size() && !IsBlank(rest[end])) {
        if (rest[end] == '"') throw ScriptFault("a quotation mark inside a word: put the whole word in quotes and write \\\"");
        ++end;
    }
    std::string word(rest.substr(0, end));
    rest.remove_prefix(end);
    return word;
}

template <class T>
std::optional<T> WholeWordAs(std::string_view word) {
    T number = 0;
    const char* const end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return number;
}

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

std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    while (true) {
        while (!line.empty() && IsBlank(line[0])) line.remove_prefix(1);
        if (line.empty()) return words;
        words.push_back(line[0] == '"' ? TakeQuoted(line) : TakePlain(line));
    }
}

std::string Quoted(std::string_view text) {
    std::string word = "\"";
    for (const char c : text) {
        switch (c) {
            case '"':
                word += "\\\"";
                break;
            case '\\':
                word += "\\\\";
                break;
            case '\n':
                word += "\\n";
                break;
            case '\r':
                word += "\\r";
                break;
            case '\t':
                word += "\\t";
                break;
            default:
                word += c;
        }
    }
    return word + "\"";
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else
            line += c;
    }
    return line;
}

std::optional<int> AsWhole(std::string_view word) {
    return WholeWordAs<int>(word);
}

std::optional<double> AsDecimal(std::string_view word) {
    const auto number = WholeWordAs<double>(word);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

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

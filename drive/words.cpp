#include "drive/words.h"

#include <charconv>
#include <cmath>

#include "drive/fault.h"

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

}  // namespace drive

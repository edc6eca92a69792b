// A script as commands, a line as words, and values put into words again. Blank lines and lines that begin with # are passed over. A
// command may bear lines of its own:
//
//     expect frmNext.Text2 "Note: \r\nsilt"        three words; the last holds a blank and a line break
//     expect-file $W/merges.csv <<END
//     "Depth from","Depth to","Sum square"
//     10,20,0.25
//     END
//
// Words are separated by blanks. A word in double quotes may hold blanks and the escapes \" \\ \n \r \t.
#pragma once
#include <istream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace drive {

// The script itself is wrong: what() says in one sentence how. The run stops with status 2.
class ScriptFault : public std::runtime_error {
public:
    explicit ScriptFault(const std::string& sentence) : std::runtime_error(sentence) {}
};

std::vector<std::string> SplitWords(std::string_view line);  // ScriptFault for a quotation mark or an escape out of place

std::string Quoted(std::string_view text);     // the word in double quotes that reads back as `text`
std::string OnOneLine(std::string_view text);  // line breaks as \r and \n, all else as it stands

// A whole number with no more than a sign before it; a number with a period. Nothing for any other word.
std::optional<int> AsWhole(std::string_view word);
std::optional<double> AsDecimal(std::string_view word);

struct Command {
    int line = 0;                    // where it stands, from 1
    std::vector<std::string> words;  // the first names the command
    std::vector<std::string> lines;  // between <<END and END, as they stand
    bool has_lines = false;
};

class Script {
public:
    explicit Script(std::istream& text) : text_(text) {}  // `text` must outlive it
    // false at the end. ScriptFault for a line that cannot be split into words and for an END that is missing.
    bool Next(Command& command);
    int Line() const { return line_; }  // the line read last; after a fault, the one to blame

private:
    bool ReadLine(std::string& line);
    void ReadLines(Command& command);

    std::istream& text_;
    int line_ = 0;
    int lines_read_ = 0;
};

}  // namespace drive

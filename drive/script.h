// A script as commands. Blank lines and lines that begin with # are passed over. A command may bear lines of its own:
//
//     expect-file $W/merges.csv <<END
//     "Depth from","Depth to","Sum square"
//     10,20,0.25
//     END
#pragma once
#include <istream>
#include <string>
#include <vector>

namespace drive {

struct Command {
    int line = 0;                    // where it stands, from 1
    std::vector<std::string> words;  // the first names the command
    std::vector<std::string> lines;  // between <<END and END, as they stand
    bool has_lines = false;
};

class Script {
public:
    explicit Script(std::istream& text) : text_(text) {}  // `text` must outlive it
    // False at the end. ScriptFault for a line that cannot be split into words and for an END that is missing.
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

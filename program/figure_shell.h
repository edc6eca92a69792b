// What shells do for the command line, and that of Windows does not.
#pragma once
#include <string>
#include <vector>

// Its words without the program, in UTF-8.
std::vector<std::string> CommandLineWords(int argc, char** argv);

// On Windows, for a name with `*` or `?` the files that it stands for, in order; the name itself where there are none. Folders stand for
// themselves.
std::vector<std::string> FilesOf(const std::vector<std::string>& names);

// As long as it lives the terminal takes UTF-8.
class TerminalInUtf8 {
public:
    TerminalInUtf8();
    ~TerminalInUtf8();
    TerminalInUtf8(const TerminalInUtf8&) = delete;
    TerminalInUtf8& operator=(const TerminalInUtf8&) = delete;

private:
    [[maybe_unused]] unsigned before_ = 0;  // its code page; 0: it has none
};

// What held and what did not: one line for each miss, and the count of both.
//
//     curve.drive:12: frmMain.Text3(0): expected "3", got "2"
#pragma once
#include <ostream>
#include <string>

namespace drive {

class Report {
public:
    Report(std::string script_name, std::ostream& errors) : script_name_(std::move(script_name)), errors_(errors) {}

    int line = 0;  // of the command that runs
    int passed = 0;
    int failed = 0;

    void Check(bool holds, const std::string& name, const std::string& expected, const std::string& got);
    void CheckEqual(const std::string& name, const std::string& expected, const std::string& got) {
        Check(expected == got, name, expected, got);
    }
    void Fault(const std::string& sentence);  // the script itself is wrong

private:
    std::string script_name_;
    std::ostream& errors_;
};

}  // namespace drive

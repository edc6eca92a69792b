#include "drive/report.h"

#include "drive/script.h"

namespace drive {

void Report::Check(bool holds, const std::string& name, const std::string& expected, const std::string& got) {
    ++(holds ? passed : failed);
    if (!holds)
        errors_ << script_name_ << ":" << line << ": " << name << ": expected " << Quoted(expected) << ", got " << Quoted(got) << "\n";
}

void Report::Fault(const std::string& sentence) {
    errors_ << script_name_ << ":" << line << ": " << sentence << "\n";
}

}  // namespace drive

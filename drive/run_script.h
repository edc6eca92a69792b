// One run of one script, from the making of its folders to their removal.
#pragma once
#include <filesystem>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>

#include "platform/hands.h"

namespace drive {

constexpr int kAllHeld = 0;
constexpr int kSomeMissed = 1;
constexpr int kScriptWrong = 2;

struct RunOptions {
    std::string script_name;              // as misses name it
    std::filesystem::path script_folder;  // what "./" stands for
    std::filesystem::path tree;           // the installation tree that $F is copied from
    bool keep = false;                    // the two folders stay, and their paths are printed
};

// Makes the hands when the services are in place.
using MakeHands = std::function<std::unique_ptr<Hands>(std::function<bool()> has_ended)>;

// Returns one of the three statuses. What the script shows and, as the last line, the count of its expectations go to `out`; misses
// and a fault of the script go to `errors`. The program's shared state must be fresh: one process runs one script.
int RunScript(const RunOptions& options, std::istream& script, const MakeHands& make_hands, std::ostream& out, std::ostream& errors);

}  // namespace drive

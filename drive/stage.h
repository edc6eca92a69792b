// What the commands of a script work on: the two folders of a run, $F for the program and $W for the work, and how scripts name paths;
// the report of what held and what did not, one line for each miss and the count of both; the program's services and hands.
//
//     curve.drive:12: SampleCount: expected "3", got "2"
#pragma once
#include <cstddef>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

#include "drive/names.h"
#include "platform/hands.h"
#include "platform/headless/headless_services.h"

namespace drive {

class Folders {
public:
    // Makes both. `tree`: the installation tree that $F is copied from. `script_folder`: what "./" stands for.
    Folders(std::filesystem::path tree, std::filesystem::path script_folder);
    ~Folders();  // removes both, unless they are kept
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;

    bool keep = false;

    std::string Program() const;  // the real paths, in UTF-8
    std::string Work() const;

    // What $F holds: the tree, where the twelve named keys have their codes, as after the first run; the tree as installed; nothing.
    void LayKnown() const;
    void LayFresh() const;
    void LayEmpty() const;

    // The real path of a PATH: absolute, or beginning with $F/, $W/ or ./. ScriptFault for any other.
    std::string Real(const std::string& path) const;
    // Every path in the text that lies in one of the folders begins with $F or $W again, with `/` between its names.
    std::string Shown(std::string text) const;

private:
    std::filesystem::path tree_, script_folder_, program_, work_;
};

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

struct Stage {
    Folders& folders;
    HeadlessServices& services;
    Hands& hands;
    Report& report;
    std::ostream& out;

    bool started = false;
    std::size_t messages_seen = 0;  // so many message boxes, file dialogs and sounds have been looked at
    std::size_t dialogs_seen = 0;
    std::size_t sounds_seen = 0;

    // The user does something; after the end of the program nothing happens any more.
    void Act(const std::function<void()>& action) {
        if (!services.host.ended) action();
    }
    // The value of a NAME as scripts compare it.
    std::string Shown(const std::string& name) const { return folders.Shown(ValueOf(name)); }
};

}  // namespace drive

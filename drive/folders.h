// The two folders of a run, $F for the program and $W for the work, and how scripts name paths.
#pragma once
#include <filesystem>
#include <string>

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

}  // namespace drive

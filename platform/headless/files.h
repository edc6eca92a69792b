// The files of the disk, by the standard library alone, and files over which a script has power.
#pragma once
#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/files.h"

class DiskFiles : public Files {
public:
    std::string ReadHead(const std::string& path, std::size_t most) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

// Between the UTF-8 of the memory and the system's own paths. A `\` separates folders on every system.
std::filesystem::path DiskPath(const std::string& utf8);
std::string PathText(const std::filesystem::path& path);  // with `/` between the names

// Files over which a script has power: a file can be locked, as if another program held it, and its disk can be full. For everything
// else they are the files beneath.
class ScriptedFiles : public Files {
public:
    explicit ScriptedFiles(Files& beneath) : beneath_(beneath) {}  // `beneath` must outlive it

    // Every opening of the file fails until it is unlocked, whether the file is there or not.
    void Lock(const std::string& path);
    void Unlock(const std::string& path);
    // The file takes its first `bytes` bytes and then no more.
    void Limit(const std::string& path, std::size_t bytes);
    void LiftLimit(const std::string& path);

    std::string ReadHead(const std::string& path, std::size_t most) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;

private:
    void FailIfLocked(const std::string& path) const;

    Files& beneath_;
    std::set<std::string> locked_;
    std::map<std::string, std::size_t> limits_;
};

// The files of the disk, by the standard library alone.
#pragma once
#include <filesystem>
#include <memory>
#include <string>

#include "platform/files.h"

class DiskFiles : public Files {
public:
    std::string ReadAll(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

// Between the UTF-8 of the memory and the system's own paths. A `\` separates folders on every system.
std::filesystem::path DiskPath(const std::string& utf8);
std::string PathText(const std::filesystem::path& path);  // with `/` between the names

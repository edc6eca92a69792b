// Files that live in memory, so that a test can begin with exactly the files it names and fill or lock any of them.
#pragma once
#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/failure.h"
#include "platform/files.h"

class MemoryFiles : public Files {
public:
    std::map<std::string, std::string> bytes;  // path: what the file holds
    std::set<std::string> locked;              // every opening fails
    std::map<std::string, std::size_t> room;   // path: the bytes that its disk takes

    std::string ReadHead(const std::string& path, std::size_t most) override {
        if (locked.count(path) || !bytes.count(path)) throw Failure(kFileError);
        return bytes[path].substr(0, most);
    }
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;

    void LayDownProgram(const std::string& folder);  // what an installed program finds beside itself once the keyboard is known
};

// The key settings as they are after the first run.
std::string KnownKeySettings();

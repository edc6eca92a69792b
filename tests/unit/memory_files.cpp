#include "unit/memory_files.h"

#include <algorithm>

namespace {
class MemoryFile : public OutputFile {
public:
    MemoryFile(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) { files_.bytes[path_]; }
    void Replace(std::string_view bytes) override {
        const auto room = files_.room.find(path_);
        const std::size_t taken = room == files_.room.end() ? bytes.size() : std::min(room->second, bytes.size());
        files_.bytes[path_] = bytes.substr(0, taken);
        if (taken < bytes.size()) throw Failure(kFileError);
    }

private:
    MemoryFiles& files_;
    std::string path_;
};
}  // namespace

std::unique_ptr<OutputFile> MemoryFiles::OpenForWriting(const std::string& path) {
    if (locked.count(path)) throw Failure(kFileError);
    return std::make_unique<MemoryFile>(*this, path);
}

#include "platform/headless/scripted_files.h"

#include "platform/failure.h"
#include "platform/headless/disk_files.h"

namespace {

// One file under one name: `\` and `/` are the same, "." and "a/.." lead nowhere.
std::string Normal(const std::string& path) {
    return PathText(DiskPath(path).lexically_normal());
}

class LimitedFile : public OutputFile {
public:
    LimitedFile(std::unique_ptr<OutputFile> beneath, std::size_t room) : beneath_(std::move(beneath)), room_(room) {}

    void Replace(std::string_view bytes) override {
        beneath_->Replace(bytes.substr(0, room_));
        if (bytes.size() > room_) throw WriteFailure(room_);
    }

private:
    std::unique_ptr<OutputFile> beneath_;
    std::size_t room_;
};

}  // namespace

void ScriptedFiles::Lock(const std::string& path) {
    locked_.insert(Normal(path));
}

void ScriptedFiles::Unlock(const std::string& path) {
    locked_.erase(Normal(path));
}

void ScriptedFiles::Limit(const std::string& path, std::size_t bytes) {
    limits_[Normal(path)] = bytes;
}

void ScriptedFiles::LiftLimit(const std::string& path) {
    limits_.erase(Normal(path));
}

void ScriptedFiles::FailIfLocked(const std::string& path) const {
    if (locked_.contains(Normal(path))) throw Failure(kFileError);
}

std::string ScriptedFiles::ReadAll(const std::string& path) {
    FailIfLocked(path);
    return beneath_.ReadAll(path);
}

std::unique_ptr<OutputFile> ScriptedFiles::OpenForWriting(const std::string& path) {
    FailIfLocked(path);
    auto file = beneath_.OpenForWriting(path);
    const auto limit = limits_.find(Normal(path));
    if (limit == limits_.end()) return file;
    return std::make_unique<LimitedFile>(std::move(file), limit->second);
}

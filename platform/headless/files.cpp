#include "platform/headless/files.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

#include "platform/failure.h"

namespace {

class DiskOutputFile : public OutputFile {
public:
    explicit DiskOutputFile(std::filesystem::path path) : path_(std::move(path)) {
        stream_.open(path_, std::ios::binary | std::ios::in | std::ios::out);                           // leaves the content as it is
        if (!stream_.is_open()) stream_.open(path_, std::ios::binary | std::ios::out | std::ios::app);  // makes the file
        if (!stream_.is_open()) throw Failure(kFileError);
    }

    // Scripts and tests do not wait for the disk: nothing is flushed here.
    void Replace(std::string_view bytes) override {
        std::error_code error;
        std::filesystem::resize_file(path_, 0, error);
        stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream_.close();
        if (!error && !stream_.fail()) return;
        const std::uintmax_t size = std::filesystem::file_size(path_, error);
        throw WriteFailure(error ? 0 : static_cast<std::size_t>(size));
    }

private:
    std::filesystem::path path_;
    std::fstream stream_;
};

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

std::string DiskFiles::ReadHead(const std::string& path, std::size_t most) {
    const std::filesystem::path file = DiskPath(path);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) throw Failure(kFileError);
    std::ifstream stream(file, std::ios::binary);  // only now: opening a pipe would wait
    if (!stream) throw Failure(kFileError);
    std::string bytes(static_cast<std::size_t>(std::min<std::uintmax_t>(std::filesystem::file_size(file, error), most)), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

std::unique_ptr<OutputFile> DiskFiles::OpenForWriting(const std::string& path) {
    return std::make_unique<DiskOutputFile>(DiskPath(path));
}

std::filesystem::path DiskPath(const std::string& utf8) {
    std::u8string text(utf8.begin(), utf8.end());
    std::replace(text.begin(), text.end(), u8'\\', u8'/');
    return std::filesystem::path(text);
}

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

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

std::string ScriptedFiles::ReadHead(const std::string& path, std::size_t most) {
    FailIfLocked(path);
    return beneath_.ReadHead(path, most);
}

std::unique_ptr<OutputFile> ScriptedFiles::OpenForWriting(const std::string& path) {
    FailIfLocked(path);
    auto file = beneath_.OpenForWriting(path);
    const auto limit = limits_.find(Normal(path));
    if (limit == limits_.end()) return file;
    return std::make_unique<LimitedFile>(std::move(file), limit->second);
}

#include "unit/memory_files.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "unit/wave_bytes.h"

namespace {
// After the first run on a common keyboard.
constexpr int kNamedKeyCodes[] = {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40};

class MemoryFile : public OutputFile {
public:
    MemoryFile(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) { files_.bytes[path_]; }
    void Replace(std::string_view bytes) override {
        const auto room = files_.room.find(path_);
        const std::size_t taken = room == files_.room.end() ? bytes.size() : std::min(room->second, bytes.size());
        files_.bytes[path_] = bytes.substr(0, taken);
        if (taken < bytes.size()) throw WriteFailure(taken);
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

void MemoryFiles::LayDownProgram(const std::string& folder) {
    bytes[folder + "/References/KeySetting.csv"] = KnownKeySettings();
    bytes[folder + "/References/My_favorite.jpg"] = "\xFF\xD8\xFF a picture";
    for (const char* wave : {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"})
        bytes[folder + "/Sound files/" + wave + ".wav"] = WaveOf(FormatChunk({.bits = 8}) + WaveChunk("data", wave));
}

std::string KnownKeySettings() {
    std::ifstream file(SOURCE_FOLDER "/install/References/KeySetting.csv", std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    for (const int code : kNamedKeyCodes) text.replace(text.find(",999,") + 1, 3, std::to_string(code));
    return text;
}

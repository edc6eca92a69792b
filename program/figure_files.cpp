#include "program/figure_files.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "platform/headless/files.h"

namespace {
namespace fs = std::filesystem;

// The files that are under way, and the folders that were made for them.
class Parts {
public:
    ~Parts() {
        std::error_code ignored;
        for (const fs::path& part : parts_) fs::remove(part, ignored);
        for (const fs::path& folder : folders_) fs::remove(folder, ignored);  // only those that have stayed empty go
    }

    void Write(const fs::path& place, const std::string& bytes) {
        MakeFolder(place.parent_path());
        fs::path part = place;
        part += ".part";
        parts_.push_back(part);
        places_.push_back(place);
        std::ofstream stream(part, std::ios::binary | std::ios::trunc);
        stream << bytes << std::flush;
        if (!stream) throw WriteFault("cannot write " + PathText(place));
    }

    void TakeNames() {
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            std::error_code error;
            fs::rename(parts_[i], places_[i], error);
            if (error) throw WriteFault("cannot replace " + PathText(places_[i]) + " (" + error.message() + ")");
        }
    }

private:
    void MakeFolder(const fs::path& folder) {
        std::error_code error;
        if (folder.empty() || fs::is_directory(folder, error)) return;
        if (fs::create_directory(folder, error))
            folders_.push_back(folder);
        else if (!fs::is_directory(folder, error))  // another sheet's process may have been faster
            throw WriteFault("cannot make the folder " + PathText(folder));
    }

    std::vector<fs::path> parts_, places_, folders_;
};
}  // namespace

void WriteTogether(const FileTexts& files) {
    Parts parts;
    for (const auto& [path, bytes] : files) parts.Write(DiskPath(path), bytes);
    parts.TakeNames();
}

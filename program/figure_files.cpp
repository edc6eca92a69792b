#include "program/figure_files.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <ranges>
#include <vector>

#include "platform/headless/files.h"

namespace {
namespace fs = std::filesystem;

// A folder beside the places that files will take. Nothing else has its name, nor has another call that runs at the same time.
fs::path NewFolder(const fs::path& beside) {
    for (int number = 1;; ++number) {
        fs::path folder = beside / ("marlbrook-figure.part-" + std::to_string(number));
        std::error_code error;
        if (fs::create_directory(folder, error)) return folder;
        if (error && error != std::errc::file_exists)
            throw WriteFault("cannot write into the folder " + PathText(beside.empty() ? "." : beside) + " (" + error.message() + ")");
    }
}

WriteFault CannotReplace(const fs::path& place, const std::error_code& error) {
    return WriteFault("cannot replace " + PathText(place) + " (" + error.message() + ")");
}

// Files under way to their places. What has not come to its end is undone.
class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    ~FileSet() {
        std::error_code ignored;
        if (!PutBack()) return;  // a file that is not back stays where its user can find it
        for (const auto& [beside, folder] : work_folders_) fs::remove_all(folder, ignored);
        for (const fs::path& folder : std::views::reverse(made_)) fs::remove(folder, ignored);  // only those that have stayed empty go
    }

    void Write(const fs::path& place, const std::string& bytes) {
        std::error_code error;
        if (fs::is_directory(place, error)) throw WriteFault("cannot write " + PathText(place) + ": it is a folder");
        MakeFolder(place.parent_path());
        const fs::path part = NewName(place);
        std::ofstream stream(part, std::ios::binary);
        stream << bytes << std::flush;
        if (!stream) throw WriteFault("cannot write " + PathText(place));
        written_.push_back({part, place});
    }

    void TakePlaces(const std::vector<fs::path>& outdated) {
        std::error_code unknown;
        for (const fs::path& place : outdated)
            if (fs::is_regular_file(fs::symlink_status(place, unknown))) MoveAside(place);
        for (const auto& [part, place] : written_) {
            MoveAside(place);
            MoveIn(part, place);
        }
        renamed_.clear();
    }

private:
    struct Way {
        fs::path from, to;
    };

    // The last first. Returns false if one cannot go.
    bool PutBack() const {
        bool is_back = true;
        for (const auto& [from, to] : std::views::reverse(renamed_)) {
            std::error_code error;
            fs::rename(to, from, error);
            is_back = is_back && !error;
        }
        return is_back;
    }

    // What is there; it may also be gone by now, moved by another call.
    void MoveAside(const fs::path& place) {
        const fs::path aside = NewName(place);
        std::error_code error, unknown;
        fs::rename(place, aside, error);
        const bool was_none = error == std::errc::no_such_file_or_directory;  // Windows tells of no reason
        if (!error)
            renamed_.push_back({place, aside});
        else if (!was_none && fs::exists(fs::symlink_status(place, unknown)))
            throw CannotReplace(place, error);
    }

    void MoveIn(const fs::path& part, const fs::path& place) {
        std::error_code error;
        fs::rename(part, place, error);
        if (error) throw CannotReplace(place, error);
        renamed_.push_back({part, place});
    }

    void MakeFolder(const fs::path& folder) {
        std::error_code error;
        if (folder.empty() || fs::is_directory(folder, error)) return;
        if (folder.has_relative_path()) MakeFolder(folder.parent_path());
        if (fs::create_directory(folder, error))
            made_.push_back(folder);
        else if (!fs::is_directory(folder, error))  // another sheet's process may have been faster
            throw WriteFault("cannot make the folder " + PathText(folder));
    }

    // On the way to the place, or from it.
    fs::path NewName(const fs::path& place) {
        const fs::path beside = place.parent_path();
        if (!work_folders_.contains(beside)) work_folders_.emplace(beside, NewFolder(beside));
        return work_folders_.at(beside) / std::to_string(names_++);
    }

    std::map<fs::path, fs::path> work_folders_;  // by the folder that they lie in
    std::vector<fs::path> made_;
    std::vector<Way> written_, renamed_;
    int names_ = 0;
};
}  // namespace

void WriteTogether(const FileTexts& files, const std::vector<std::string>& outdated) {
    FileSet set;
    for (const auto& [path, bytes] : files) set.Write(DiskPath(path), bytes);
    std::vector<fs::path> gone;
    for (const std::string& path : outdated) gone.push_back(DiskPath(path));
    set.TakePlaces(gone);
}

#include "drive/stage.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <vector>

#include "drive/script.h"
#include "platform/headless/files.h"

namespace drive {

namespace {

namespace fs = std::filesystem;

constexpr int kFirstNamedKey = 51;  // row of the key settings; the heading is row 0
constexpr std::array kNamedKeys = {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40};

// A folder that nobody else has, `/tmp/marlbrook-f-1a2b3c4d`.
fs::path MakeFolder(const std::string& purpose) {
    std::random_device random;
    const fs::path parent = fs::canonical(fs::temp_directory_path());
    while (true) {
        char number[9];
        std::snprintf(number, sizeof number, "%08x", random());
        fs::path folder = parent / ("marlbrook-" + purpose + "-" + number);
        if (fs::create_directory(folder)) return folder;
    }
}

void RemoveContents(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder)) fs::remove_all(entry.path());
}

// Entry by entry: the library for Windows takes any two folders of one disk for the same, and copies none on the other.
void CopyContents(const fs::path& from, const fs::path& to, std::error_code& error) {
    for (const auto& entry : fs::directory_iterator(from)) {
        fs::copy(entry.path(), to / entry.path().filename(), fs::copy_options::recursive, error);
        if (error) return;
    }
}

std::vector<std::string> ReadLines(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

// The second of the three cells of a row, where no cell holds a comma.
void PutCode(std::string& row, int code) {
    const std::size_t second = row.find(',') + 1;
    const std::size_t third = row.find(',', second);
    if (second == 0 || third == std::string::npos) throw ScriptFault("the key settings of the installation tree have a broken row: " + row);
    row.replace(second, third - second, std::to_string(code));
}

bool SamePathCharacter(char a, char b) {
    return a == b || (a == '\\' && b == '/');
}

// Whether `folder` stands in the text at `at`. No other name begins like those of a run's folders.
bool StandsAt(const std::string& text, std::size_t at, const std::string& folder) {
    for (std::size_t place = 0; place < folder.size(); ++place)
        if (!SamePathCharacter(text[at + place], folder[place])) return false;
    return true;
}

void Replace(std::string& text, const std::string& folder, const char* name) {
    for (std::size_t at = 0; at + folder.size() <= text.size(); ++at) {
        if (!StandsAt(text, at, folder)) continue;
        text.replace(at, folder.size(), name);
        const std::size_t end = std::min(text.find_first_of("\"\r\n", at), text.size());
        for (std::size_t place = at; place < end; ++place)
            if (text[place] == '\\') text[place] = '/';
    }
}

}  // namespace

Folders::Folders(fs::path tree, fs::path script_folder)
    : tree_(std::move(tree)), script_folder_(std::move(script_folder)), program_(MakeFolder("f")), work_(MakeFolder("w")) {}

Folders::~Folders() {
    if (keep) return;
    std::error_code ignored;
    fs::remove_all(program_, ignored);
    fs::remove_all(work_, ignored);
}

std::string Folders::Program() const {
    return PathText(program_);
}
std::string Folders::Work() const {
    return PathText(work_);
}

void Folders::LayEmpty() const {
    RemoveContents(program_);
}

void Folders::LayFresh() const {
    if (!fs::is_directory(tree_)) throw ScriptFault("there is no installation tree at " + PathText(tree_) + ": build the project first");
    std::error_code error;
    do {  // a signal, such as a timer's, may break it off
        LayEmpty();
        CopyContents(tree_, program_, error);
    } while (error == std::errc::interrupted);
    if (error) throw fs::filesystem_error("cannot copy", tree_, program_, error);
}

void Folders::LayKnown() const {
    LayFresh();
    const fs::path settings = program_ / "References" / "KeySetting.csv";
    std::vector<std::string> rows = ReadLines(settings);
    if (rows.size() < kFirstNamedKey + kNamedKeys.size()) throw ScriptFault("the key settings of the installation tree are cut short");
    for (std::size_t key = 0; key < kNamedKeys.size(); ++key) PutCode(rows[kFirstNamedKey + key], kNamedKeys[key]);
    std::ofstream file(settings, std::ios::binary);
    for (const std::string& row : rows) file << row << '\n';
}

std::string Folders::Real(const std::string& path) const {
    if (path.starts_with("$F/")) return Program() + path.substr(2);
    if (path.starts_with("$W/")) return Work() + path.substr(2);
    if (path.starts_with("./")) return PathText((script_folder_ / DiskPath(path)).lexically_normal());
    if (DiskPath(path).is_absolute()) return path;
    throw ScriptFault("the path " + path + " must be absolute or begin with $F/, $W/ or ./");
}

std::string Folders::Shown(std::string text) const {
    Replace(text, Program(), "$F");
    Replace(text, Work(), "$W");
    return text;
}

void Report::Check(bool holds, const std::string& name, const std::string& expected, const std::string& got) {
    ++(holds ? passed : failed);
    if (!holds)
        errors_ << script_name_ << ":" << line << ": " << name << ": expected " << Quoted(expected) << ", got " << Quoted(got) << "\n";
}

void Report::Fault(const std::string& sentence) {
    errors_ << script_name_ << ":" << line << ": " << sentence << "\n";
}

}  // namespace drive

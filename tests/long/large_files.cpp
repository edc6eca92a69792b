// Files that no microscopist wrote, of 1.6 and of 16 megabytes, nearly the largest that are read: opening one takes time and memory in
// proportion to its size, ends with the sheet open if the file holds one, and leaves a program that counts on.
//     large_files                        status 0: all was so
//     large_files PATH                   opens this file and tells what it took
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <set>
#include <string>

#include "events/program.h"
#include "files/open_sheet.h"
#include "platform/headless/headless_services.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_file.h"
#include "windows/next_window.h"
#ifdef MARLBROOK_WITH_WINDOWS
#include "platform/qt/qt_files.h"
#endif

namespace {
constexpr double kMegabyte = 1e6;
constexpr std::size_t kSmall = 1'600'000, kLarge = 16'000'000;  // bytes, beside those of an ordinary sheet
static_assert(kLarge + 500'000 < kLargestFile, "a file that is refused unread costs nothing");

enum Outcome { kOpened, kReadInVain, kRefused, kStuck };
constexpr const char* kOutcomes[] = {"opened", "read in vain", "refused unread", "counts no more"};

struct Cost {
    double seconds;    // of the processor: the machine has other work too
    double megabytes;  // at the most
    Outcome outcome;
};

std::string Repeated(const std::string& text, std::size_t bytes) {
    std::string all;
    while (all.size() < bytes) all += text;
    return all;
}

std::string WithCell(std::size_t row, std::size_t cell, const std::string& text) {
    Rows rows = DataSheet(2);
    rows[row][cell] = text;
    return Joined(rows);
}

struct Shape {
    const char* name;
    Outcome outcome;
    std::function<std::string(std::size_t bytes)> make;
};
const Shape kShapes[] = {
    {"one line of letters", kReadInVain, [](std::size_t bytes) { return std::string(bytes, 'x'); }},
    {"one line of digits", kReadInVain, [](std::size_t bytes) { return std::string(bytes, '9'); }},
    {"digits where a count stands", kOpened, [](std::size_t bytes) { return WithCell(kTaxonRow, 4, std::string(bytes, '0') + "7"); }},
    {"NULs", kReadInVain, [](std::size_t bytes) { return std::string(bytes, '\0'); }},
    {"commas", kReadInVain, [](std::size_t bytes) { return std::string(bytes, ','); }},
    {"line ends", kReadInVain, [](std::size_t bytes) { return Repeated("\r\n", bytes); }},
    {"blanks", kReadInVain, [](std::size_t bytes) { return std::string(bytes, ' '); }},
    {"quotation marks", kReadInVain, [](std::size_t bytes) { return std::string(bytes, '"'); }},
    {"marks and letters", kReadInVain, [](std::size_t bytes) { return Repeated("\"a\"b", bytes); }},
    {"accents cut in half", kReadInVain, [](std::size_t bytes) { return std::string(bytes, '\xC3'); }},
    {"a path", kOpened, [](std::size_t bytes) { return WithCell(0, 0, "\"" + std::string(bytes, '/') + "\""); }},
    {"a sample name", kOpened, [](std::size_t bytes) { return WithCell(1, 4, "\"" + std::string(bytes, 'x') + "\""); }},
    {"a taxon", kOpened, [](std::size_t bytes) { return WithCell(kTaxonRow, 3, "\"" + std::string(bytes, 'x') + "\""); }},
    {"a note of the letter beta", kOpened,
     [](std::size_t bytes) { return WithCell(kNoteRow, 5, "\"" + Repeated("\xCE\xB2", bytes) + "\""); }},
    {"a note that never ends", kOpened, [](std::size_t bytes) { return WithCell(kNoteRow, 4, "\"" + std::string(bytes, 'x')); }},
    {"a note of short lines", kOpened, [](std::size_t bytes) { return WithCell(kNoteRow, 4, "\"" + Repeated("a\r\n", bytes) + "\""); }},
    {"a note that never ends, of accents", kOpened,
     [](std::size_t bytes) { return WithCell(kNoteRow, 4, "\"" + std::string(bytes / 2, '\xE9')); }},
    {"a sheet with a long tail", kOpened, [](std::size_t bytes) { return Joined(DataSheet(2)) + Repeated("1,2,3\r\n", bytes); }},
};

// Knows which files were read.
class WatchedFiles : public Files {
public:
    explicit WatchedFiles(Files& beneath) : beneath_(beneath) {}
    std::string ReadHead(const std::string& path, std::size_t most) override {
        std::string bytes = beneath_.ReadHead(path, most);
        read.insert(path);
        return bytes;
    }
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override { return beneath_.OpenForWriting(path); }

    std::set<std::string> read;  // paths

private:
    Files& beneath_;
};

// True if one more is counted.
bool CountsOn() {
    const int code = static_cast<int>(KeySettings[1][kKeyCode].Number());
    const std::size_t lines = HistoryLog.size();
    PressKey(code);
    ReleaseKey(code);
    return HistoryLog.size() == lines + 1 && HistoryLog.back().starts_with("1: ");
}

void BeginSheet() {
    ClickControl(frmNext.Command4);
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, "1000");
    ClickControl(frmNext.Command1);
}

Outcome Open(HeadlessServices& headless, Files& beneath, const std::string& path) {
    WatchedFiles files(beneath);
    services.files = &files;
    StartProgram();
    headless.dialogs.answers.push_back(path);
    OpenSheet();
    const bool is_read = files.read.contains(path), is_open = HistoryLog.back() == "(Open) " + path;
    if (!is_open) BeginSheet();
    if (!CountsOn() || headless.host.ended || !headless.messages.unanswered.empty()) return kStuck;
    return is_open ? kOpened : is_read ? kReadInVain : kRefused;
}

double Seconds(const struct timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// In a process of its own, which has the memory to itself.
Cost CostOfOpening(const std::string& folder, const std::string& path) {
    const pid_t child = fork();
    if (child == 0) {
        HeadlessServices headless(folder);
#ifdef MARLBROOK_WITH_WINDOWS
        QtFiles files;  // those of the desktop program
#else
        DiskFiles files;
#endif
        _exit(Open(headless, files, path));
    }
    int status = 0;
    struct rusage usage = {};
    wait4(child, &status, 0, &usage);
    const Outcome outcome = WIFEXITED(status) && WEXITSTATUS(status) < kStuck ? static_cast<Outcome>(WEXITSTATUS(status)) : kStuck;
    return {Seconds(usage.ru_utime) + Seconds(usage.ru_stime), static_cast<double>(usage.ru_maxrss) / 1000, outcome};
}

void LayDownProgram(const std::string& folder) {
    std::filesystem::create_directories(folder + "/References/Back up files");
    std::filesystem::create_directories(folder + "/Sound files");
    MemoryFiles installed;
    installed.LayDownProgram(folder);
    for (const auto& [path, bytes] : installed.bytes) std::ofstream(path, std::ios::binary) << bytes;
}

Cost CostOf(const Shape& shape, const std::string& folder, std::size_t bytes) {
    const std::string path = folder + "/large.csv";
    std::ofstream(path, std::ios::binary) << shape.make(bytes);
    return CostOfOpening(folder, path);
}

bool IsInProportion(const Shape& shape, const std::string& folder) {
    constexpr double kMostTime = 30;    // times as long for ten times the bytes
    constexpr double kMostMemory = 12;  // bytes for each byte of the file
    constexpr double kProgram = 60;     // megabytes
    const Cost small = CostOf(shape, folder, kSmall);
    const Cost large = CostOf(shape, folder, kLarge);
    std::printf("%-28s %.1f MB: %6.2f s %5.0f MB, %s   %.1f MB: %6.2f s %5.0f MB, %s\n", shape.name, kSmall / kMegabyte, small.seconds,
                small.megabytes, kOutcomes[small.outcome], kLarge / kMegabyte, large.seconds, large.megabytes, kOutcomes[large.outcome]);
    std::fflush(stdout);
    return small.outcome == shape.outcome && large.outcome == shape.outcome && large.seconds < kMostTime * small.seconds &&
           large.megabytes < kLarge / kMegabyte * kMostMemory + kProgram;
}
}  // namespace

int main(int argc, char** argv) {
    const std::string folder = PathText(std::filesystem::temp_directory_path()) + "/marlbrook_large_" + std::to_string(getpid());
    LayDownProgram(folder);
    int wrong = 0;
    if (argc > 1) {
        const Cost cost = CostOfOpening(folder, std::filesystem::absolute(argv[1]).string());
        std::printf("%.2f s, %.0f MB, %s\n", cost.seconds, cost.megabytes, kOutcomes[cost.outcome]);
        wrong = cost.outcome == kStuck ? 1 : 0;
    } else {
        for (const Shape& shape : kShapes)
            if (!IsInProportion(shape, folder)) {
                std::fprintf(stderr, "large_files: not in proportion, or it did not end as it should: %s\n", shape.name);
                ++wrong;
            }
    }
    std::filesystem::remove_all(folder);
    return wrong == 0 ? 0 : 1;
}

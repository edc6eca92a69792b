// Files that no microscopist wrote, of ten and of a hundred megabytes: opening one takes time and memory in proportion to its size, and
// ends with a program that counts on.
//     large_files                        status 0: all was so
//     large_files PATH                   opens this file and tells what it took
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "events/program.h"
#include "files/open_sheet.h"
#include "platform/headless/headless_services.h"
#include "platform/user.h"
#include "session/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_file.h"
#ifdef MARLBROOK_WITH_WINDOWS
#include "platform/qt/qt_files.h"
#endif

namespace {
constexpr std::size_t kMegabyte = 1000000;

struct Cost {
    double seconds;
    double megabytes;  // at the most
    bool ended_well;
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
    std::function<std::string(std::size_t bytes)> make;
};
const Shape kShapes[] = {
    {"one line of letters", [](std::size_t bytes) { return std::string(bytes, 'x'); }},
    {"one line of digits", [](std::size_t bytes) { return std::string(bytes, '9'); }},
    {"digits where a count stands", [](std::size_t bytes) { return WithCell(kTaxonRow, 4, std::string(bytes, '0') + "7"); }},
    {"NULs", [](std::size_t bytes) { return std::string(bytes, '\0'); }},
    {"commas", [](std::size_t bytes) { return std::string(bytes, ','); }},
    {"line ends", [](std::size_t bytes) { return Repeated("\r\n", bytes); }},
    {"blanks", [](std::size_t bytes) { return std::string(bytes, ' '); }},
    {"quotation marks", [](std::size_t bytes) { return std::string(bytes, '"'); }},
    {"marks and letters", [](std::size_t bytes) { return Repeated("\"a\"b", bytes); }},
    {"accents cut in half", [](std::size_t bytes) { return std::string(bytes, '\xC3'); }},
    {"a path", [](std::size_t bytes) { return WithCell(0, 0, "\"" + std::string(bytes, '/') + "\""); }},
    {"a sample name", [](std::size_t bytes) { return WithCell(1, 4, "\"" + std::string(bytes, 'x') + "\""); }},
    {"a taxon", [](std::size_t bytes) { return WithCell(kTaxonRow, 3, "\"" + std::string(bytes, 'x') + "\""); }},
    {"a note of the letter beta", [](std::size_t bytes) { return WithCell(kNoteRow, 5, "\"" + Repeated("\xCE\xB2", bytes) + "\""); }},
    {"a note that never ends", [](std::size_t bytes) { return WithCell(kNoteRow, 4, "\"" + std::string(bytes, 'x')); }},
    {"a sheet with a long tail", [](std::size_t bytes) { return Joined(DataSheet(2)) + Repeated("1,2,3\r\n", bytes); }},
};

// In a process of its own, which has the memory to itself: start, open, count one.
Cost CostOfOpening(const std::string& folder, const std::string& path) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        HeadlessServices headless(folder);
#ifdef MARLBROOK_WITH_WINDOWS
        QtFiles files;  // those of the desktop program
#else
        DiskFiles files;
#endif
        services.files = &files;
        StartProgram();
        headless.dialogs.answers.push_back(path);
        OpenSheet();
        const int code = static_cast<int>(KeySettings[1][1].Number());
        PressKey(code);
        ReleaseKey(code);
        _exit(headless.host.ended || !headless.messages.shown.empty() ? 1 : 0);
    }
    int status = 0;
    struct rusage usage = {};
    wait4(child, &status, 0, &usage);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    return {seconds, static_cast<double>(usage.ru_maxrss) / 1000, WIFEXITED(status) && WEXITSTATUS(status) == 0};
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
    constexpr double kMostTime = 30;    // times as long for ten times the bytes: the machine has other work too
    constexpr double kMostMemory = 12;  // bytes for each byte of the file
    constexpr double kProgram = 60;     // megabytes
    const Cost small = CostOf(shape, folder, 10 * kMegabyte);
    const Cost large = CostOf(shape, folder, 100 * kMegabyte);
    std::printf("%-28s 10 MB: %6.2f s %5.0f MB   100 MB: %6.2f s %5.0f MB\n", shape.name, small.seconds, small.megabytes, large.seconds,
                large.megabytes);
    std::fflush(stdout);
    return small.ended_well && large.ended_well && large.seconds < kMostTime * small.seconds &&
           large.megabytes < 100 * kMostMemory + kProgram;
}
}  // namespace

int main(int argc, char** argv) {
    const std::string folder = PathText(std::filesystem::temp_directory_path()) + "/marlbrook_large_" + std::to_string(getpid());
    LayDownProgram(folder);
    int wrong = 0;
    if (argc > 1) {
        const Cost cost = CostOfOpening(folder, std::filesystem::absolute(argv[1]).string());
        std::printf("%.2f s, %.0f MB, %s\n", cost.seconds, cost.megabytes, cost.ended_well ? "counts on" : "did not go on");
        wrong = cost.ended_well ? 0 : 1;
    } else {
        for (const Shape& shape : kShapes)
            if (!IsInProportion(shape, folder)) {
                std::fprintf(stderr, "large_files: not in proportion, or it did not end well: %s\n", shape.name);
                ++wrong;
            }
    }
    std::filesystem::remove_all(folder);
    return wrong == 0 ? 0 : 1;
}

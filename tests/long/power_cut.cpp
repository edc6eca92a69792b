// A process that saves a sheet again and again is killed at random moments. What lies on the disk then is a save of its, whole or cut
// short, and nothing else; and while the sheet is cut, the back-up of its last alarm is whole:
//     power_cut KILLS [SEED]    kills as many; status 0: all was so
//     power_cut save            saves a large sheet over itself ten times, to be watched by strace
// The kills leave what the system had taken; what a disk keeps when the mains fail, the flush at the end of each save sees to.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "events/program.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/headless/headless_services.h"
#include "platform/user.h"
#include "session/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_file.h"
#include "windows/main_window.h"
#ifdef MARLBROOK_WITH_WINDOWS
#include "platform/qt/qt_files.h"
#endif

namespace {
constexpr int kSamples = 250;
constexpr int kVersions = 2;  // the two states of the sheet that are saved in turn

class Cuts {
public:
    Cuts();
    ~Cuts() { std::filesystem::remove_all(folder_); }
    Cuts(const Cuts&) = delete;
    Cuts& operator=(const Cuts&) = delete;

    void SaveTenTimes();
    int Kill(int times, unsigned seed);

private:
    void Show(int version);
    void SaveForEver();

    const std::string folder_ = PathText(std::filesystem::temp_directory_path()) + "/marlbrook_cuts_" + std::to_string(getpid());
    const std::string sheet_ = folder_ + "/core.csv";
    HeadlessServices services_{folder_};
#ifdef MARLBROOK_WITH_WINDOWS
    QtFiles files_;  // those of the desktop program
#else
    DiskFiles files_;
#endif
    std::string backed_up_;
    std::array<std::string, kVersions> saved_;
};

// A sheet of the largest size is open, and an alarm has backed it up.
Cuts::Cuts() {
    services.files = &files_;
    std::filesystem::create_directories(folder_ + "/References/Back up files");
    std::filesystem::create_directories(folder_ + "/Sound files");
    MemoryFiles installed;
    installed.LayDownProgram(folder_);
    for (const auto& [path, bytes] : installed.bytes) files_.OpenForWriting(path)->Replace(bytes);
    files_.OpenForWriting(sheet_)->Replace(Joined(DataSheet(kSamples)));
    StartProgram();
    services_.dialogs.answers.push_back(sheet_);
    OpenSheet();
    const int code = static_cast<int>(KeySettings[1][1].Number());
    while (services_.sounds.played.empty() || services_.sounds.played.back() != "WaveAlarm") {
        PressKey(code);
        ReleaseKey(code);
    }
    backed_up_ = files_.ReadAll(folder_ + "/References/Back up files/Auto_back_up_(0).csv");
    for (int version = 0; version < kVersions; ++version) {
        Show(version);
        SaveSheet(kSave);
        saved_[static_cast<std::size_t>(version)] = files_.ReadAll(sheet_);
    }
}

// The second is the longer one, in nearly every row.
void Cuts::Show(int version) {
    for (int slot = 2; slot <= kSlots; ++slot) frmMain.Text2[slot].SetText(version == 0 ? "0" : "100");
}

void Cuts::SaveForEver() {
    alarm(60);  // should the parent die
    for (int version = 0;; version = 1 - version) {
        Show(version);
        SaveSheet(kSave);
    }
}

void Cuts::SaveTenTimes() {
    for (int i = 0; i < 10; ++i) {
        Show(i % kVersions);
        SaveSheet(kSave);
    }
}

// Returns how often the file was something else.
int Cuts::Kill(int times, unsigned seed) {
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    std::mt19937 random(seed);
    int whole = 0, cut = 0, empty = 0, wrong = 0;
    for (int i = 0; i < times; ++i) {
        files_.OpenForWriting(sheet_)->Replace(saved_[0]);
        const pid_t child = fork();
        if (child == 0) SaveForEver();
        std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution<int>(2000, 40000)(random)));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string found = files_.ReadAll(sheet_);
        const bool is_whole = found == saved_[0] || found == saved_[1];
        const bool is_cut = saved_[0].starts_with(found) || saved_[1].starts_with(found);
        const bool is_backed_up = files_.ReadAll(folder_ + "/References/Back up files/Auto_back_up_(0).csv") == backed_up_;
        (is_whole ? whole : found.empty() ? empty : cut) += 1;
        if ((!is_whole && !is_cut) || !is_backed_up) ++wrong;
    }
    std::printf("%d kills: %d times a whole sheet, %d cut, %d empty, %d something else\n", times, whole, cut, empty, wrong);
    return wrong;
}
}  // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "save") {
        Cuts().SaveTenTimes();
        return 0;
    }
    const int kills = std::atoi(what.c_str());
    if (kills <= 0 || argc > 3) {
        std::fprintf(stderr, "usage: power_cut KILLS [SEED], or power_cut save\n");
        return 2;
    }
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : std::random_device()();
    return Cuts().Kill(kills, seed) == 0 ? 0 : 1;
}

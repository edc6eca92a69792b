// A process that saves and backs up a sheet again and again is killed at random moments. What lies on the disk then are saves and
// back-ups of its, all samples in each, and of them all one at the most is cut short: the one that was being written.
//     power_cut KILLS [SEED]    kills as many, a hundred or more: saves and back-ups must both be struck; status 0: all was so
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
#include <vector>

#include "events/program.h"
#include "files/back_up.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/headless/headless_services.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_file.h"
#include "windows/main_window.h"
#ifdef MARLBROOK_WITH_WINDOWS
#include "platform/qt/qt_files.h"
#endif

namespace {
constexpr int kSamples = 250;
constexpr int kVersions = 2;  // the two states of the sheet that are saved and backed up in turn
constexpr int kRing = 10;     // back-ups beside the master

// A file that the process writes, and what may lie in it.
struct Written {
    std::string path;
    std::array<std::string, kVersions> whole;
    int cut = 0, empty = 0;  // how often it was found so
};

class Cuts {
public:
    Cuts();
    ~Cuts() { std::filesystem::remove_all(folder_); }
    Cuts(const Cuts&) = delete;
    Cuts& operator=(const Cuts&) = delete;

    void SaveTenTimes();
    bool Kill(int times, unsigned seed);

private:
    void Show(int version);
    void WriteForEver();
    bool BackUpsHoldAll() const;
    bool Look(Written& file, int& cut_at_once);
    bool Report(int times, int wrong) const;

    const std::string folder_ = PathText(std::filesystem::temp_directory_path()) + "/marlbrook_cuts_" + std::to_string(getpid());
    const std::string sheet_ = folder_ + "/core.csv";
    HeadlessServices services_{folder_};
#ifdef MARLBROOK_WITH_WINDOWS
    QtFiles files_;  // those of the desktop program
#else
    DiskFiles files_;
#endif
    std::vector<Written> written_;  // the sheet, the master, the ring
};

// A sheet of the largest size is open, saved, and has all its back-ups.
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
    const std::string back_ups = folder_ + "/References/Back up files/";
    const std::string master = files_.ReadAll(back_ups + "Master_back_up.csv");
    std::array<std::string, kVersions> saved, backed_up;
    for (std::size_t version = 0; version < kVersions; ++version) {
        Show(static_cast<int>(version));
        SaveSheet(kSave);
        saved[version] = files_.ReadAll(sheet_);
        for (int i = 0; i < kRing; ++i) BackUpSheet();
        backed_up[version] = files_.ReadAll(back_ups + "Auto_back_up_(0).csv");
    }
    written_ = {{sheet_, saved}, {back_ups + "Master_back_up.csv", {master, master}}};
    for (int i = 0; i < kRing; ++i) written_.push_back({back_ups + "Auto_back_up_(" + std::to_string(i) + ").csv", backed_up});
}

// The second is the longer one, in nearly every row.
void Cuts::Show(int version) {
    for (int slot = 2; slot <= kSlots; ++slot) frmMain.Text2[slot].SetText(version == 0 ? "0" : "100");
}

void Cuts::WriteForEver() {
    alarm(60);  // should the parent die
    for (int version = 0;; version = 1 - version) {
        Show(version);
        SaveSheet(kSave);
        BackUpSheet();
    }
}

void Cuts::SaveTenTimes() {
    for (int i = 0; i < 10; ++i) {
        Show(i % kVersions);
        SaveSheet(kSave);
    }
}

// Returns false if something else lies there than a whole file or the beginning of one. What is cut is whole again for the next process.
bool Cuts::Look(Written& file, int& cut_at_once) {
    const std::string found = files_.ReadAll(file.path);
    if (found == file.whole[0] || found == file.whole[1]) return true;
    ++cut_at_once;
    (found.empty() ? file.empty : file.cut) += 1;
    files_.OpenForWriting(file.path)->Replace(file.whole[0]);
    return file.whole[0].starts_with(found) || file.whole[1].starts_with(found);
}

// From the second line on, a back-up is what a save is, but for the sums at its end.
bool Cuts::BackUpsHoldAll() const {
    for (std::size_t version = 0; version < kVersions; ++version) {
        const std::string& saved = written_.front().whole[version];
        const std::string& backed_up = written_.back().whole[version];
        const std::size_t end = backed_up.find("\r\n");
        if (end == std::string::npos || !saved.substr(saved.find("\r\n")).starts_with(backed_up.substr(end))) return false;
    }
    return true;
}

// True if all was so.
bool Cuts::Kill(int times, unsigned seed) {
    if (!BackUpsHoldAll()) {
        std::printf("the back-ups hold something else than the sheet\n");
        return false;
    }
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    std::mt19937 random(seed);
    int wrong = 0;
    for (int i = 0; i < times; ++i) {
        const pid_t child = fork();
        if (child == 0) WriteForEver();
        std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution<int>(2000, 40000)(random)));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        int cut_at_once = 0;
        bool is_right = true;
        for (Written& file : written_) is_right = Look(file, cut_at_once) && is_right;
        if (!is_right || cut_at_once > 1) ++wrong;
    }
    return Report(times, wrong);
}

bool Cuts::Report(int times, int wrong) const {
    const Written& sheet = written_.front();
    int cut = 0, empty = 0;  // of the back-ups
    for (std::size_t i = 1; i < written_.size(); ++i) {
        cut += written_[i].cut;
        empty += written_[i].empty;
    }
    std::printf("%d kills: the sheet %d times cut, %d empty; a back-up %d times cut, %d empty; %d times two at once or something else\n",
                times, sheet.cut, sheet.empty, cut, empty, wrong);
    if (sheet.cut + sheet.empty > 0 && cut + empty > 0) return wrong == 0;
    std::printf("too few kills: they did not strike both saves and back-ups\n");
    return false;
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
    return Cuts().Kill(kills, seed) ? 0 : 1;
}

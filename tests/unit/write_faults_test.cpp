// Every file that the program writes, on disks that fill at any byte, files that cannot be opened and folders that are gone: what is in
// memory stays, the user is told or not as for that file, and the next write to a good place writes everything.
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <random>
#include <sstream>

#include "diagram/cluster_tree.h"
#include "drive/look_commands.h"
#include "drive/names.h"
#include "drive/script.h"
#include "files/back_up.h"
#include "files/exports.h"
#include "files/save_sheet.h"
#include "keys/first_run.h"
#include "keys/key_dialog_ok.h"
#include "keys/settings/key_settings.h"
#include "platform/user.h"
#include "session/start_up.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"

namespace {
namespace fs = std::filesystem;
constexpr std::int16_t kMaster = 99;
constexpr std::int16_t kRingFile = 4;
constexpr std::size_t kLookAllOver = 175;  // bytes from one comparison of all that is in memory to the next: it takes long

// By hand (MARLBROOK_THOROUGH=1): no byte is passed over and everything is compared at each.
bool IsThorough() {
    return std::getenv("MARLBROOK_THOROUGH") != nullptr;
}

void BackUpMaster() {
    BackupSlot = kMaster;
    BackUpSheet();
}

void BackUpIntoRing() {
    BackupSlot = kRingFile - 1;
    BackUpSheet();
}

enum class Target { SheetPath, Dialog, Master, RingFile };

struct Writer {
    const char* name;
    void (*write)();
    Target target;
    bool is_save;  // the user is told of its failure; any other is silent
    int step = 1;  // bytes from one fault to the next: more where the same lines of code write as above
};
constexpr Writer kWriters[] = {
    {"Save", [] { SaveSheet(kSave); }, Target::SheetPath, true},
    {"SaveOfACleanSheet", [] { SaveSheet(kSaveClean); }, Target::SheetPath, true, 7},
    {"SaveAs", [] { SaveSheet(kSaveAs); }, Target::Dialog, true, 7},
    {"SaveCopy", [] { SaveSheet(kSaveCopy); }, Target::Dialog, true, 7},
    {"PercentTable", [] { SavePercentTable(0); }, Target::Dialog, true},
    {"PercentTableOfSubtotal1", [] { SavePercentTable(1); }, Target::Dialog, true, 7},
    {"PercentTableOfSubtotal2", [] { SavePercentTable(2); }, Target::Dialog, true, 7},
    {"Template", CreateTemplate, Target::Dialog, false},
    {"History", SaveHistory, Target::Dialog, false},
    {"MergeList", SaveMergeList, Target::Dialog, false},
    {"MasterBackUp", BackUpMaster, Target::Master, false},
    {"BackUpOfTheRing", BackUpIntoRing, Target::RingFile, false},
};

std::string SheetInMemory() {
    std::ostringstream out;
    drive::DumpSheet(out, [](const std::string& name) { return drive::OnOneLine(drive::ValueOf(name)); });
    return out.str();
}

std::string MainWindowOnShow() {
    std::ostringstream out;
    drive::DumpWindow(out, frmMain, [](const std::string& name) { return drive::OnOneLine(drive::ValueOf(name)); });
    return out.str();
}

void PrintTo(const Writer& writer, std::ostream* out) {
    *out << writer.name;
}

// Two samples were counted and saved, and the diagram with its tree is open.
class WriteFaultsTest : public SheetTest, public testing::WithParamInterface<Writer> {
protected:
    WriteFaultsTest() {
        Begin("10");
        KeyNumber(1, 3);
        NextSample("20");
        KeyNumber(1);
        KeyNumber(2, 2);
        SaveAs(folder_ + "/Mere.csv");
        ClickControl(frmMain.mnuBar);
        ClickControl(frmDiagram.nmuConiss);
    }

    std::string Path() const {
        const std::string back_ups = ProgramFile("References/Back up files/");
        switch (GetParam().target) {
            case Target::SheetPath:
                return SheetPath;
            case Target::Dialog:
                return folder_ + "/other.csv";
            case Target::Master:
                return back_ups + "Master_back_up.csv";
            default:
                return back_ups + "Auto_back_up_(4).csv";
        }
    }
    void Write() {
        if (GetParam().target == Target::Dialog) AnswerDialog(Path());
        services_.messages.shown.clear();
        Played();
        GetParam().write();
    }
    // What one success has brought about (the stamp of the note, the line in the history) is no matter for the failures after it.
    void WriteOnceWell() {
        Write();
        ASSERT_EQ(MessageCount(), 0u);
        whole_ = files_.bytes[Path()];
        ASSERT_GT(whole_.size(), 20u);
        SaveOutcome = GetParam().is_save ? 2 : 0;  // as after the failures to come
        if (GetParam().target == Target::Master) BackupSlot = kMaster;
        if (GetParam().is_save) HistoryLog.pop_back(), --HistoryCount;
        sheet_ = SheetInMemory();
    }
    void ExpectFailure(const std::string& where) {
        ASSERT_EQ(Counts[1][1] * 100 + Counts[1][2] * 10 + Counts[2][2], 312) << where;
        ASSERT_EQ(SaveOutcome, GetParam().is_save ? 2 : 0) << where;
        ASSERT_FALSE(frmMain.ProgressBar1.Visible()) << where;
        ASSERT_EQ(frmMain.ProgressBar1.Value(), 0) << where;
        ASSERT_EQ(MousePointer, kPointerDefault) << where;
        ASSERT_FALSE(services_.host.ended) << where;
        ASSERT_EQ(Played(), GetParam().is_save ? Texts{"Beep"} : Texts{}) << where;
        ASSERT_EQ(MessageCount(), GetParam().is_save ? 1u : 0u) << where;
        if (!GetParam().is_save) return;
        ASSERT_EQ(LastMessage().title, "Error");
        ASSERT_EQ(LastMessage().text, "The file is being used by another software. Please close the file and try again.");
        ASSERT_EQ(LastMessage().icon, Icon::Exclamation);
    }
    void ExpectTheNextWriteToBeWhole(const std::string& where) {
        const auto history = HistoryLog;
        Write();
        ASSERT_EQ(MessageCount(), 0u) << where;
        ASSERT_EQ(files_.bytes[Path()], whole_) << where;
        if (GetParam().target == Target::Master) BackupSlot = kMaster;
        HistoryLog = history;
        HistoryCount = static_cast<std::int16_t>(history.size() - 1);
    }

    std::string folder_ = "/sheets";
    std::string whole_;
    std::string sheet_;
};

TEST_P(WriteFaultsTest, ADiskThatFillsLosesNothingWhereverItStrikes) {
    WriteOnceWell();
    auto expected = files_.bytes;
    const std::size_t header = whole_.find("\r\n", whole_.find("\r\n") + 2) + 2;
    const std::size_t step = IsThorough() ? 1 : GetParam().step;
    for (std::size_t room = 0; room < whole_.size() && !HasFatalFailure(); room += step) {
        const std::string where = std::to_string(room) + " bytes";
        files_.room[Path()] = room;
        if (GetParam().is_save) SaveOutcome = 0;
        frmMain.Command5[0].SetEnabled(true);
        Write();
        ExpectFailure(where);
        ASSERT_EQ(frmMain.Command5[0].Enabled(), !GetParam().is_save || room < header) << where << ": the mark of a changed sheet";
        expected[Path()] = whole_.substr(0, room);
        ASSERT_EQ(files_.bytes, expected) << where << ": no other file has changed";
        if (room % kLookAllOver != 0 && !IsThorough()) continue;
        ASSERT_EQ(SheetInMemory(), sheet_) << where;
        files_.room.clear();
        ExpectTheNextWriteToBeWhole(where);
    }
}

TEST_P(WriteFaultsTest, AFileThatCannotBeOpenedKeepsItsBytesAndTheWindowStays) {
    WriteOnceWell();
    frmMain.Command5[0].SetEnabled(true);
    const auto files = files_.bytes;
    const std::string window = MainWindowOnShow();
    files_.locked.insert(Path());
    Write();
    ExpectFailure("locked");
    EXPECT_EQ(SheetInMemory(), sheet_);
    EXPECT_EQ(files_.bytes, files);
    EXPECT_EQ(MainWindowOnShow(), window);
    files_.locked.clear();
    ExpectTheNextWriteToBeWhole("unlocked");
}

// The disk itself refuses: the folder is gone, the device is full, a folder bears the name of the file.
TEST_P(WriteFaultsTest, ARealDiskThatRefusesIsTheSameToTheUser) {
    WriteOnceWell();
    services.files = &services_.disk;
    const fs::path root = fs::path(testing::TempDir()) / ("faults " + std::to_string(std::random_device()()));
    services_.host.folder = folder_ = PathText(root);
    SheetPath = PathText(root / "Mere.csv");
    sheet_ = SheetInMemory();
    Write();
    ExpectFailure("no folder");
    EXPECT_FALSE(fs::exists(root)) << "nothing makes the folder";

    const fs::path file = DiskPath(Path());
    fs::create_directories(file.parent_path());
#ifdef _WIN32
    const std::vector<bool> kinds{false};  // there is no device that is always full
#else
    const std::vector<bool> kinds{true, false};
#endif
    for (const bool full : kinds) {
        if (full)
            fs::create_symlink("/dev/full", file);
        else
            fs::create_directory(file);
        Write();
        ExpectFailure(full ? "full" : "a folder");
        EXPECT_EQ(fs::is_directory(file), !full);
        fs::remove(file);
    }
    Write();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(fs::file_size(file), services_.disk.ReadAll(Path()).size());
    EXPECT_GT(fs::file_size(file), 20u);
    fs::remove_all(root);
}

INSTANTIATE_TEST_SUITE_P(Of, WriteFaultsTest, testing::ValuesIn(kWriters),
                         [](const testing::TestParamInfo<Writer>& info) { return info.param.name; });

// The alarm rings and the count goes on, whether its back-up finds a place or not.
TEST_F(SheetTest, AnAlarmWhoseBackUpHasNoFolderCountsOn) {
    Begin("10");
    services.files = &services_.disk;  // which has no /program
    Played();
    KeyNumber(1, 101);
    const Texts played = Played();
    EXPECT_EQ(played[99], "WaveAlarm");
    EXPECT_EQ(played[100], "WaveKey1");
    EXPECT_EQ(Counts[1][1], 101);
    EXPECT_EQ(BackupSlot, kMaster) << "the next alarm tries again";
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_FALSE(services_.host.ended);
}

constexpr const char* kSettings = "/program/References/KeySetting.csv";

class SettingsFaultsTest : public SheetTest {
protected:
    SettingsFaultsTest() {
        Begin("10");
        KeyNumber(1, 3);
        SaveAs("/sheets/Mere.csv");
        KeyNumber(1);
        sheet_ = SheetInMemory();
        files_before_ = files_.bytes;
    }
    void OpenDialog() { ClickControl(frmMain.mnuKeyCodeReader); }
    void OpenInitial() { ClickControl(frmMain.mnuInitial); }
    // No window takes such a failure: the program says its word and ends, and no other file has changed.
    void ExpectTheEnd(const std::function<void()>& accept, const std::string& settings, const std::string& where) {
        services_.host.failure.clear();
        Played();
        RunEvent(accept);
        ASSERT_EQ(services_.host.failure, "File error") << where;
        ASSERT_EQ(MessageCount(), 0u) << where;
        ASSERT_EQ(Played(), Texts{}) << where;
        ASSERT_EQ(SheetInMemory(), sheet_) << where;
        files_before_[kSettings] = settings;
        ASSERT_EQ(files_.bytes, files_before_) << where;
    }
    void ExpectTheEndWhereverTheDiskIsFull(const std::function<void()>& open, void (*accept)()) {
        open();
        accept();
        const std::string whole = files_.bytes[kSettings];
        open();
        for (std::size_t room = 0; room < whole.size() && !HasFatalFailure(); ++room) {
            files_.room[kSettings] = room;
            ExpectTheEnd(accept, whole.substr(0, room), std::to_string(room) + " bytes");
        }
        files_.room.clear();
        files_.locked.insert(kSettings);
        ExpectTheEnd(accept, whole.substr(0, whole.size() - 1), "locked");
        files_.locked.clear();
        accept();
        EXPECT_EQ(files_.bytes[kSettings], whole);
    }

    std::string sheet_;
    std::map<std::string, std::string> files_before_;
};

TEST_F(SettingsFaultsTest, OkInTheKeySettingsEndsTheProgramWhereverTheDiskIsFull) {
    ExpectTheEndWhereverTheDiskIsFull([this] { OpenDialog(); }, AcceptKeySettings);
}

TEST_F(SettingsFaultsTest, OkInTheFirstRunEndsTheProgramWhereverTheDiskIsFull) {
    ExpectTheEndWhereverTheDiskIsFull([this] { OpenInitial(); }, AcceptNamedKeys);
}

// What a full disk has left of the settings is told at the next start, and the built-in keys count; or nothing that matters is missing.
TEST_F(SettingsFaultsTest, SettingsCutAnywhereStillLeaveAProgramThatCounts) {
    const std::string whole = files_.bytes[kSettings];
    const std::string definition = KeySettings[45][kKeyDefinition].Text();
    constexpr int kFirstBuiltInKey = 81;
    for (std::size_t length = 0; length <= whole.size(); length += length + 20 < whole.size() ? 3 : 1) {
        files_.bytes[kSettings] = whole.substr(0, length);
        services_.messages.shown.clear();
        KeySettingsLoaded = false;
        LoadMainWindow(frmMain);
        if (KeySettingsLoaded) {
            ASSERT_EQ(MessageCount(), 0u) << length;
            ASSERT_GE(length, whole.size() - 5) << "the last cell and its line end";
        } else {
            ASSERT_EQ(MessageCount(), 1u) << length;
            ASSERT_TRUE(LastMessage().text.starts_with("Marlbrook could not find reference file(s).")) << length;
            ASSERT_EQ(ActiveWindow(), &frmInitial) << length;
            CloseWindow(frmInitial);
        }
        ASSERT_EQ(ActiveWindow(), &frmMain) << length;
        Key(kFirstBuiltInKey);
        ASSERT_EQ(Counts[1][1], 1) << length;
        frmMain.Combo1.Clear();
    }
    EXPECT_EQ(KeySettings[45][kKeyDefinition].Text(), definition);
}
}  // namespace

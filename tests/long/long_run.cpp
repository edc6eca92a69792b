// Months of counting in minutes: keys, undo, reverse counts, other samples, next samples, saves, saves that fail, openings and new sheets
// in random order, with a plain second count beside the program's. Back-ups are read as they are made; after each thousand keys all that
// the program holds, shows and has written is compared with the second count:
//     long_run KEYS [SEED]
// Status 0: all was so. The last lines tell the memory and the time that it took.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "events/program.h"
#include "long/memory_in_use.h"
#include "long/second_count.h"
#include "platform/headless/headless_services.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/memory_files.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr int kShift1 = 186, kShift2 = 80, kUndoKey = 8, kSaveKey = 187, kFirstKey = 81;  // as the installed key settings have them
constexpr int kHistoryLimit = 31000;  // HistoryCount has 16 bits: a new sheet in good time
constexpr std::size_t kUndoSteps = kUndoDepth + 1;

struct Step {
    int serial;  // of the sample that it was counted in
    int slot;
    int count;  // 1, or -1 for a reverse count
};

// The list on the screen keeps the lines of earlier sheets; the log starts again with each.
std::size_t BytesOfHistory() {
    return BytesOf(frmMain.Combo1.List()) + BytesOf(HistoryLog);
}

class LongRun {
public:
    LongRun(int keys, unsigned seed) : keys_(keys), seed_(seed), random_(seed) { LayDownProgram(); }
    ~LongRun() { std::filesystem::remove_all(folder_); }
    LongRun(const LongRun&) = delete;
    LongRun& operator=(const LongRun&) = delete;

    void Run();

private:
    void LayDownProgram();
    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }
    void Check(bool holds, const std::string& what) const;

    void BeginFirstSheet();
    void BeginNextSheet();
    void TakeUpSheet();
    void NameSample(const std::string& name);
    void Act();
    void CountKey(int step);
    void UndoKey();
    void ChangeSample();
    void NextSample();
    void AskToSave();
    void Save();
    void FailToSave();
    void Open(const std::string& path);

    Sample& Shown() { return sheet_.samples[shown_]; }
    std::size_t PlaceOf(int serial) const;
    void ExpectBackUp();
    void ExpectLine(const std::string& line);
    void CompareShown();
    void CompareSheet(const Sheet& sheet);
    void CompareUndo();
    void CompareState();
    void CompareAll();
    void OpenBackUpAndComeBack();
    void CompareMemory();
    void Report();

    const int keys_;
    const unsigned seed_;
    std::mt19937 random_;
    const std::string folder_ =
        PathText(std::filesystem::temp_directory_path()) + "/marlbrook_long_" + std::to_string(std::random_device()());
    HeadlessServices services_{folder_};

    Sheet sheet_;
    std::size_t shown_ = 0;
    std::deque<Step> undo_;
    std::size_t lines_ = 0;  // of the history
    bool armed_ = true;      // the alarm
    bool warn_ = true;       // about an old sample
    Sheet backed_up_;
    std::string back_up_path_;
    int back_ups_ = 0;

    int pressed_ = 0, sheets_ = 0, saves_ = 0, failed_saves_ = 0, alarms_ = 0, openings_ = 0, samples_ = 0;
    std::size_t deepest_undo_ = 0;
    std::ptrdiff_t bytes_at_first_sheet_ = 0, largest_rest_ = 0;
    std::size_t most_room_ = 0;  // for samples, in the sheet and its last back-up together
    int keys_at_last_line_ = 0, next_rate_ = 0, history_limit_ = 0;
    bool numeric_names_ = true;
    std::chrono::steady_clock::time_point last_line_ = std::chrono::steady_clock::now();
};

void LongRun::LayDownProgram() {
    std::filesystem::create_directories(folder_ + "/References/Back up files");
    std::filesystem::create_directories(folder_ + "/Sound files");
    MemoryFiles files;
    files.LayDownProgram(folder_);
    for (const auto& [path, bytes] : files.bytes) services_.disk.OpenForWriting(path)->Replace(bytes);
}

void LongRun::Check(bool holds, const std::string& what) const {
    if (holds) return;
    std::fprintf(stderr, "long_run: seed %u, after %d keys: not so: %s\n", seed_, pressed_, what.c_str());
    std::exit(1);
}

std::size_t LongRun::PlaceOf(int serial) const {
    const auto found =
        std::find_if(sheet_.samples.begin(), sheet_.samples.end(), [=](const Sample& each) { return each.serial == serial; });
    return static_cast<std::size_t>(found - sheet_.samples.begin());
}

void LongRun::ExpectLine(const std::string& line) {
    ++lines_;
    Check(HistoryLog.back() == line, "the history ends in " + line + ", not in " + HistoryLog.back());
}

// ---- What the analyst does ----

void LongRun::NameSample(const std::string& name) {
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, name);
    ClickControl(frmNext.Command1);
}

void LongRun::BeginFirstSheet() {
    StartProgram();
    ClickControl(frmNext.Command4);
    NameSample("1000");
    TakeUpSheet();
}

// A sheet of the menu waits for its name until the first Next sample.
void LongRun::BeginNextSheet() {
    services_.messages.answers.push_back(Answer::Yes);
    ClickControl(frmMain.mnuNew);
    PressKey(kFirstKey);
    ReleaseKey(kFirstKey);
    ClickControl(frmMain.Command5[1]);
    NameSample("1000");
    armed_ = true;
    warn_ = false;
    TakeUpSheet();
}

// Saved and opened again, the sheet has nothing to undo.
void LongRun::TakeUpSheet() {
    ++sheets_;
    next_rate_ = 2 + Below(12);
    history_limit_ = 1000 + Below(kHistoryLimit);
    numeric_names_ = Below(3) != 0;
    for (int slot = 1; slot <= kSlots; ++slot)
        for (const int subtotal : {1, 2}) TaxonTable[slot][kSubtotalFlags[subtotal - 1]] = InSubtotal(slot, subtotal);
    sheet_ = Sheet{folder_ + "/sheet " + std::to_string(sheets_ % 3) + ".csv", "", {Sample()}};
    shown_ = 0;
    Shown().name = "1000";
    Shown().note = "Created: 14/11/2026 (" + services_.clock.time + ")\r\nNote: ";
    services_.dialogs.answers.push_back(sheet_.path);
    Save();
    Open(sheet_.path);
    lines_ = HistoryLog.size();
}

void LongRun::CountKey(int step) {
    const int key = 1 + Below(kKeys);
    const int level = Below(4) == 0 ? 1 + Below(2) : 0;
    const int code = static_cast<int>(KeySettings[key][kKeyCode].Number());
    const bool asks = warn_ && Shown().serial != static_cast<int>(sheet_.samples.size());
    if (asks) services_.messages.answers.push_back(Answer::Yes);
    if (step < 0) PressKey(kUndoKey);
    if (level > 0) PressKey(kShift1);
    if (level > 1) PressKey(kShift2);
    const std::size_t boxes = services_.messages.shown.size();
    services_.sounds.played.clear();
    PressKey(code);
    Check(services_.messages.shown.size() == boxes + asks, "only a key on an old sample asks");
    const int slot = key + level * kKeys;
    Shown().counts[slot] += step;
    undo_.push_front({Shown().serial, slot, step});
    if (undo_.size() > kUndoSteps) undo_.pop_back();
    deepest_undo_ = std::max(deepest_undo_, undo_.size());
    ExpectLine((step < 0 ? "(Amend) " : "") + std::to_string(slot) + ": ---");
    const int total = TotalOf(Shown());
    const bool full_hundred = total != 0 && total % 100 == 0;
    if (!full_hundred && (total + 1) % 100 == 0) armed_ = true;
    const bool alarm = full_hundred && armed_;
    Check(services_.sounds.played.back() == (alarm        ? "WaveAlarm"
                                             : step < 0   ? "WaveUndo"
                                             : level == 0 ? "WaveKey1"
                                             : level == 1 ? "WaveKey2"
                                                          : "WaveKey3"),
          "the sound of the key");
    if (alarm) ExpectBackUp();
    if (alarm)
        armed_ = false;
    else if (step < 0)
        armed_ = true;
    warn_ = false;
    ReleaseKey(code);
    if (level > 1) ReleaseKey(kShift2);
    if (level > 0) ReleaseKey(kShift1);
    if (step < 0) ReleaseKey(kUndoKey);
}

void LongRun::ExpectBackUp() {
    ++alarms_;
    back_up_path_ = folder_ + "/References/Back up files/" +
                    (back_ups_ == 0 ? "Master_back_up.csv" : "Auto_back_up_(" + std::to_string((back_ups_ - 1) % 10) + ").csv");
    ++back_ups_;
    backed_up_ = sheet_;
    backed_up_.time = services_.clock.time;
    Check(services_.disk.ReadAll(back_up_path_) == BackUpOf(backed_up_), "the back-up of the alarm holds the sheet");
}

void LongRun::UndoKey() {
    PressKey(kUndoKey);
    ReleaseKey(kUndoKey);
    armed_ = true;
    if (undo_.empty()) return;
    const Step step = undo_.front();
    undo_.pop_front();
    if (step.serial != Shown().serial) {
        shown_ = PlaceOf(step.serial);
        Check(HistoryLog[HistoryLog.size() - 2] == "(Change sample: " + Shown().name + ")", "undo goes to its sample");
        ++lines_;
    }
    Shown().counts[step.slot] -= step.count;
    ExpectLine((step.count < 0 ? "(Undo-amend) " : "(Undo) ") + std::to_string(step.slot) + ": ---");
}

void LongRun::ChangeSample() {
    shown_ = static_cast<std::size_t>(Below(static_cast<int>(sheet_.samples.size())));
    ChooseItem(frmMain.Combo2, static_cast<int>(shown_));
    warn_ = true;
    ExpectLine("(Change sample: " + Shown().name + ")");
}

void LongRun::NextSample() {
    if (sheet_.samples.size() == kSampleLimit || !frmMain.Command5[1].Enabled()) return;
    ++samples_;
    Sample sample;
    for (const Sample& each : sheet_.samples) sample.serial = std::max(sample.serial, each.serial + 1);
    const int depth = 1001 + Below(20) * 1000 + sample.serial;  // above or below the others, and never one of them
    sample.name = (numeric_names_ ? "" : depth % 2 == 0 ? "Core " : "Köln ") + std::to_string(depth);
    sample.note = "Created: 14/11/2026 (" + services_.clock.time + ")\r\nNote: ";
    ClickControl(frmMain.Command5[1]);
    NameSample(sample.name);
    shown_ = sheet_.samples.size();
    while (numeric_names_ && shown_ > 0 && std::stoi(sheet_.samples[shown_ - 1].name) > depth) --shown_;
    sheet_.samples.insert(sheet_.samples.begin() + static_cast<std::ptrdiff_t>(shown_), sample);
    ++lines_;  // a new sample stands twice in the log
    ExpectLine("(New sample: " + sample.name + ")");
}

// By the button or the key, at some time of the day.
void LongRun::AskToSave() {
    char time[] = "00:00:00";
    std::snprintf(time, sizeof time, "%02d:%02d:%02d", Below(24), Below(60), Below(60));
    services_.clock.time = time;
    if (Below(2) == 0 && frmMain.Command5[0].Enabled()) {
        ClickControl(frmMain.Command5[0]);
    } else {
        PressKey(kSaveKey);
        ReleaseKey(kSaveKey);
    }
}

// The last line of a note, made anew at each save that gets as far as the notes.
void StampNote(Sample& sample, const std::string& time) {
    const std::size_t stamp = sample.note.find("\r\nLast saved: ");
    sample.note = sample.note.substr(0, stamp) + "\r\nLast saved: 14/11/2026 (" + time + ")";
}

void LongRun::Save() {
    ++saves_;
    AskToSave();
    StampNote(Shown(), services_.clock.time);
    sheet_.time = services_.clock.time;
    ExpectLine("(Save)");
    Check(SaveOutcome == 0 && services_.disk.ReadAll(sheet_.path) == FileOf(sheet_), "the file holds the sheet");
}

// Another program holds the file, its disk is full, or becomes so in the middle; then there is room again.
void LongRun::FailToSave() {
    ++failed_saves_;
    const int what = Below(3);
    if (what == 0)
        services_.files.Lock(sheet_.path);
    else
        services_.files.Limit(sheet_.path, what == 1 ? 0 : services_.disk.ReadAll(sheet_.path).size() / 2);
    const bool was_changed = frmMain.Command5[0].Enabled();
    const std::size_t boxes = services_.messages.shown.size();
    AskToSave();
    if (what != 0) StampNote(Shown(), services_.clock.time);  // the rows are made before the disk is asked to take them
    Check(SaveOutcome == 2 && services_.sounds.played.back() == "Beep" && services_.messages.shown.size() == boxes + 1 &&
              services_.messages.shown.back().title == "Error",
          "a save that fails says so, once");
    Check(frmMain.Command5[0].Enabled() == (was_changed && what != 2), "the Save button is off once a disk took part of the sheet");
    CompareState();
    SaveOutcome = 0;  // a good save leaves it as it is
    services_.files.Unlock(sheet_.path);
    services_.files.LiftLimit(sheet_.path);
    Save();
}

void LongRun::Open(const std::string& path) {
    ++openings_;
    if (!SheetClean) services_.messages.answers.push_back(Answer::Yes);
    services_.dialogs.answers.push_back(path);
    ClickControl(frmMain.Command4[0]);
    ExpectLine("(Open) " + path);
    ++back_ups_;
    undo_.clear();
    shown_ = static_cast<std::size_t>(SampleCount - 1);
}

void LongRun::Act() {
    if (HistoryCount > history_limit_) BeginNextSheet();
    const int what = Below(1000);
    if (what < 5) {
        Save();
    } else if (what < 7) {
        FailToSave();
    } else if (what < 11) {
        ChangeSample();
    } else if (what < 11 + next_rate_) {
        NextSample();
    } else {
        ++pressed_;
        if (what < 100)
            UndoKey();
        else
            CountKey(what < 150 ? -1 : 1);
    }
}

// ---- What must be so ----

void LongRun::CompareShown() {
    const Sample& sample = Shown();
    Check(CurrentSample == static_cast<int>(shown_) + 1 && frmMain.Combo2.Text() == sample.name, "the sample on show");
    for (int slot = 1; slot <= kSlots; ++slot) {
        Check(frmMain.Text2[slot].Text() == std::to_string(sample.counts[slot]), "cell " + std::to_string(slot) + " shows its count");
        Check(slot == LastSlot || frmMain.Text1[slot].Bold() == (sample.counts[slot] != 0), "bold is what was counted");
    }
    Check(AllTotal == TotalOf(sample) && frmMain.Text3[0].Text() == std::to_string(AllTotal), "the total");
    for (const int subtotal : {1, 2})
        Check(frmMain.Text3[subtotal].Text() == std::to_string(SubtotalOf(sample, subtotal)), "subtotal " + std::to_string(subtotal));
    Check(frmMain.Text4.Text() == sample.note, "the note on show");
    int largest = 0;
    for (const Sample& each : sheet_.samples) largest = std::max(largest, each.serial);
    Check(frmMain.Label4.Caption() == std::to_string(sample.serial) + "/" + std::to_string(largest), "the serial on show");
}

void LongRun::CompareSheet(const Sheet& sheet) {
    Check(SampleCount == static_cast<int>(sheet.samples.size()), "the number of samples");
    for (int j = 1; j <= SampleCount; ++j) {
        const Sample& sample = sheet.samples[static_cast<std::size_t>(j - 1)];
        Check(SampleTable[kSampleSerial][j] == sample.serial && SampleTable[kSampleName][j] == sample.name && SampleNotes[j] == sample.note,
              "name, serial and note of sample " + std::to_string(j));
        for (int slot = 1; slot <= kSlots; ++slot) Check(Counts[slot][j] == sample.counts[slot], "the counts of " + sample.name);
    }
}

void LongRun::CompareUndo() {
    for (std::size_t i = 0; i < kUndoSteps; ++i) {
        const auto& [column, slot] = UndoList[i];
        if (i >= undo_.size())
            Check(slot == 0, "there is no more to undo than was counted");
        else
            Check(slot == undo_[i].slot * undo_[i].count && sheet_.samples[static_cast<std::size_t>(column - 1)].serial == undo_[i].serial,
                  "step " + std::to_string(i) + " of what can be undone");
    }
}

void LongRun::CompareState() {
    CompareShown();
    CompareSheet(sheet_);
    CompareUndo();
    Check(HistoryLog.size() == lines_ && HistoryCount == static_cast<int>(lines_) - 1, "the history has what was added");
}

void LongRun::CompareAll() {
    CompareState();
    Check(SheetPath == sheet_.path && !services_.host.ended && services_.host.failure.empty(), "the program goes on with its file");
    Check(services_.messages.unanswered.empty() && services_.dialogs.unanswered.empty() && services_.messages.answers.empty(),
          "every question was expected");
    Save();
    services_.messages.shown.clear();
    services_.dialogs.asked.clear();
}

void LongRun::OpenBackUpAndComeBack() {
    if (back_up_path_.empty() || services_.disk.ReadAll(back_up_path_) != BackUpOf(backed_up_)) return;  // its turn has come again
    Open(back_up_path_);
    CompareSheet(backed_up_);
    Open(sheet_.path);
    CompareAll();
}

// All that a sheet held goes with it, but for room that the next one fills. What stays is the list of what was done.
void LongRun::CompareMemory() {
    constexpr std::ptrdiff_t kOfASample = 1300;  // bytes, in the program and in the second count
    constexpr std::ptrdiff_t kSlack = 250000;    // the curve of a large sample, the steps to undo, what the heap keeps back
    most_room_ = std::max(most_room_, sheet_.samples.capacity() + backed_up_.samples.capacity());
    const auto rest = static_cast<std::ptrdiff_t>(BytesInUse() - BytesOfHistory());  // the history is reckoned to a few bytes a line
    if (bytes_at_first_sheet_ == 0) bytes_at_first_sheet_ = rest;
    largest_rest_ = std::max(largest_rest_, rest);
    const std::ptrdiff_t most = bytes_at_first_sheet_ + kSlack + kOfASample * static_cast<std::ptrdiff_t>(most_room_);
    Check(rest <= most, "memory grows by the history alone: " + std::to_string(rest) + " bytes beside it, first " +
                            std::to_string(bytes_at_first_sheet_));
}

void LongRun::Report() {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    const auto now = std::chrono::steady_clock::now();
    std::printf("%8d keys: %5.1f MB in use, of it %5.1f MB history of %zu lines; %.3f ms a key with all checks\n", pressed_,
                static_cast<double>(BytesInUse()) / 1e6, static_cast<double>(BytesOfHistory()) / 1e6, frmMain.Combo1.List().size(),
                Milliseconds(now - last_line_).count() / std::max(pressed_ - keys_at_last_line_, 1));
    std::fflush(stdout);
    last_line_ = now;
    keys_at_last_line_ = pressed_;
}

void LongRun::Run() {
    std::printf("seed %u\n", seed_);
    std::fflush(stdout);
    BeginFirstSheet();
    const int line_every = std::max(keys_ / 10, 1000);
    for (int next_check = 1000; pressed_ < keys_;) {
        Act();
        if (pressed_ < next_check) continue;
        next_check += 1000;
        CompareAll();
        if (Below(4) == 0) OpenBackUpAndComeBack();
        CompareMemory();
        if (pressed_ / line_every != keys_at_last_line_ / line_every) Report();
    }
    CompareAll();
    std::printf("%d sheets, %d samples, %d saves, %d that failed, %d back-ups at alarms, %d openings; undo went up to %zu steps deep\n",
                sheets_, samples_, saves_, failed_saves_, alarms_, openings_, deepest_undo_);
    std::printf("beside the history: first %td bytes, at the most %td, with room for %zu samples in the second count\n",
                bytes_at_first_sheet_, largest_rest_, most_room_);
}
}  // namespace

int main(int argc, char** argv) {
    const int keys = argc > 1 ? std::atoi(argv[1]) : 0;
    if (keys <= 0 || argc > 3) {
        std::fprintf(stderr, "usage: long_run KEYS [SEED]\n");
        return 2;
    }
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : std::random_device()();
    LongRun(keys, seed).Run();
    return 0;
}

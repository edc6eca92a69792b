#include "files/rescue.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "files/back_up.h"
#include "files/sheet_on_screen.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kFolder = "References/Back up files";
constexpr int kNames = 99;
constexpr std::size_t kTimeLength = 21;  // "14/11/2026_(10:11:12)"

std::string NameOfCopy(int number) {
    return number == 1 ? "Rescue.csv" : "Rescue_(" + std::to_string(number) + ").csv";
}

std::string PathOf(const std::string& name) {
    return ProgramFile(std::string(kFolder) + "/" + name);
}

std::vector<std::string> PathsOfCopies() {
    std::vector<std::string> paths;
    for (int number = 1; number <= kNames; ++number) paths.push_back(PathOf(NameOfCopy(number)));
    return paths;
}

template <class T, std::size_t n>
void Copy(const T (&from)[n], T (&to)[n]) {
    if constexpr (std::is_array_v<T>)
        for (std::size_t i = 0; i < n; ++i) Copy(from[i], to[i]);
    else
        std::copy(from, from + n, to);
}

template <class T, std::size_t n>
void Move(T (&from)[n], T (&to)[n]) {
    if constexpr (std::is_array_v<T>)
        for (std::size_t i = 0; i < n; ++i) Move(from[i], to[i]);
    else
        std::move(from, from + n, to);
}

// Gives an array its content back at its end.
template <class Array>
class Untouched {
public:
    explicit Untouched(Array& array) : array_(array) { Copy(array, content_); }
    ~Untouched() { Move(content_, array_); }
    Untouched(const Untouched&) = delete;
    Untouched& operator=(const Untouched&) = delete;

private:
    Array& array_;
    Array content_;
};

class Gathered : public OutputFile {
public:
    std::string bytes;
    void Replace(std::string_view all) override { bytes = all; }
};

// The bytes of a back-up. Nothing of what it fills in stays. One cell that no file can hold must not cost all the others: the count that
// the sheet had before stands there, as where such a count is typed.
std::string BytesOfCopy() {
    const Untouched header(SheetHeader);
    const Untouched samples(SampleTable);
    const Untouched counts(Counts);
    const Untouched names(ParamHeader);
    const Untouched values(ParamValues);
    const Untouched notes(SampleNotes);
    Gathered file;
    StoreWhatFitsOfShownSample();
    WriteBackUp(file);
    return file.bytes;
}

// The copy without the cells that tell of the copy itself: path, label, date and time. These stand first, and the time is always as long.
std::string SheetOf(const std::string& copy) {
    const std::size_t label = copy.rfind(kBackUpLabel, copy.find("\r\n"));
    return copy.substr(label + std::strlen(kBackUpLabel) + std::strlen("\",\"") + kTimeLength);
}

// When the session that left this file wrote it: "14/11/2026 (10:11:12)". Nothing if it is no such copy, but a sheet that a user has saved
// under its name. The label is looked for from the end of the line: the path before it may hold quotation marks.
std::optional<std::string> TimeOfCopy(const std::string& path) {
    try {
        const std::string text = DecodeFile(services.files->ReadAll(path));
        const std::string label = std::string("\"") + kBackUpLabel + "\",\"";
        const std::size_t found = text.rfind(label, text.find("\r\n"));
        if (found == std::string::npos) return std::nullopt;
        std::string stamp = text.substr(found + label.size(), kTimeLength);
        if (stamp.size() != kTimeLength || stamp.find('"') != std::string::npos) return std::nullopt;
        std::replace(stamp.begin(), stamp.end(), '_', ' ');
        return stamp;
    } catch (const Failure&) {
        return std::nullopt;
    }
}

struct Left {
    std::string name;
    std::string time;
};

// "13/11/2026 (09:08:07)" as "20261113 (09:08:07)": the later one is the greater text.
std::string InOrder(const std::string& time) {
    return time.substr(6, 4) + time.substr(3, 2) + time.substr(0, 2) + time.substr(10);
}

// The latest first.
std::vector<Left> LeftCopies() {
    std::vector<Left> copies;
    for (int number = 1; number <= kNames; ++number)
        if (const auto time = TimeOfCopy(PathOf(NameOfCopy(number)))) copies.push_back({NameOfCopy(number), *time});
    std::stable_sort(copies.begin(), copies.end(), [](const Left& a, const Left& b) { return InOrder(a.time) > InOrder(b.time); });
    return copies;
}
}  // namespace

Rescue::Rescue(WholeFiles& disk, std::function<void()> try_again) : disk_(disk), try_again_(std::move(try_again)) {
    BeginAnew();
    SaveBegins.Calls([this](const std::string& path) { HearOfSaving(path); });
    SheetSaved.Calls([this] { HearOfSave(); });
    SaveFailed.Calls([this] { HearOfFailedSave(); });
    SheetCopied.Calls([this] { copied_ = SheetOf(BytesOfCopy()); });
    SheetGivenUp.Calls([this](bool is_asked) { HearOfGivingUp(is_asked); });
    SheetCleared.Calls([this] { HearOfClearing(); });
    SheetReplaced.Calls([this] { HearOfAnother(); });
    SheetReset.Calls([this] { HearOfReset(); });
}

Rescue::~Rescue() {
    SaveBegins.Calls({});
    SheetGivenUp.Calls({});
    for (Event<>* told : {&SheetSaved, &SaveFailed, &SheetCopied, &SheetCleared, &SheetReplaced, &SheetReset}) told->Calls({});
}

void Rescue::Offer() {
    const std::vector<Left> copies = LeftCopies();
    if (copies.empty()) return;
    const Left& last = copies.front();
    const std::string more = copies.size() > 1 ? ", and " + std::to_string(copies.size() - 1) + " more" : "";
    frmNext.TellOnStartFace(StartNews::LostSession,
                            "A session of " + last.time + " ended by itself: " + last.name + " in Back up files holds it" + more);
    frmMain.FileDialog.first_folder = ProgramFile(kFolder);
    told_ = PathOf(last.name);
}

void Rescue::Keep() {
    if (!safe_) return;
    const std::string copy = BytesOfCopy();
    const std::string sheet = SheetOf(copy);
    if (sheet == kept_ || (!has_copy_ && sheet == *safe_)) return;
    kept_ = sheet;
    has_copy_ = true;
    disk_.Write(copy_, copy, [this](bool done) {
        if (done) return;
        kept_.clear();
        try_again_();
    });
}

// What a write has failed to do may not have been told yet.
void Rescue::KeepNow() {
    disk_.Finish();
    kept_.clear();
    Keep();
    disk_.Finish();
}

void Rescue::EndByUser() {
    if (!Outlives()) Forget();
    disk_.Finish();
}

// If its user has chosen the copy itself for a file, it is no copy any longer. What is to be written over the sheet's own file may be a
// table: only a save that is told of brings the sheet back there.
void Rescue::HearOfSaving(const std::string& path) {
    disk_.Finish();
    if (disk_.AreSame(copy_->path, path)) BeginAnew();
    if (disk_.AreSame(SheetPath, path)) MarkInNoFile();
}

void Rescue::MarkInNoFile() {
    is_in_no_file_ = true;
    if (safe_) safe_ = "";
}

void Rescue::Forget() {
    disk_.Finish();
    if (!copy_->path.empty()) Remove(copy_->path);
    BeginAnew();
}

void Rescue::BeginAnew() {
    copy_ = std::make_shared<OwnName>(OwnName{PathsOfCopies(), ""});
    has_copy_ = false;
    kept_.clear();
}

void Rescue::Remove(const std::string& path) {
    disk_.Finish();
    if (TimeOfCopy(path) && !disk_.AreSame(path, SheetPath)) disk_.Remove(path);
}

void Rescue::SheetIsSafe() {
    Forget();
    is_in_no_file_ = is_unasked_ = false;
    safe_ = SheetOf(BytesOfCopy());
}

// The file that the sheet had may be cut, even if the sheet is what was saved there before.
void Rescue::HearOfFailedSave() {
    MarkInNoFile();
    Keep();
}

bool Rescue::IsSafe() const {
    return safe_ && SheetOf(BytesOfCopy()) == *safe_;
}

// The last moment to take in what was counted since the last copy.
void Rescue::HearOfGivingUp(bool is_asked) {
    is_unasked_ = !is_asked && !IsSafe() && SheetOf(BytesOfCopy()) != copied_;
    if (Outlives()) KeepNow();
}

// What was given up may have been so for the copy of it, which the dialog offers. So it stays in the copy until more is counted.
void Rescue::HearOfClearing() {
    if (!kept_.empty()) kept_ = SheetOf(BytesOfCopy());
}

void Rescue::HearOfAnother() {
    if (Outlives()) BeginAnew();
    TakeOpenedCopy();
    SheetIsSafe();
}

// A copy that is opened is the one that the next save makes superfluous, whichever the start face has told of.
void Rescue::TakeOpenedCopy() {
    if (SheetPath.find("Rescue") == std::string::npos) return;
    for (int number = 1; number <= kNames; ++number)
        if (const std::string copy = PathOf(NameOfCopy(number)); disk_.AreSame(copy, SheetPath)) told_ = copy;
}

void Rescue::HearOfSave() {
    if (!told_.empty()) Remove(std::exchange(told_, ""));
    SheetIsSafe();
}

// What the sheet has gone back to may be in no file either.
void Rescue::HearOfReset() {
    if (IsSafe())
        SheetIsSafe();
    else
        Keep();
}

#include "files/rescue.h"

#include <algorithm>
#include <array>
#include <vector>

#include "files/back_up.h"
#include "files/format/cells.h"
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
constexpr int kNames = 9;

std::string NameOfCopy(int number) {
    return number == 1 ? "Rescue.csv" : "Rescue_(" + std::to_string(number) + ").csv";
}

std::string PathOf(const std::string& name) {
    return ProgramFile(std::string(kFolder) + "/" + name);
}

template <class T, std::size_t n>
void Assign(T (&to)[n], const T (&from)[n]) {
    if constexpr (std::is_array_v<T>)
        for (std::size_t i = 0; i < n; ++i) Assign(to[i], from[i]);
    else
        std::copy(from, from + n, to);
}

// Gives an array its content back at its end.
template <class Array>
class Untouched {
public:
    explicit Untouched(Array& array) : array_(array) { Assign(content_, array); }
    ~Untouched() { Assign(array_, content_); }
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

// The bytes of a back-up. Nothing of what it fills in stays.
std::string Copy() {
    const Untouched header(SheetHeader);
    const Untouched samples(SampleTable);
    const Untouched counts(Counts);
    const Untouched names(ParamHeader);
    const Untouched values(ParamValues);
    const Untouched notes(SampleNotes);
    Gathered file;
    StoreShownSample();
    WriteBackUp(file);
    return file.bytes;
}

// The copy without the cells that tell of the copy itself: path, label, date and time.
std::string SheetOf(const std::string& copy) {
    return copy.substr(std::min(copy.find(SheetHeader[kHeaderSerial].Text()), copy.size()));
}

// When the session that left this file wrote it: "14/11/2026 (10:11:12)". Nothing if it is no such copy, but a sheet that a user has saved
// under its name.
std::optional<std::string> TimeOfCopy(const std::string& path) {
    try {
        CellReader cells(DecodeFile(services.files->ReadAll(path)));
        cells.NextText();
        if (cells.NextText() != kBackUpLabel) return std::nullopt;
        std::string stamp = cells.NextText();
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

std::vector<Left> LeftCopies() {
    std::vector<Left> copies;
    for (int number = 1; number <= kNames; ++number)
        if (const auto time = TimeOfCopy(PathOf(NameOfCopy(number)))) copies.push_back({NameOfCopy(number), *time});
    return copies;
}
}  // namespace

Rescue::Rescue(WholeFiles& disk, std::function<void()> try_again) : disk_(disk), try_again_(std::move(try_again)) {
    SheetSaved.Calls([this] { TakeSaved(); });
    SheetReplaced.Calls([this] { SheetIsSafe(); });
    SheetReset.Calls([this] { Forget(); });
}

Rescue::~Rescue() {
    for (Event<>* told : {&SheetSaved, &SheetReplaced, &SheetReset}) told->Calls({});
}

void Rescue::Offer() {
    const std::vector<Left> copies = LeftCopies();
    if (copies.empty()) return;
    const Left& last = copies.back();
    frmNext.TellOnStartFace("A session of " + last.time + " ended by itself: " + last.name + " in Back up files holds it");
    frmMain.FileDialog.first_folder = ProgramFile(kFolder);
}

void Rescue::Keep() {
    if (!safe_) return;
    try {
        const std::string copy = Copy();
        const std::string sheet = SheetOf(copy);
        if (sheet == kept_ || (kept_.empty() && sheet == *safe_)) return;
        for (int number = 1; path_.empty() && number <= kNames; ++number)
            if (const std::string path = PathOf(NameOfCopy(number)); number == kNames || !disk_.IsThere(path)) path_ = path;
        kept_ = sheet;
        disk_.Write(path_, copy, [this](bool done) {
            if (done) return;
            kept_.clear();
            try_again_();
        });
    } catch (const Failure&) {  // a number on the screen that no file can hold
        try_again_();
    }
}

void Rescue::KeepNow() {
    Keep();
    disk_.Finish();
}

void Rescue::EndByUser() {
    Forget();
    disk_.Finish();
}

// Its user has chosen the copy itself for the sheet: then it is no copy any longer.
void Rescue::Forget() {
    if (!path_.empty() && !disk_.AreSame(path_, SheetPath)) disk_.Remove(path_);
    path_.clear();
    kept_.clear();
}

void Rescue::SheetIsSafe() {
    Forget();
    safe_ = SheetOf(Copy());
}

void Rescue::TakeSaved() {
    RemoveLeft();
    SheetIsSafe();
}

void Rescue::RemoveLeft() {
    for (const Left& copy : LeftCopies())
        if (const std::string path = PathOf(copy.name); !disk_.AreSame(path, SheetPath)) disk_.Remove(path);
}

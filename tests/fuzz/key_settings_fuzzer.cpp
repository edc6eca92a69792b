// Whatever bytes the key settings are, the program starts, counts, and shows them in the dialog: Cancel changes nothing, and OK either
// says what is wrong or writes a file that is read back as it was held.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "keys/settings/key_settings.h"
#include "platform/user.h"
#include "unit/program_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kFile = "/program/References/KeySetting.csv";

void Check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

std::vector<Any> Rows() {
    return {&KeySettings[0][kKeyDefinition], &KeySettings[0][kKeyDefinition] + sizeof KeySettings / sizeof(Any)};
}

bool Same(const Any& one, const Any& other) {
    return one.IsNumber() == other.IsNumber() && one.Text() == other.Text();
}

bool SameRows(const std::vector<Any>& rows) {
    return std::equal(rows.begin(), rows.end(), &KeySettings[0][kKeyDefinition], Same);
}

// What the dialog holds is text, so that a number comes back as one.
bool SameTexts(const std::vector<Any>& rows) {
    return std::equal(rows.begin(), rows.end(), &KeySettings[0][kKeyDefinition],
                      [](const Any& a, const Any& b) { return a.Text() == b.Text(); });
}

// A quotation mark inside a text would not come back; no key types one into the boxes.
bool HasMark(const std::vector<Any>& rows) {
    return std::any_of(rows.begin(), rows.end(), [](const Any& cell) { return cell.Text().find('"') != std::string::npos; });
}

class Session : public ProgramTest {
public:
    explicit Session(std::string settings) {
        files_.bytes[kFile] = std::move(settings);
        Do([this] { Start(); });
        if (frmInitial.Visible()) Do([] { CloseWindow(frmInitial); });
        Do([this] { Begin("12.5"); });
        Check(Failure().empty(), "the program starts");
        CheckState();
        Do([this] { Key('Q'); });
    }
    void TestBody() override {}

    // The first run, told anew from the menu: its twelve keys, then OK.
    void CancelDialog() {
        const std::string file = files_.bytes[kFile];
        Open();
        const std::vector<Any> rows = Rows();
        for (const int tab : {2, 0}) {
            Do([tab] { PressTab(frmKeyCode.SSTab1, tab); });
            Do([] { ClickControl(frmKeyCode.Command2); });
        }
        Do([] { ClickControl(frmKeyCode.Option1[0]); });
        Do([] { ClickControl(frmKeyCode.Command1); });
        CheckClosed();
        Check(SameRows(rows), "Cancel gives the rows back");
        Check(files_.bytes[kFile] == file, "and leaves the file as it was");
    }

    void AcceptDialog() {
        const std::string file = files_.bytes[kFile];
        services_.messages.shown.clear();
        Open();
        Do([] { ClickControl(frmKeyCode.Command4); });
        if (frmKeyCode.Visible()) {
            Check(services_.messages.shown.size() == 1 || !Failure().empty(), "what is wrong is said once");
            Check(files_.bytes[kFile] == file, "and nothing is written");
            return;
        }
        CheckClosed();
        CheckFileReadsBack();
    }

private:
    static void CheckState() {
        Check(KeyboardKnown == 0 || KeyboardKnown == 1, "the keyboard is known or not");
        Check(SampleCount == 1 && CurrentSample == 1, "a sheet of one sample stands");
        for (int slot = 1; slot <= kSlots; ++slot) Check(RowOfSlot[slot] == slot, "and every slot has its row");
    }
    static void CheckClosed() {
        Check(!frmKeyCode.IsLoaded(), "the dialog is closed");
        Check(frmMain.Enabled() && ActiveWindow() == &frmMain, "and the main window is back");
    }
    static void Do(const std::function<void()>& event) { RunEvent(event); }
    const std::string& Failure() const { return services_.host.failure; }

    void Open() {
        Do([] { ClickControl(frmMain.mnuKeyCodeReader); });
        Check(frmKeyCode.Visible(), "the dialog opens");
    }

    static bool EachNumberIsASlot() {
        return std::all_of(&KeySettings[1], &KeySettings[kKeys + 1],
                           [](const Any(&row)[3]) { return row[2].Number() > 0.5 && row[2].Number() < kSlots + 0.5; });
    }
    // OK leaves key numbers to their boxes. One that is none, from a spoiled file or a cleared box, ends the next reading, but its rows are
    // all read by then.
    static void ReadOrRefuse() {
        try {
            ReadKeySettings();
        } catch (const ::Failure&) {
            Check(!EachNumberIsASlot(), "only a key number that is none is refused");
        }
    }
    void CheckFileReadsBack() {
        const std::vector<Any> held = Rows();
        const std::int16_t codes[] = {Shift1Code, Shift2Code, UndoKeyCode};
        if (HasMark(held)) return;
        ReadOrRefuse();
        Check(SameTexts(held), "what OK wrote is read back");
        Check(Shift1Code == codes[0] && Shift2Code == codes[1] && UndoKeyCode == codes[2], "with the same shift and undo keys");
        const std::string file = files_.bytes[kFile];
        WriteKeySettings();
        Check(files_.bytes[kFile] == file, "and written as the same bytes");
    }
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Session session({reinterpret_cast<const char*>(data), size});
    session.CancelDialog();
    session.AcceptDialog();
    return 0;
}

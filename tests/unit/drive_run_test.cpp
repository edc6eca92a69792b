// Whole runs of small scripts on programs that do one thing, so that statuses and misses can be seen to the letter.
#include "drive/run_script.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "platform/failure.h"
#include "platform/headless/headless_hands.h"
#include "platform/services.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/program_test.h"
#include "windows/main_window.h"

namespace {

namespace fs = std::filesystem;

// Instead of the program, `start` does one thing.
class OneThing : public HeadlessHands {
public:
    OneThing(std::function<bool()> has_ended, std::function<void()> thing)
        : HeadlessHands(std::move(has_ended)), thing_(std::move(thing)) {}
    void Start() override { RunEvent(thing_); }

private:
    std::function<void()> thing_;
};

struct Outcome {
    int status;
    std::string out;
    std::string errors;
};

class DriveRunTest : public ProgramTest {
protected:
    DriveRunTest() {
        fs::create_directories(tree_ / "References");
        fs::copy_file(SOURCE_FOLDER "/install/References/KeySetting.csv", tree_ / "References" / "KeySetting.csv");
    }
    ~DriveRunTest() override { fs::remove_all(tree_); }

    Outcome Play(
        const std::string& text, std::function<void()> thing = [] {}) const {
        std::istringstream script(text);
        std::ostringstream out, errors;
        const drive::RunOptions options{"a.drive", tree_, tree_};
        const auto make_hands = [&](auto has_ended) { return std::make_unique<OneThing>(has_ended, thing); };
        const int status = drive::RunScript(options, script, make_hands, out, errors);
        return {status, out.str(), errors.str()};
    }

    const fs::path tree_ = fs::path(testing::TempDir()) / ("drive-run-tree-" + std::to_string(std::random_device()()));
};

}  // namespace

TEST_F(DriveRunTest, AllExpectationsHold) {
    const Outcome run = Play("# none misses\nexpect SampleCount 0\nexpect-no-message\nexpect-sounds\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "3 passed, 0 failed\n");
    EXPECT_EQ(run.errors, "");
}

TEST_F(DriveRunTest, AMissIsOneLineAndTheRunGoesOn) {
    SampleNotes[1] = "a\r\n\"b\"";
    const Outcome run = Play("expect SampleCount 1\n\nexpect SampleNotes(1) \"x\\\"\"\nexpect SampleCount 0\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors,
              "a.drive:1: SampleCount: expected \"1\", got \"0\"\n"
              "a.drive:3: SampleNotes(1): expected \"x\\\"\", got \"a\\r\\n\\\"b\\\"\"\n");
    EXPECT_EQ(run.out, "1 passed, 2 failed\n");
}

TEST_F(DriveRunTest, AWrongScriptStopsAtItsLine) {
    const std::pair<const char*, const char*> faults[] = {
        {"jump 3", "unknown command jump"},
        {"expect SampleCount", "expect has another form: expect NAME VALUE"},
        {"start now", "start has another form: start"},
        {"start <<END\nEND", "start has another form: start"},
        {"expect-file $W/a.csv", "expect-file has another form: expect-file PATH <<END"},
        {"expect NoSuch 1", "there is no window or shared variable NoSuch"},
        {"expect Counts(1,256) 1", "an index of Counts is out of bounds"},
        {"click frmMain.Text1(136)", "there is no control frmMain.Text1(136)"},
        {"key q", "unknown key q (a decimal code, a capital letter or @...)"},
        {"answer Maybe", "unknown answer Maybe (known: Yes, No, Cancel, OK)"},
        {"expect-sounds WaveKey9", "unknown sound WaveKey9"},
        {"expect-failure Oops", "unknown failure Oops"},
        {"copy a.csv $W/b.csv", "the path a.csv must be absolute or begin with $F/, $W/ or ./"},
        {"copy ./none.csv $W/b.csv", "there is no file ./none.csv"},
        {"paste \"a", "a quotation mark is not closed"},
        {"image frmMain $W/a.png", "no image of frmMain: there are no windows to show it (run with --windows)"},
        {"mousedown frmMain middle 1 1", "unknown mouse button middle (known: left, right)"},
        {"tab frmMain.SSTab1 3", "frmMain.SSTab1 has no tab 3"},
        {"tab frmMain.SSTab1 -1", "frmMain.SSTab1 has no tab -1"},
    };
    for (const auto& [line, sentence] : faults) {
        const Outcome run = Play(std::string("expect SampleCount 0\n") + line + "\nexpect SampleCount 1\n");
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_EQ(run.errors, std::string("a.drive:2: ") + sentence + "\n");
        EXPECT_EQ(run.out, "1 passed, 0 failed\n") << line;
    }
}

TEST_F(DriveRunTest, AnItemThatAListDoesNotHoldIsAFaultOnlyWhereItCouldBeChosen) {
    const std::string choose = "start\nchoose frmMain.Combo2 none\nexpect SampleCount 0\n";
    EXPECT_EQ(Play(choose).status, 0);
    const Outcome shown = Play(choose, [] { frmMain.Show(); });
    EXPECT_EQ(shown.status, 2);
    EXPECT_EQ(shown.errors, "a.drive:2: the list of frmMain.Combo2 has no item \"none\"\n");
}

#ifndef _WIN32  // whose answer is that there is no such file
TEST_F(DriveRunTest, APathThatTheDiskDoesNotBearStopsTheScript) {
    const Outcome run = Play("expect SampleCount 0\nexpect-no-file $W/" + std::string(300, 'a') + "\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(run.errors.starts_with("a.drive:2: ")) << run.errors;
}
#endif

TEST_F(DriveRunTest, AButtonOfTheMouseIsUpAgainWhereverItIsLetGo) {
    struct Seen {
        MouseButton held = MouseButton::None;
    } seen;
    const auto listen = [&seen] {
        frmMain.Show();
        frmMain.MouseMove.Calls([&seen](Mouse mouse) { seen.held = mouse.button; });
    };
    Play("start\nmousedown frmMain left 9 9\nmousemove frmMain 12 12\n", listen);
    EXPECT_EQ(seen.held, MouseButton::Left);
    Play("start\nmousedown frmMain left 9 9\nmouseup frmMain left 9 9\nmousemove frmMain 12 12\n", listen);
    EXPECT_EQ(seen.held, MouseButton::None);
    frmMain.MouseMove.Calls([](Mouse) {});
}

TEST_F(DriveRunTest, AnUnansweredQuestionStopsTheScriptAndIsNamed) {
    const auto ask = [] { services.messages->Show({"Caution!", "Go on?", Icon::None, Buttons::YesNo}); };
    const Outcome unanswered = Play("start\nexpect SampleCount 9\n", ask);
    EXPECT_EQ(unanswered.status, 2);
    EXPECT_EQ(unanswered.errors, "a.drive:1: unanswered message box \"Caution!\", \"Go on?\": no answer waits (Yes or No)\n");
    EXPECT_EQ(Play("answer Yes\nstart\nexpect-message Caution! \"Stop?\"\n", ask).errors,
              "a.drive:3: message: expected \"Caution!: Stop?\", got \"Caution!: Go on?\"\n");
    EXPECT_EQ(Play("answer Yes\nstart\nexpect-no-message\n", ask).errors,
              "a.drive:3: message: expected \"(no message)\", got \"Caution!: Go on?\"\n");
    const Outcome answered = Play("answer Yes\nstart\nexpect-message Caution! \"Go on?\" none\nexpect-no-message\n", ask);
    EXPECT_EQ(answered.status, 0) << answered.errors;
    const auto save = [] { services.dialogs->Ask({FileQuestion::Kind::Save, "", services.host->Folder() + "/a.csv", true}); };
    const Outcome no_file = Play("start\n", save);
    EXPECT_EQ(no_file.status, 2);
    EXPECT_EQ(Play("file cancel\nstart\nexpect-dialog save $F/a.csv\n", save).status, 0);
}

TEST_F(DriveRunTest, AFailureEndsTheProgramAndIsExpectedByItsWord) {
    const auto fail = [] { throw Failure(kOverflow); };
    EXPECT_EQ(Play("start\nexpect-failure Overflow\nexpect-ended\nexpect-no-message\nkey 81\n", fail).status, 0);
    EXPECT_EQ(Play("start\nexpect-failure Overflow\n").errors, "a.drive:2: failure: expected \"Overflow\", got \"(none)\"\n");
}

TEST_F(DriveRunTest, FilesAreComparedLineByLine) {
    const std::string two_lines = "write $W/a.csv <<END\none\n\"$W/b.csv\"\nEND\n";
    EXPECT_EQ(Play(two_lines + "expect-file $W/a.csv <<END\none\n\"$W/b.csv\"\nEND\nexpect-line $W/a.csv -2 one\n").status, 0);
    EXPECT_EQ(Play(two_lines + "expect-file $W/a.csv <<END\none\nEND\n").errors,
              "a.drive:5: $W/a.csv line 2: expected \"(end of file)\", got \"\\\"$W/b.csv\\\"\"\n");
    EXPECT_EQ(Play(two_lines + "expect-line $W/a.csv 3 x\n").errors,
              "a.drive:5: $W/a.csv line 3: expected \"x\", got \"(no such line)\"\n");
    EXPECT_EQ(Play("expect-line $W/a.csv 1 x\n").errors, "a.drive:1: $W/a.csv line 1: expected \"x\", got \"(no file)\"\n");
    EXPECT_EQ(Play("write $W/a.csv <<END\nEND\nexpect-file $W/a.csv <<END\nEND\nexpect-no-file $W/a.csv\n").errors,
              "a.drive:5: $W/a.csv: expected \"(no file)\", got \"(a file)\"\n");
}

TEST_F(DriveRunTest, FoldersAreLaidKnownFreshOrEmpty) {
    const char* const settings = "$F/References/KeySetting.csv";
    const std::string file = settings;
    EXPECT_EQ(
        Play("expect-line " + file + " 52 \"\\\"Shift\\\",16,\\\"-\\\"\"\nexpect-line " + file + " -1 \"\\\"Down\\\",40,\\\"-\\\"\"\n")
            .status,
        0);
    EXPECT_EQ(Play("folder fresh\nexpect-line " + file + " 52 \"\\\"Shift\\\",999,\\\"-\\\"\"\n").status, 0);
    EXPECT_EQ(Play("folder empty\nexpect-no-file " + file + "\nexpect-no-file $F/References\n").status, 0);
    EXPECT_EQ(Play("delete $F/References\nexpect-no-file " + file + "\n").status, 0);
}

TEST_F(DriveRunTest, ThePathsOfARunBeginWithItsFolders) {
    const auto name_sheet = [] {
        HistoryLog = {"(Open) " + services.host->Folder() + "\\Sheets\\a.csv", "(Save)"};
        SheetPath = services.host->Folder() + "/a.csv";
    };
    const Outcome run = Play("start\nshow SheetPath HistoryLog(0)\nexpect SheetPath $F/a.csv\nexpect-history \"(Save)\"\n", name_sheet);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "SheetPath = $F/a.csv\nHistoryLog(0) = (Open) $F/Sheets/a.csv\n2 passed, 0 failed\n");
}

#include "session/leaving.h"

#include <algorithm>
#include <vector>

#include "platform/failure.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
// All windows of the program but the main one.
std::vector<Window*> Others() {
    std::vector<Window*> others;
    std::copy_if(AllWindows().begin(), AllWindows().end(), std::back_inserter(others),
                 [](const Window* window) { return window->name.starts_with("frm") && window != &frmMain; });
    return others;
}

class ClosedWindows : public WindowView {
public:
    Texts names;

private:
    void Changed(Window& window, WindowProperty property) override {
        if (property == WindowProperty::Title && !window.IsLoaded()) names.push_back(window.name);
    }
};

class LeavingTest : public SheetTest {
protected:
    LeavingTest() {
        Begin("10");
        KeyNumber(1);
        Played();
    }
};

TEST_F(LeavingTest, ClosingAsksAboutAnUnnamedSheet) {
    AnswerNext(Answer::No);
    CloseWindow(frmMain);
    EXPECT_EQ(LastMessage().title, "Marlbrook");
    EXPECT_EQ(LastMessage().text, "Do you want to save the changes you made to 'Untitled.csv'?");
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNoCancel);
    EXPECT_TRUE(services_.host.ended);
}

TEST_F(LeavingTest, TheQuestionNamesTheFileFromFourCharactersOn) {
    struct {
        const char* path;
        const char* name;
    } cases[] = {{"/sheets/core 12.csv", "core 12"}, {"/a.", "Untitled"}, {"/a.c", "a"}, {"", "Untitled"}};
    for (const auto& each : cases) {
        SheetPath = each.path;
        AnswerNext(Answer::No);
        CloseWindow(frmMain);
        EXPECT_EQ(LastMessage().text, std::string("Do you want to save the changes you made to '") + each.name + ".csv'?");
    }
}

TEST_F(LeavingTest, WithNothingToSaveClosingAsksNothing) {
    frmMain.Command5[0].SetEnabled(false);
    CloseWindow(frmMain);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_TRUE(services_.host.ended);
    EXPECT_FALSE(SoundOn);
    EXPECT_EQ(SaveOutcome, 1);
}

TEST_F(LeavingTest, YesSavesAndEnds) {
    SheetPath = "/sheets/Mere.csv";
    AnswerNext(Answer::Yes);
    CloseWindow(frmMain);
    EXPECT_EQ(FileLine("/sheets/Mere.csv", 3), "1,0,0,\"---\",1");
    EXPECT_TRUE(services_.host.ended);
    EXPECT_FALSE(SoundOn);
}

TEST_F(LeavingTest, NoEndsWithoutSaving) {
    SheetPath = "/sheets/Mere.csv";
    AnswerNext(Answer::No);
    CloseWindow(frmMain);
    EXPECT_EQ(files_.bytes.count("/sheets/Mere.csv"), 0u);
    EXPECT_TRUE(services_.host.ended);
}

TEST_F(LeavingTest, CancelEndsTooWithoutSaving) {
    SheetPath = "/sheets/Mere.csv";
    AnswerNext(Answer::Cancel);
    CloseWindow(frmMain);
    EXPECT_EQ(files_.bytes.count("/sheets/Mere.csv"), 0u);
    EXPECT_TRUE(services_.host.ended);
    EXPECT_FALSE(SoundOn);
}

TEST_F(LeavingTest, AFailedSaveEndsAllTheSameWithTheSoundsOn) {
    SheetPath = "/sheets/Mere.csv";
    files_.locked.insert(SheetPath);
    AnswerNext(Answer::Yes);
    CloseWindow(frmMain);
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_TRUE(SoundOn);
    EXPECT_TRUE(services_.host.ended);
}

TEST_F(LeavingTest, ADroppedSaveDialogEndsAllTheSame) {
    AnswerNext(Answer::Yes);
    CancelDialog();
    CloseWindow(frmMain);
    EXPECT_TRUE(services_.host.ended);
    EXPECT_EQ(SaveOutcome, 2);
}

TEST_F(LeavingTest, AnyOtherFailureWhileClosingKeepsTheProgramOpen) {
    SheetPath = "no name of a file";
    CloseWindow(frmMain);
    EXPECT_FALSE(services_.host.ended);
    EXPECT_EQ(services_.host.failure, "");
    EXPECT_EQ(MessageCount(), 0u);
    SheetPath = "/sheets/Mere.csv";
    Counts[1][1] = 40000;  // more than a sum can hold
    AnswerNext(Answer::Yes);
    CloseWindow(frmMain);
    EXPECT_FALSE(services_.host.ended);
}

TEST_F(LeavingTest, QuitWarnsOnceAndNeverSaves) {
    SheetPath = "/sheets/Mere.csv";
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuQuit);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(LastMessage().title, "Caution!");
    EXPECT_EQ(LastMessage().text, "This action will abort current data. Do you proceed?");
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNo);
    EXPECT_EQ(Played(), Texts{"WaveError"});
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_FALSE(SoundOn);
    EXPECT_TRUE(services_.host.ended);
    EXPECT_EQ(files_.bytes.count("/sheets/Mere.csv"), 0u);
}

TEST_F(LeavingTest, QuitClosesTheOtherWindows) {
    frmDiagram.Load();
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuQuit);
    EXPECT_FALSE(frmDiagram.IsLoaded());
}

TEST_F(LeavingTest, QuitRefusedChangesNothing) {
    AnswerNext(Answer::No);
    ClickControl(frmMain.mnuQuit);
    EXPECT_FALSE(services_.host.ended);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_TRUE(SoundOn);
}

TEST_F(LeavingTest, LeavingClosesEveryOtherWindow) {
    for (Window* window : Others()) window->Load();
    UnloadAll();
    for (const Window* window : Others()) EXPECT_FALSE(window->IsLoaded()) << window->name;
    EXPECT_TRUE(frmMain.IsLoaded());
}

TEST_F(LeavingTest, TheWindowsCloseInThisOrder) {
    for (Window* window : Others()) window->Load();
    ClosedWindows closed;
    BindWindowView(&closed);
    UnloadAll();
    BindWindowView(nullptr);
    EXPECT_EQ(closed.names, (Texts{"frmAboutDX1", "frmAboutMB1", "frmDiagram", "frmInitial", "frmKeyCode", "frmNext", "frmNote",
                                   "frmParaName", "frmSiteName", "frmSubtotal", "frmPicture"}));
}

TEST_F(LeavingTest, AWindowThatFailsToCloseHoldsNoOtherBack) {
    for (Window* stuck : Others()) {
        for (Window* window : Others()) window->Load();
        const Event<> usual = stuck->Unloading;
        stuck->Unloading.Calls([] { throw Failure(kOverflow); });
        UnloadAll();
        stuck->Unloading = usual;
        for (const Window* window : Others()) EXPECT_EQ(window->IsLoaded(), window == stuck) << window->name << ", stuck " << stuck->name;
    }
}

TEST_F(LeavingTest, QuitFromModifyModeLosesItsEditsAndEnds) {
    SheetPath = "/sheets/Mere.csv";
    ClickControl(frmMain.Command5[0]);
    ClickControl(frmMain.Command3[0]);
    frmMain.Text2[1].Enter("9", 1);
    frmMain.Text1[1].Enter("Pinus", 5);
    ASSERT_EQ(Counts[1][1], 9);
    Played();
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuQuit);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(Played(), Texts{"WaveError"});
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(TaxonTable[1][kTaxonName].Text(), "---");
    EXPECT_FALSE(SoundOn);
    EXPECT_TRUE(services_.host.ended);
    EXPECT_EQ(FileLine("/sheets/Mere.csv", 3), "1,0,0,\"---\",1");
}
}  // namespace

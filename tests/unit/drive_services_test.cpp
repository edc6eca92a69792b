// The scripted services, which the driver and every test of the program use.
#include <gtest/gtest.h>

#include <random>

#include "platform/failure.h"
#include "platform/headless/headless_services.h"
#include "unit/memory_files.h"

namespace {
Message Question(Buttons buttons) {
    return {"Caution!", "Do you proceed?", Icon::None, buttons};
}
}  // namespace

TEST(DriveMessageBoxesTest, AnswersAreTakenInTurn) {
    ScriptedMessageBoxes boxes;
    boxes.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_EQ(boxes.Show(Question(Buttons::YesNo)), Answer::Yes);
    EXPECT_EQ(boxes.Show(Question(Buttons::YesNoCancel)), Answer::Cancel);
    EXPECT_EQ(boxes.shown.size(), 2u);
    EXPECT_EQ(boxes.unanswered, "");
}

TEST(DriveMessageBoxesTest, ABoxWithOkAloneUsesUpAWaitingOkAndNothingElse) {
    ScriptedMessageBoxes boxes;
    EXPECT_EQ(boxes.Show(Question(Buttons::Ok)), Answer::Ok);
    boxes.answers = {Answer::Ok, Answer::Yes};
    EXPECT_EQ(boxes.Show(Question(Buttons::Ok)), Answer::Ok);
    EXPECT_EQ(boxes.Show(Question(Buttons::Ok)), Answer::Ok);
    EXPECT_EQ(boxes.answers.size(), 1u);
    EXPECT_EQ(boxes.unanswered, "");
}

TEST(DriveMessageBoxesTest, AQuestionWithoutAFittingAnswerIsNotedAndClosed) {
    ScriptedMessageBoxes none;
    EXPECT_EQ(none.Show(Question(Buttons::YesNo)), Answer::No);
    EXPECT_NE(none.unanswered.find("Do you proceed?"), std::string::npos);
    EXPECT_EQ(none.Show(Question(Buttons::YesNoCancel)), Answer::Cancel);
    ScriptedMessageBoxes wrong;
    wrong.answers = {Answer::Cancel};
    EXPECT_EQ(wrong.Show(Question(Buttons::YesNo)), Answer::No) << "that box has no Cancel";
    EXPECT_NE(wrong.unanswered, "");
    EXPECT_EQ(wrong.Show(Question(Buttons::YesNoCancel)), Answer::Cancel);
}

TEST(DriveFileDialogsTest, AnswersArePathsOrCancel) {
    ScriptedFileDialogs dialogs;
    dialogs.answers = {"/a.csv", std::nullopt};
    const FileQuestion question{FileQuestion::Kind::Save, "", "b.csv", true};
    EXPECT_EQ(dialogs.Ask(question), "/a.csv");
    EXPECT_EQ(dialogs.Ask(question), std::nullopt);
    EXPECT_EQ(dialogs.unanswered, "");
    EXPECT_EQ(dialogs.Ask(question), std::nullopt);
    EXPECT_NE(dialogs.unanswered.find("b.csv"), std::string::npos);
}

TEST(DriveScriptedFilesTest, ALockedFileFailsAtEveryOpeningByWhateverName) {
    MemoryFiles beneath;
    ScriptedFiles files(beneath);
    beneath.bytes["/w/a.csv"] = "old";
    files.Lock("/w/./b/../a.csv");
    EXPECT_THROW(files.ReadAll("/w/a.csv"), Failure);
    EXPECT_THROW(files.ReadAll("/w\\a.csv"), Failure);
    EXPECT_THROW(files.OpenForWriting("/w/a.csv"), Failure);
    files.Lock("/w/none.csv");
    EXPECT_THROW(files.OpenForWriting("/w/none.csv"), Failure);
    EXPECT_FALSE(beneath.bytes.contains("/w/none.csv"));
    files.Unlock("/w/a.csv");
    EXPECT_EQ(files.ReadAll("/w/a.csv"), "old");
}

TEST(DriveScriptedFilesTest, AFullDiskKeepsWhatItTook) {
    MemoryFiles beneath;
    ScriptedFiles files(beneath);
    files.Limit("/w/a.csv", 3);
    EXPECT_NO_THROW(files.OpenForWriting("/w/a.csv")->Replace("abc"));
    EXPECT_THROW(files.OpenForWriting("/w/a.csv")->Replace("abcd"), Failure);
    EXPECT_EQ(beneath.bytes["/w/a.csv"], "abc");
    files.LiftLimit("/w/a.csv");
    EXPECT_NO_THROW(files.OpenForWriting("/w/a.csv")->Replace("abcd"));
}

TEST(DriveDiskFilesTest, OpeningCutsNothing) {
    const auto folder = std::filesystem::path(testing::TempDir()) / ("drive disk files " + std::to_string(std::random_device()()));
    std::filesystem::create_directory(folder);
    DiskFiles files;
    const std::string path = PathText(folder / "a.csv");
    files.OpenForWriting(path)->Replace("whole");
    EXPECT_EQ(files.ReadAll(path), "whole");
    { const auto opened = files.OpenForWriting(path); }
    EXPECT_EQ(files.ReadAll(path), "whole");
    files.OpenForWriting(path)->Replace("cut");
    EXPECT_EQ(files.ReadAll(path), "cut");
    EXPECT_THROW(files.ReadAll(PathText(folder / "none.csv")), Failure);
    EXPECT_THROW(files.ReadAll(PathText(folder)), Failure);
    EXPECT_THROW(files.OpenForWriting(PathText(folder)), Failure);
    EXPECT_THROW(files.OpenForWriting(PathText(folder / "none" / "a.csv")), Failure);
    std::filesystem::remove_all(folder);
}

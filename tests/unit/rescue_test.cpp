#include "files/rescue.h"

#include <deque>

#include "files/exports.h"
#include "files/new_sheet.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/leaving.h"
#include "session/undo.h"
#include "unit/sheet_file.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
const std::string kBackUps = "/program/References/Back up files/";
const std::string kRescue = kBackUps + "Rescue.csv";
const std::string kSecond = kBackUps + "Rescue_(2).csv";

// Takes a file, or refuses it, when it is asked to finish, and tells so when it is asked to tell. No file is written over that it has not
// taken.
class LateFiles : public WholeFiles {
public:
    explicit LateFiles(MemoryFiles& files) : files_(files) {}
    bool is_full = false;
    int written = 0;
    int waited_for = 0;

    void Tell() {
        for (; !told_.empty(); told_.pop_front()) told_.front()();
    }

    void Write(std::shared_ptr<OwnName> name, const std::string& bytes, std::function<void(bool)> done) override {
        jobs_.push_back([this, name, bytes, done = std::move(done)] {
            const bool is_taken = !is_full && HasName(*name);
            if (is_taken) files_.bytes[name->path] = bytes;
            written += is_taken;
            told_.push_back([done, is_taken] { done(is_taken); });
        });
    }
    void Remove(const std::string& path) override {
        jobs_.push_back([this, path] { files_.bytes.erase(path); });
    }
    void Finish() override {
        ++waited_for;
        for (; !jobs_.empty(); jobs_.pop_front()) jobs_.front()();
    }
    bool AreSame(const std::string& path, const std::string& other) override { return path == other; }

private:
    // Takes one if it has none.
    bool HasName(OwnName& name) {
        for (const std::string& path : name.paths)
            if (name.path.empty() && files_.bytes.count(path) == 0) name.path = path;
        return !name.path.empty();
    }

    MemoryFiles& files_;
    std::deque<std::function<void()>> jobs_;
    std::deque<std::function<void()>> told_;
};

// Its user chooses this file, after something else has happened.
class LastingDialog : public FileDialogs {
public:
    LastingDialog(std::function<void()> meanwhile, std::string path) : meanwhile_(std::move(meanwhile)), path_(std::move(path)) {}
    std::optional<std::string> Ask(const FileQuestion&) override {
        meanwhile_();
        return path_;
    }

private:
    std::function<void()> meanwhile_;
    std::string path_;
};

class RescueTest : public SheetTest {
protected:
    LateFiles disk_{files_};
    int tries_ = 0;
    Rescue rescue_{disk_, [this] { ++tries_; }};

    void Keep() {
        rescue_.Keep();
        disk_.Finish();
    }
    bool IsThere(const std::string& path) {
        disk_.Finish();
        return files_.bytes.count(path) > 0;
    }
    std::string CountIn(const std::string& path, int slot = 1) {
        disk_.Finish();
        const std::string line = FileLine(path, 2 + static_cast<std::size_t>(slot));
        return line.substr(line.rfind(',') + 1);
    }
    // The first save of the sheet.
    void FailToSave() {
        files_.locked.insert("/sheets/Mere.csv");
        AnswerDialog("/sheets/Mere.csv");
        SaveSheet(kSaveAs);
        ASSERT_EQ(LastMessage().title, "Error");
    }
    // From a sheet that has nothing of it, as in the next session.
    void OpenCopy() {
        disk_.Finish();
        const std::string copy = files_.bytes[kRescue];
        AnswerNext(Answer::Yes);
        NewSheet();
        files_.bytes[kRescue] = copy;
        AnswerDialog(kRescue);
        OpenSheet();
    }
    // What a session of yesterday has left.
    void LeaveCopy(const std::string& path, const std::string& time = "13/11/2026_(09:08:07)") {
        files_.bytes[path] = "\"\",\"Backed up (dd/mm/yyyy):\",\"" + time + "\",\"Serial No.\",1\r\n";
    }
};

TEST_F(RescueTest, NothingIsWrittenBeforeAnythingIsDone) {
    rescue_.KeepNow();
    Start();
    rescue_.KeepNow();
    EXPECT_EQ(disk_.written, 0);
}

TEST_F(RescueTest, NoKeyWaitsForTheDiskAtTheFirstCopy) {
    LeaveCopy(kRescue);
    Begin("10");
    for (const char* sheet : {"/sheets/one.csv", "/sheets/two.csv"}) {
        KeyNumber(1);
        disk_.waited_for = 0;
        rescue_.Keep();
        EXPECT_EQ(disk_.waited_for, 0);
        EXPECT_EQ(CountIn(kSecond), Counts[1][1] == 1 ? "1" : "2") << sheet;
        SaveAs(sheet);
    }
}

TEST_F(RescueTest, NoCopyComesWhereItsUserSavesASheet) {
    Begin("10");
    SaveAs(kRescue);
    KeyNumber(1);
    Keep();
    EXPECT_EQ(CountIn(kRescue), "0");
    EXPECT_EQ(CountIn(kSecond), "1");
}

TEST_F(RescueTest, ItHoldsTheSheetAsItStandsAndOpens) {
    Begin("10");
    KeyNumber(1, 3);
    frmMain.Text4.SetText("a note");
    rescue_.KeepNow();
    EXPECT_EQ(CountIn(kRescue), "3");
    EXPECT_TRUE(FileLine(kRescue, 1).starts_with("\"\",\"Backed up (dd/mm/yyyy):\",\"14/11/2026_(10:11:12)\""));
    OpenCopy();
    EXPECT_EQ(Counts[1][1], 3);
    EXPECT_EQ(SampleNotes[1], "a note");
}

TEST_F(RescueTest, WritingItLeavesTheSheetAsItIs) {
    Begin("10");
    KeyNumber(1, 3);
    PutInCell(2, "7");  // an edit that the arrays have not heard of
    ParamValues[1][1] = "";
    ParamHeader[1][1] = "";
    frmMain.Combo2.SetText("11");
    const std::string name = SampleTable[kSampleName][1].Text(), label = SheetHeader[kHeaderSaved].Text();
    rescue_.KeepNow();
    EXPECT_EQ(Counts[2][1], 0);
    EXPECT_EQ(ParamValues[1][1], "");
    EXPECT_EQ(ParamHeader[1][1], "");
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), name);
    EXPECT_EQ(SheetHeader[kHeaderSaved].Text(), label);
}

TEST_F(RescueTest, ItIsWrittenOnlyWhenTheSheetHasChanged) {
    Begin("10");
    KeyNumber(1);
    for (int time = 0; time < 3; ++time) Keep();
    EXPECT_EQ(disk_.written, 1);
    KeyNumber(1);
    Keep();
    EXPECT_EQ(disk_.written, 2);
    EXPECT_EQ(CountIn(kRescue), "2");
}

TEST_F(RescueTest, ASaveTakesEverythingIn) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    SaveAs("/sheets/Mere.csv");
    EXPECT_FALSE(IsThere(kRescue));
    rescue_.KeepNow();
    EXPECT_FALSE(IsThere(kRescue)) << "nothing has changed since";
    KeyNumber(1);
    rescue_.KeepNow();
    EXPECT_EQ(CountIn(kRescue), "2");
}

TEST_F(RescueTest, NoTableAndNoCopyOfTheSheetIsASave) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerDialog("/sheets/percent.csv");
    SaveSheet(kSavePercentAll);
    AnswerDialog("/sheets/copy.csv");
    SaveSheet(kSaveCopy);
    EXPECT_TRUE(IsThere(kRescue));
}

TEST_F(RescueTest, NoTableAndNoCopyThatFailsIsAFailedSave) {
    Begin("10");
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    files_.locked.insert("/sheets/other.csv");
    for (const std::int16_t mode : {kSaveCopy, kSavePercentAll}) {
        AnswerDialog("/sheets/other.csv");
        SaveSheet(mode);
        ASSERT_EQ(LastMessage().title, "Error");
        rescue_.KeepNow();
        rescue_.EndByUser();
        EXPECT_FALSE(IsThere(kRescue)) << mode;
    }
}

TEST_F(RescueTest, ASaveThatFailsKeepsItWhateverTheUserDoesThen) {
    Begin("10");
    KeyNumber(1);
    FailToSave();
    EXPECT_EQ(CountIn(kRescue), "1") << "at once";
    rescue_.EndByUser();
    EXPECT_TRUE(IsThere(kRescue));
}

TEST_F(RescueTest, AfterAFailedSaveTheLastKeyBeforeTheEndIsInIt) {
    Begin("10");
    KeyNumber(1);
    FailToSave();
    for (const Answer answer : {Answer::Cancel, Answer::No}) {
        KeyNumber(1);
        AnswerNext(answer);
        CloseMainWindow();
        rescue_.EndByUser();
        EXPECT_EQ(CountIn(kRescue), std::to_string(Counts[1][1]));
    }
    KeyNumber(1);
    AnswerNext(Answer::Yes);
    QuitProgram();
    rescue_.EndByUser();
    EXPECT_EQ(CountIn(kRescue), "4");
}

TEST_F(RescueTest, WhatIsSavedOverTheSheetsOwnFileLeavesTheSheetToTheCopy) {
    Begin("10");
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    const std::function<void()> ways[] = {CreateTemplate, SaveHistory, [] { SaveSheet(kSavePercentAll); }};
    for (const auto& save : ways) {
        AnswerDialog("/sheets/Mere.csv");
        save();
        Keep();
        EXPECT_EQ(CountIn(kRescue), "1");
        CloseMainWindow();
        rescue_.EndByUser();
        EXPECT_EQ(CountIn(kRescue), "1");
        SaveSheet(kSave);
        EXPECT_FALSE(IsThere(kRescue)) << "its file holds it again";
    }
}

TEST_F(RescueTest, ACopyOfTheSheetOverItsOwnFileIsASave) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    Keep();
    AnswerDialog("/sheets/Mere.csv");
    SaveSheet(kSaveCopy);
    EXPECT_FALSE(IsThere(kRescue));
    KeyNumber(1);
    Keep();
    EXPECT_TRUE(IsThere(kRescue));
    files_.room["/sheets/Mere.csv"] = 1000;
    AnswerDialog("/sheets/Mere.csv");
    SaveSheet(kSaveCopy);
    ASSERT_EQ(LastMessage().title, "Error");
    rescue_.EndByUser();
    EXPECT_EQ(CountIn(kRescue), "2") << "the file is cut";
}

TEST_F(RescueTest, AfterAFailedSaveItOutlivesItsSheet) {
    Begin("10");
    KeyNumber(1);
    FailToSave();
    KeyNumber(1);
    AnswerNext(Answer::Yes);
    NewSheet();
    EXPECT_EQ(CountIn(kRescue), "2");
    frmMain.Text4.SetText("of the next sheet");
    Keep();
    EXPECT_TRUE(IsThere(kSecond));
    rescue_.EndByUser();
    EXPECT_TRUE(IsThere(kRescue));
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, AfterAFailedSaveItOutlivesAnOpenThatBreaksOff) {
    Begin("10");
    KeyNumber(1, 2);
    NextSample("20");
    KeyNumber(1);
    FailToSave();
    disk_.Finish();
    const std::string copy = files_.bytes[kRescue];
    files_.bytes["/sheets/cut.csv"] = "\"/sheets/cut.csv\",\"Last saved (dd/mm/yyyy):\"\r\n";
    AnswerNext(Answer::Yes);
    AnswerDialog("/sheets/cut.csv");
    OpenSheet();
    ASSERT_EQ(SheetPath, "/sheets/cut.csv");
    ASSERT_EQ(Counts[1][1], 0);
    Keep();
    EXPECT_EQ(files_.bytes[kRescue], copy);
    EXPECT_FALSE(IsThere(kSecond)) << "what was read is in its file";
}

// A second Open asks nothing; the file has a key index twice, which is told while the desktop goes on.
TEST_F(RescueTest, AMessageOfTheNextSheetLeavesItAsItIs) {
    class BusyBoxes : public MessageBoxes {
    public:
        explicit BusyBoxes(std::function<void()> meanwhile) : meanwhile_(std::move(meanwhile)) {}
        Answer Show(const Message&) override {
            meanwhile_();
            return Answer::Ok;
        }

    private:
        std::function<void()> meanwhile_;
    } busy([this] { Keep(); });
    Rows rows = DataSheet(1);
    rows[kTaxonRow + 1][0] = "1";
    files_.bytes["/sheets/twice.csv"] = Joined(rows);
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1, 7);
    AnswerNext(Answer::No);
    OpenSheet();
    AnswerDialog("/sheets/twice.csv");
    services.messages = &busy;
    OpenSheet();
    services.messages = &services_.messages;
    ASSERT_EQ(SheetPath, "");
    EXPECT_EQ(CountIn(kRescue), "7");
    EXPECT_FALSE(IsThere(kSecond)) << "what was read is in its file";
}

TEST_F(RescueTest, CountsOfASheetThatIsClosedInModifyModeStayInIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1, 3);
    ClickControl(frmMain.Command3[0]);
    const std::size_t messages = MessageCount();
    CloseMainWindow();
    rescue_.EndByUser();
    EXPECT_EQ(MessageCount(), messages);
    EXPECT_EQ(CountIn(kRescue), "3");
}

TEST_F(RescueTest, ANoteOfASampleWithoutAGrainStaysInIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    ClickControl(frmMain.mnuNext);
    frmNext.Text1.SetText("20");
    frmNext.Text2.SetText("sand with roots");
    ClickControl(frmNext.Command1);
    CloseMainWindow();
    rescue_.EndByUser();
    ASSERT_TRUE(IsThere(kRescue));
    EXPECT_NE(files_.bytes[kRescue].find("sand with roots"), std::string::npos);
}

TEST_F(RescueTest, ASheetThatWasOnlyLookedAtLeavesNone) {
    files_.bytes["/sheets/Mere.csv"] = Joined(DataSheet(3));
    Start();
    AnswerDialog("/sheets/Mere.csv");
    OpenSheet();
    Keep();
    ShowSample(1);
    Keep();
    CloseMainWindow();
    rescue_.EndByUser();
    EXPECT_FALSE(IsThere(kRescue));
}

// A percentage table switches Save off.
TEST_F(RescueTest, CountsThatClosingAsksNothingAboutStayInIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    AnswerDialog("/sheets/percent.csv");
    SaveSheet(kSavePercentAll);
    const std::size_t messages = MessageCount();
    CloseMainWindow();
    rescue_.EndByUser();
    EXPECT_EQ(MessageCount(), messages);
    EXPECT_EQ(CountIn(kRescue), "1");
}

TEST_F(RescueTest, CountsOfASavedCopyThatTheDiskCutStayInIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    files_.room["/sheets/copy.csv"] = 1000;
    AnswerDialog("/sheets/copy.csv");
    SaveSheet(kSaveCopy);
    ASSERT_FALSE(frmMain.Command5[0].Enabled());
    CloseMainWindow();
    rescue_.EndByUser();
    EXPECT_EQ(CountIn(kRescue), "1");
}

TEST_F(RescueTest, WhatClosingAsksAboutIsItsUsersChoiceAfterATableToo) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    AnswerDialog("/sheets/percent.csv");
    SaveSheet(kSavePercentAll);
    KeyNumber(1);
    Keep();
    AnswerNext(Answer::No);
    CloseMainWindow();
    rescue_.EndByUser();
    EXPECT_FALSE(IsThere(kRescue));
}

TEST_F(RescueTest, ATableOfWhatIsSavedOrACopyLeavesNoneAtTheEnd) {
    Begin("10");
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    for (const std::int16_t mode : {kSavePercentAll, kSaveCopy}) {
        AnswerDialog("/sheets/other.csv");
        SaveSheet(mode);
        Keep();
        CloseMainWindow();
        rescue_.EndByUser();
        EXPECT_FALSE(IsThere(kRescue)) << mode;
        KeyNumber(1);  // before the copy, which has it
    }
}

// Open that was answered No does not ask again.
TEST_F(RescueTest, CountsThatOpenAsksNothingAboutStayInIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1, 2);
    AnswerNext(Answer::No);
    OpenSheet();
    const std::size_t messages = MessageCount();
    AnswerDialog("/sheets/Mere.csv");
    OpenSheet();
    EXPECT_EQ(MessageCount(), messages);
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(CountIn(kRescue), "2");
}

TEST_F(RescueTest, ASheetOfWhichNothingWasChangedLeavesNoneWhenAnotherIsOpened) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    for (int time = 0; time < 2; ++time) {
        Keep();
        AnswerDialog("/sheets/Mere.csv");
        AnswerNext(Answer::Yes);
        OpenSheet();
        services_.messages.answers.clear();
    }
    EXPECT_FALSE(IsThere(kRescue));
}

TEST_F(RescueTest, AResetToWhatIsSavedRemovesIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerNext(Answer::Yes);
    AbortCount();
    EXPECT_FALSE(IsThere(kRescue));
}

TEST_F(RescueTest, AResetToWhatNoFileHasIsKeptAtOnce) {
    Begin("10");
    KeyNumber(1, 2);
    NextSample("20");  // from here on Reset goes back to this
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerNext(Answer::Yes);
    AbortCount();
    disk_.Finish();
    EXPECT_EQ(FileLine(kRescue, 3), "1,0,0,\"---\",2,0");
}

TEST_F(RescueTest, AResetThatIsDeclinedKeepsIt) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerNext(Answer::No);
    AbortCount();
    EXPECT_TRUE(IsThere(kRescue));
}

TEST_F(RescueTest, AnotherSheetHasNoUseForIt) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    const std::function<void()> ways[] = {NewSheet, OpenSheet};
    for (const auto& replace : ways) {
        KeyNumber(1);
        rescue_.KeepNow();
        ASSERT_TRUE(IsThere(kRescue));
        AnswerNext(Answer::Yes);
        AnswerDialog("/sheets/Mere.csv");
        replace();
        EXPECT_FALSE(IsThere(kRescue));
        rescue_.KeepNow();
        EXPECT_FALSE(IsThere(kRescue));
        services_.dialogs.answers.clear();
    }
}

TEST_F(RescueTest, TheEndThatItsUserChoseRemovesIt) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    rescue_.EndByUser();
    EXPECT_EQ(files_.bytes.count(kRescue), 0u);
}

TEST_F(RescueTest, ADiskThatRefusesIsTriedAgain) {
    Begin("10");
    KeyNumber(1);
    disk_.is_full = true;
    rescue_.KeepNow();
    disk_.Tell();
    EXPECT_EQ(tries_, 1);
    disk_.is_full = false;
    rescue_.Keep();
    EXPECT_EQ(CountIn(kRescue), "1");
    disk_.Tell();
    EXPECT_EQ(tries_, 1);
}

TEST_F(RescueTest, TheLastActTrustsNoWriteThatHasNotBeenToldOf) {
    Begin("10");
    KeyNumber(1);
    disk_.is_full = true;
    rescue_.Keep();
    disk_.Finish();
    disk_.is_full = false;
    rescue_.KeepNow();
    EXPECT_EQ(files_.bytes.count(kRescue), 1u);
}

TEST_F(RescueTest, WhatAnotherProgramWroteForSerialNoDoesNotMatter) {
    Begin("10");
    for (const char* label : {"S\xC3\xA9rie", "", "1", "14"}) {
        SheetHeader[kHeaderSerial] = label;
        SaveAs("/sheets/Mere.csv");
        const int before = disk_.written;
        rescue_.KeepNow();
        EXPECT_EQ(disk_.written, before) << label;
        KeyNumber(1);
        rescue_.KeepNow();
        EXPECT_EQ(disk_.written, before + 1) << label;
    }
}

TEST_F(RescueTest, NoFileIsWrittenOverWhereAllNamesAreTaken) {
    for (int number = 2; number <= 99; ++number) LeaveCopy(kBackUps + "Rescue_(" + std::to_string(number) + ").csv");
    LeaveCopy(kRescue);
    const auto before = files_.bytes;
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    EXPECT_EQ(files_.bytes, before);
    disk_.Tell();
    EXPECT_EQ(tries_, 1);
}

TEST_F(RescueTest, AFileThatItsUserLaysThereBeforeTheFirstCopyStays) {
    Begin("10");
    KeyNumber(1);
    files_.bytes[kRescue] = "a file of the user's";
    Keep();
    EXPECT_EQ(files_.bytes[kRescue], "a file of the user's");
    EXPECT_EQ(CountIn(kSecond), "1");
    KeyNumber(1);
    rescue_.KeepNow();
    EXPECT_EQ(CountIn(kSecond), "2");
    SaveAs("/sheets/Mere.csv");
    EXPECT_EQ(files_.bytes[kRescue], "a file of the user's");
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, AFileThatIsSavedOverItIsTheUsers) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerDialog(kRescue);
    SaveSheet(kSaveAs);  // the second one: the sheet stays where it is
    const std::string saved = files_.bytes[kRescue];
    KeyNumber(1);
    rescue_.KeepNow();
    rescue_.EndByUser();
    EXPECT_EQ(files_.bytes[kRescue], saved);
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, ACountThatNoFileHoldsLeavesTheOneBeforeAndCostsNoOther) {
    Begin("10");
    KeyNumber(1, 2);
    KeyNumber(2, 3);
    for (const char* beyond : {"2147483648", "-2147483649", "1e300"}) {
        PutInCell(2, beyond);
        PutInCell(3, "7");
        frmMain.Text4.SetText(beyond);
        rescue_.KeepNow();
        EXPECT_EQ(CountIn(kRescue, 1), "2") << beyond;
        EXPECT_EQ(CountIn(kRescue, 2), "3") << beyond;
        EXPECT_EQ(CountIn(kRescue, 3), "7") << beyond;
    }
    EXPECT_EQ(tries_, 0);
    OpenCopy();
    EXPECT_EQ(AllTotal, 12);
    EXPECT_EQ(SampleNotes[1], "1e300") << "it was read to its end";
}

TEST_F(RescueTest, ASampleOfMoreGrainsThanASaveTakesIsInTheCopyAndOpens) {
    Begin("10");
    for (const int slot : {1, 2}) PutInCell(slot, "32760");
    KeyNumber(1, 8);
    RunEvent([] { SaveSheet(kSaveAs); });
    EXPECT_EQ(services_.host.failure, "Overflow");
    rescue_.KeepNow();
    OpenCopy();
    EXPECT_EQ(Counts[1][1], 32768);
    EXPECT_EQ(Counts[2][1], 32760);
    EXPECT_EQ(frmMain.Text3[0].Text(), "65528");
}

TEST_F(RescueTest, TheKeyThatFillsTheHistoryIsInTheCopy) {
    Begin("10");
    HistoryCount = 32760;
    KeyNumber(1, 7);
    EXPECT_EQ(services_.host.failure, "");
    RunEvent([this] { KeyNumber(2); });
    EXPECT_EQ(services_.host.failure, "Overflow");
    rescue_.KeepNow();
    EXPECT_EQ(CountIn(kRescue, 1), "7");
    EXPECT_EQ(CountIn(kRescue, 2), "1");
}

TEST_F(RescueTest, TheStartFaceTellsWhatAnEarlierSessionLeft) {
    LeaveCopy(kRescue);
    Start();
    rescue_.Offer();
    EXPECT_EQ(frmNext.StartLine.Caption(), "A session of 13/11/2026 (09:08:07) ended by itself: Rescue.csv in Back up files holds it");
    AnswerDialog("/sheets/Mere.csv");
    OpenSheet();
    EXPECT_EQ(services_.dialogs.asked.back().first_folder, "/program/References/Back up files");
    EXPECT_EQ(services_.dialogs.asked.back().proposed_name, "");
}

TEST_F(RescueTest, WithoutOneTheStartFaceSaysWhatItAlwaysSays) {
    Start();
    const std::string usual = frmNext.StartLine.Caption();
    rescue_.Offer();
    EXPECT_EQ(frmNext.StartLine.Caption(), usual);
    EXPECT_EQ(frmMain.FileDialog.first_folder, "");
}

TEST_F(RescueTest, WhatAnEarlierSessionLeftStaysUntilASheetIsSaved) {
    LeaveCopy(kRescue);
    const std::string left = files_.bytes[kRescue];
    Begin("10");
    rescue_.Offer();
    KeyNumber(1);
    rescue_.KeepNow();
    EXPECT_EQ(files_.bytes[kRescue], left);
    EXPECT_EQ(CountIn(kSecond), "1");
    SaveAs("/sheets/Mere.csv");
    EXPECT_FALSE(IsThere(kRescue));
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, TheLatestOfSeveralIsToldAndGoesFirst) {
    LeaveCopy(kRescue, "13/11/2026_(09:08:07)");
    LeaveCopy(kSecond, "31/10/2026_(23:08:07)");
    Begin("10");
    rescue_.Offer();
    EXPECT_EQ(frmNext.StartLine.Caption(),
              "A session of 13/11/2026 (09:08:07) ended by itself: Rescue.csv in Back up files holds it, and 1 more");
    SaveAs("/sheets/Mere.csv");
    EXPECT_FALSE(IsThere(kRescue));
    EXPECT_TRUE(IsThere(kSecond)) << "nobody has been told its name";
}

TEST_F(RescueTest, ACopyThatHasBecomeTheSheetIsNeverRemoved) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    SaveAs(kRescue);
    EXPECT_TRUE(FileLine(kRescue, 1).find("Last saved") != std::string::npos);
    const std::string saved = files_.bytes[kRescue];
    KeyNumber(1);
    rescue_.KeepNow();
    EXPECT_EQ(files_.bytes[kRescue], saved);
    EXPECT_EQ(CountIn(kSecond), "2");
    rescue_.EndByUser();
    EXPECT_EQ(files_.bytes[kRescue], saved);
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, ASheetSavedUnderItsNameIsNoneThatASessionLeft) {
    LeaveCopy(kRescue);
    Begin("10");
    SaveAs(kRescue);
    frmNext.Unload();
    Start();
    rescue_.Offer();
    EXPECT_EQ(frmNext.StartLine.Caption().find("ended by itself"), std::string::npos);
}

TEST_F(RescueTest, AFailedSaveOfWhatHasJustBeenSavedLeavesACopy) {
    Begin("10");
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    files_.locked.insert("/sheets/Mere.csv");
    SaveSheet(kSave);
    EXPECT_EQ(CountIn(kRescue), "1");
}

TEST_F(RescueTest, AGrainThatIsTakenBackIsTakenBackInTheCopyToo) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    for (const bool at_once : {false, true}) {
        KeyNumber(1);
        Keep();
        ASSERT_EQ(CountIn(kRescue), "1");
        Undo();
        if (at_once)
            rescue_.KeepNow();
        else
            Keep();
        EXPECT_EQ(CountIn(kRescue), "0") << at_once;
    }
}

TEST_F(RescueTest, OfTwoCopiesTheOneThatIsOpenedGoesWithTheSave) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    files_.bytes[kSecond] = files_.bytes[kRescue];
    Rescue next(disk_, [] {});  // of the session that comes after both
    next.Offer();
    AnswerNext(Answer::Yes);
    AnswerDialog(kSecond);
    OpenSheet();
    SaveAs("/sheets/Mere.csv");
    EXPECT_TRUE(IsThere(kRescue));
    EXPECT_FALSE(IsThere(kSecond));
}

TEST_F(RescueTest, TheCopyOfThisSessionOpensWithWhatWasGivenUpForIt) {
    Begin("10");
    KeyNumber(1, 3);
    Keep();
    AnswerNext(Answer::Yes);
    LastingDialog dialog([this] { Keep(); }, kRescue);
    services.dialogs = &dialog;
    OpenSheet();
    EXPECT_EQ(Counts[1][1], 3);
    KeyNumber(1);
    Keep();
    EXPECT_EQ(CountIn(kRescue), "3");
    EXPECT_EQ(CountIn(kSecond), "4");
}

TEST_F(RescueTest, WhatIsCountedAfterADialogThatWasCancelledIsInIt) {
    Begin("10");
    KeyNumber(1, 3);
    Keep();
    AnswerNext(Answer::Yes);
    CancelDialog();
    OpenSheet();
    Keep();
    EXPECT_EQ(CountIn(kRescue), "3");
    KeyNumber(1);
    Keep();
    EXPECT_EQ(CountIn(kRescue), "1");
}

TEST_F(RescueTest, ACopyFromAFolderWithAQuotationMarkInItsNameIsToldOf) {
    files_.bytes[kRescue] = "\"/5\" cores/core.csv\",\"Backed up (dd/mm/yyyy):\",\"13/11/2026_(09:08:07)\",\"Serial No.\",1\r\n";
    Start();
    rescue_.Offer();
    EXPECT_EQ(frmNext.StartLine.Caption(), "A session of 13/11/2026 (09:08:07) ended by itself: Rescue.csv in Back up files holds it");
}

TEST_F(RescueTest, WhatIsExportedOverTheCopyStays) {
    Begin("10");
    KeyNumber(1);
    rescue_.KeepNow();
    AnswerDialog(kRescue);
    SaveHistory();
    const std::string history = files_.bytes[kRescue];
    KeyNumber(1);
    Keep();
    EXPECT_EQ(files_.bytes[kRescue], history);
    EXPECT_EQ(CountIn(kSecond), "2");
}

TEST_F(RescueTest, AnyPlainSaveTakesTheCopyAway) {
    Begin("10");
    SaveAs("/sheets/Mere.csv");
    for (const std::int16_t mode : {kSave, kSaveClean}) {
        KeyNumber(1);
        Keep();
        ASSERT_TRUE(IsThere(kRescue));
        SaveSheet(mode);
        EXPECT_FALSE(IsThere(kRescue)) << mode;
    }
}

TEST_F(RescueTest, TheLatestIsLaterByEachPartOfItsDate) {
    for (const auto& [earlier, later] : {std::pair{"30/09/2026_(09:08:07)", "01/10/2026_(09:08:07)"},
                                         {"31/12/2025_(09:08:07)", "01/01/2026_(09:08:07)"},
                                         {"09/10/2026_(09:08:07)", "10/10/2026_(09:08:07)"},
                                         {"10/10/2026_(09:08:07)", "10/10/2026_(10:00:00)"}}) {
        LeaveCopy(kRescue, earlier);
        LeaveCopy(kSecond, later);
        Start();
        rescue_.Offer();
        const std::string told = frmNext.StartLine.Caption();
        EXPECT_EQ(told.substr(std::string("A session of ").size(), 10), std::string(later).substr(0, 10)) << told;
        EXPECT_NE(told.find("Rescue_(2).csv"), std::string::npos) << told;
        frmNext.Unload();
    }
}

TEST_F(RescueTest, TheCopyOfTheLastNameIsToldOfToo) {
    LeaveCopy("/program/References/Back up files/Rescue_(99).csv");
    Start();
    rescue_.Offer();
    EXPECT_NE(frmNext.StartLine.Caption().find("Rescue_(99).csv"), std::string::npos);
}
}  // namespace

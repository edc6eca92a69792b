#include "taxa/edit_boxes.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class CellsTest : public SheetTest {
protected:
    CellsTest() {
        Begin("10");
        KeyNumber(5, 3);
        Played();
    }
    // What a user makes of the count of slot 5, from a press in its box on.
    void Edit(const std::string& text) {
        frmMain.Text2[5].MouseDown.Raise({MouseButton::Left, 0, 0});
        frmMain.Text2[5].Enter(text, 0);
    }
    void ExpectRefused(const std::string& text) {
        ASSERT_EQ(MessageCount(), 1u) << text;
        EXPECT_EQ(LastMessage().title, "Error");
        EXPECT_EQ(LastMessage().text, "Please input digit(s).");
        EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
        EXPECT_EQ(frmMain.Text2[5].Text(), "3") << text;
        EXPECT_EQ(Counts[5][1], 3) << text;
        EXPECT_EQ(Played(), Texts{"WaveError"}) << text;
        services_.messages.shown.clear();
    }
};

TEST_F(CellsTest, ACountTakesWholeNumbersAndNothingElse) {
    for (const bool amending : {true, false}) {
        AmendMode = amending;
        for (const char* bad : {"", "abc", "1a", "1.5", "007", "1e2", "+4", "-0", " 4", "4 ", "-"}) {
            Edit(bad);
            ExpectRefused(bad);
        }
        for (const auto& [text, count] : {std::pair{"12", 12}, {"0", 0}, {"-4", -4}, {"2147483647", 2147483647}, {"3", 3}}) {
            Edit(text);
            EXPECT_EQ(Counts[5][1], count) << text;
            EXPECT_EQ(MessageCount(), 0u) << text;
        }
    }
}

TEST_F(CellsTest, WithoutSoundARefusalIsSilent) {
    SoundOn = false;
    Edit("x");
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(CellsTest, TheCountFromBeforeThePressComesBackNotTheOneTypedSince) {
    AmendMode = true;
    Edit("12");
    frmMain.Text2[5].Enter("12x", 3);
    EXPECT_EQ(frmMain.Text2[5].Text(), "3");
    EXPECT_EQ(Counts[5][1], 3);
}

TEST_F(CellsTest, TheCountThatComesBackHasThePrecisionOfASingle) {
    for (const auto& [count, kept] : {std::pair{"16777216", "16777216"}, {"16777217", "16777216"}, {"123456789", "123456790"}}) {
        frmMain.Text2[5].SetText(count);
        Edit("x");
        EXPECT_EQ(MessageCount(), 1u) << count;
        EXPECT_EQ(frmMain.Text2[5].Text(), kept) << count;
        EXPECT_EQ(std::to_string(Counts[5][1]), kept) << count;
        services_.messages.shown.clear();
    }
}

TEST_F(CellsTest, ACountPast32BitsIsPassedOverInSilence) {
    AmendMode = true;
    Edit("2147483648");
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Counts[5][1], 3);
}

TEST_F(CellsTest, InModifyModeACountMovesTheTotalsAtOnce) {
    TaxonTable[5][kTaxonSubtotal1] = 1;
    AmendMode = true;
    SampleUntouched = true;
    Edit("12");
    EXPECT_EQ(frmMain.Text3[0].Text(), "12");
    EXPECT_EQ(frmMain.Text3[1].Text(), "12");
    EXPECT_FALSE(SampleUntouched);
}

TEST_F(CellsTest, WhileCountingACellMovesNoTotalOfItself) {
    SampleUntouched = true;
    frmMain.Text2[5].SetText("12");
    EXPECT_EQ(Counts[5][1], 12);
    EXPECT_EQ(frmMain.Text3[0].Text(), "3");
    EXPECT_TRUE(SampleUntouched);
}

TEST_F(CellsTest, ACellIsNotWatchedWhileItShowsAnotherSampleOrPercent) {
    frmMain.KeysEnabled = false;
    frmMain.Text2[5].SetText("66.7");
    frmMain.KeysEnabled = true;
    frmMain.ChangingSample = true;
    frmMain.Text2[5].SetText("9");
    frmMain.ChangingSample = false;
    EXPECT_EQ(Counts[5][1], 3);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(CellsTest, ANameReachesTheTableAtEveryKeystrokeInAllModes) {
    for (const bool amending : {false, true}) {
        AmendMode = amending;
        frmMain.Text1[135].SetText(amending ? "Abies" : "Pinus");
        EXPECT_EQ(TaxonTable[135][kTaxonName].Text(), amending ? "Abies" : "Pinus");
    }
}

TEST_F(CellsTest, TheNameOfTheSampleReachesTheTableInModifyModeAlone) {
    frmMain.Text1[0].SetText("11");
    EXPECT_EQ(frmMain.Combo2.Text(), "11");
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "10");
    AmendMode = true;
    frmMain.Text1[0].SetText("12");
    EXPECT_EQ(frmMain.Combo2.Text(), "12");
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "12");
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
}

TEST_F(CellsTest, TheNoteOfTheSampleOnShowFollowsItsBox) {
    KeyNumber(1);
    NextSample("20");
    SheetClean = true;
    frmMain.Text4.SetText("sand");
    EXPECT_EQ(SampleNotes[2], "sand");
    EXPECT_NE(SampleNotes[1], "sand");
    EXPECT_FALSE(SheetClean);
}

TEST_F(CellsTest, AdditionalInfoFollowsItsBoxAndIsShownBelow) {
    SheetClean = true;
    frmMain.mnuNew.SetEnabled(false);
    frmMain.Text5[6].SetText("16 m");
    EXPECT_EQ(ParamValues[6][1].Text(), "16 m");
    EXPECT_FALSE(ParamValues[6][1].IsNumber());
    EXPECT_FALSE(SheetClean);
    EXPECT_TRUE(frmMain.mnuNew.Enabled());
    EXPECT_EQ(frmMain.Label8.Caption(), "16 m");
}

TEST_F(CellsTest, ANameOfAdditionalInfoEndsInOneColon) {
    for (const auto& [caption, shown] : {std::pair{"Depth", "Depth:"}, {"Width:", "Width:"}, {"pH::", "pH::"}, {"", ":"}}) {
        frmMain.Label10[1].SetCaption(caption);
        EXPECT_EQ(frmMain.Label10[1].Caption(), shown);
    }
}

TEST_F(CellsTest, TypingInTheListRenamesTheSampleOnShow) {
    NextSample("20");
    ShowSample(1);
    WarnOldSample = false;
    frmMain.Command5[0].SetEnabled(false);
    frmMain.mnuSave.SetEnabled(false);
    frmMain.Combo2.Enter("11", 2);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "11");
    EXPECT_EQ(SampleTable[kSampleName][2].Text(), "20");
    EXPECT_TRUE(WarnOldSample);
    EXPECT_TRUE(frmMain.Command5[0].Enabled() && frmMain.mnuSave.Enabled());
}

TEST_F(CellsTest, ARenameInModifyModeCanBeSavedOnLeavingIt) {
    ClickControl(frmMain.Command3[0]);
    frmMain.Combo2.Enter("11", 2);
    EXPECT_FALSE(frmMain.Command5[0].Enabled() || frmMain.mnuSave.Enabled());
    ClickControl(frmMain.Command3[1]);
    EXPECT_TRUE(frmMain.Command5[0].Enabled() && frmMain.mnuSave.Enabled());
}

TEST_F(CellsTest, TheLabelOfTheSampleNameSelectsNoSlotAndLeavesNoNumberBold) {
    SelectedSlot = 6;
    frmMain.Label1[6].SetBold(true);
    ClickControl(frmMain.Label1[0]);
    EXPECT_EQ(SelectedSlot, 0);
    EXPECT_FALSE(frmMain.Label1[6].Bold());
    EXPECT_FALSE(frmMain.Label1[0].Bold());
    EXPECT_FALSE(CanReach(frmMain.mnuMoveTo1[0])) << "the menu is of Modify mode";
}

TEST_F(CellsTest, TheMenuOfACellOffersTheFarthestBankFirst) {
    Texts banks;
    for (const Control* control : frmMain.Controls())
        if (control->container == &frmMain.mnuMove2) banks.push_back(control->State().text);
    EXPECT_EQ(banks, (Texts{"91-135 (Shift 1 and 2)", "46-90 (Shift 1 or 2)", "1-45 (Neutral)"}));
}

TEST_F(CellsTest, ATextThatTheProgramPutsIntoTheListRenamesNothing) {
    frmMain.Combo2.SetText("11");
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "10");
}
}  // namespace

// A sample that is added to the sheet: its column, its place among the others, and what it takes with it.
#include "files/next_sample.h"

#include "files/format/read_sheet.h"
#include "platform/user.h"
#include "session/totals.h"
#include "unit/open_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
class NextSampleTest : public SheetTest {
protected:
    static Texts Names() {
        Texts names;
        for (int sample = 1; sample <= SampleCount; ++sample) names.push_back(SampleTable[kSampleName][sample].Text());
        return names;
    }
    static std::vector<int> Serials() {
        std::vector<int> serials;
        for (int sample = 1; sample <= SampleCount; ++sample)
            serials.push_back(static_cast<int>(SampleTable[kSampleSerial][sample].Number()));
        return serials;
    }
    // Samples 1, 2, 3 ... up to this many, one grain in each.
    void GrowTo(int samples) {
        SampleCount = static_cast<std::int16_t>(samples);
        for (int sample = 1; sample <= samples; ++sample) {
            SampleTable[kSampleSerial][sample] = sample;
            SampleTable[kSampleName][sample] = std::to_string(sample);
            Counts[1][sample] = 1;
        }
        MaxSerial = CurrentSample = SampleCount;
        PutInCell(1, "1");
        RecountTotals(CurrentSample);
    }
};

TEST_F(NextSampleTest, TheFirstNameGoesToTheColumnThatIsThere) {
    Begin("10");
    EXPECT_EQ(Names(), Texts{"10"});
    EXPECT_EQ(Serials(), std::vector<int>{1});
    EXPECT_EQ(MaxSerial, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(frmMain.Combo2.List(), Texts{"10"});
    EXPECT_FALSE(frmMain.mnuBar.Enabled());
}

TEST_F(NextSampleTest, TheNextNameMakesAColumnOfItsOwn) {
    Begin("10");
    KeyNumber(1, 2);
    NextSample("20");
    EXPECT_EQ(Names(), (Texts{"10", "20"}));
    EXPECT_EQ(Serials(), (std::vector<int>{1, 2}));
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(frmMain.Label4.Caption(), "2/2");
    EXPECT_EQ(frmMain.Combo2.List(), (Texts{"10", "20"}));
    EXPECT_EQ(frmMain.Combo2.Text(), "20");
    EXPECT_EQ(frmMain.Text1[0].Text(), "20");
    EXPECT_EQ(Counts[1][1], 2);
    EXPECT_EQ(frmMain.Text2[1].Text(), "0");
    EXPECT_FALSE(frmMain.Text2[1].Bold() || frmMain.Text1[1].Bold());
    EXPECT_TRUE(frmMain.mnuBar.Enabled() && frmMain.mnuDotCurve.Enabled()) << "two samples make a diagram";
}

TEST_F(NextSampleTest, NumericNamesStandInTheirOrder) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    KeyNumber(2);
    NextSample("15");
    EXPECT_EQ(Names(), (Texts{"10", "15", "20"}));
    EXPECT_EQ(Serials(), (std::vector<int>{1, 3, 2}));
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(frmMain.Label4.Caption(), "3/3");
    EXPECT_EQ(frmMain.Combo2.List(), (Texts{"10", "15", "20"}));
    EXPECT_EQ(frmMain.Combo2.Text(), "15");
    EXPECT_EQ(Counts[2][3], 1);
    KeyNumber(3);
    EXPECT_EQ(Counts[3][2], 1);
}

TEST_F(NextSampleTest, ANewNameGoesBehindItsEqualsAndNegativesToTheFront) {
    Begin("10");
    KeyNumber(1);
    for (const char* name : {"-2.5", "0", "-30", "9.9", "100"}) {
        NextSample(name);
        KeyNumber(1);
    }
    EXPECT_EQ(Names(), (Texts{"-30", "-2.5", "0", "9.9", "10", "100"}));
    SampleTable[kSampleName][5] = "50.0";  // renamed since
    NextSample("50");
    EXPECT_EQ(Names(), (Texts{"-30", "-2.5", "0", "9.9", "50.0", "50", "100"}));
}

TEST_F(NextSampleTest, OneTextAmongTheNamesEndsAllOrdering) {
    Begin("10");
    KeyNumber(1);
    NextSample("top");
    KeyNumber(1);
    NextSample("5");
    EXPECT_EQ(Names(), (Texts{"10", "top", "5"}));
    EXPECT_TRUE(SampleNamesAreText);
    EXPECT_EQ(CurrentSample, 3);
}

TEST_F(NextSampleTest, AnEmptyNameIsTheNumberOfTheSample) {
    Begin("");
    EXPECT_EQ(Names(), Texts{"1: ---"});
    KeyNumber(1);
    NextSample("");
    KeyNumber(1);
    NextSample("");
    EXPECT_EQ(Names(), (Texts{"1: ---", "2: ---", "3: ---"}));
    EXPECT_TRUE(SampleNamesAreText);
}

TEST_F(NextSampleTest, ANameThatIsThereIsRefusedAndTheWindowStays) {
    Begin("10");
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, "10");
    ClickControl(frmNext.Command1);
    ASSERT_EQ(MessageCount(), 1u);
    EXPECT_EQ(LastMessage().title, "Error!");
    EXPECT_EQ(LastMessage().text, "The sample name is already used. Choose another name.");
    EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
    EXPECT_TRUE(frmNext.Visible());
    EXPECT_EQ(frmNext.Text1.Text(), "10");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_TRUE(frmMain.Enabled());
    EXPECT_TRUE(frmNext.Command5[1].Visible());
}

TEST_F(NextSampleTest, TheNameOfAFreshSheetIsTakenToo) {
    Start();
    ClickControl(frmNext.Command4);
    InsertText(frmNext.Text1, "-9999");
    ClickControl(frmNext.Command1);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_TRUE(frmNext.Visible());
}

TEST_F(NextSampleTest, AColumnThatAnEarlierSheetFilledBeginsAt0) {
    Begin("10");
    KeyNumber(1);
    for (int slot = 0; slot <= kSlots; ++slot) Counts[slot][2] = 77;
    NextSample("20");
    for (int slot = 1; slot <= kSlots; ++slot) EXPECT_EQ(Counts[slot][2], 0) << slot;
    EXPECT_EQ(AllTotal, 0);
}

TEST_F(NextSampleTest, AllTotalsAndTheCurveBeginAt0) {
    Begin("10");
    TaxonTable[1][kTaxonSubtotal1] = TaxonTable[1][kTaxonSubtotal2] = 1;
    KeyNumber(1, 3);
    NextSample("20");
    for (const TextBox& total : frmMain.Text3) EXPECT_EQ(total.Text(), "0");
    EXPECT_TRUE(TaxonTable[0][kTaxonSubtotal1] == 0 && TaxonTable[0][kTaxonSubtotal2] == 0);
    EXPECT_TRUE(frmMain.Picture2.Operations().empty());
}

TEST_F(NextSampleTest, NoteAndAdditionalInfoComeWithIt) {
    Begin("10");
    KeyNumber(1);
    services_.clock.time = "12:00:00";
    ClickControl(frmMain.Command5[1]);
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, "20");
    ClickControl(frmNext.Text3[2]);
    InsertText(frmNext.Text3[2], "16 m");
    frmNext.Text3[3].SetText("");
    ClickControl(frmNext.Command1);
    EXPECT_EQ(SampleNotes[2], "Created: 14/11/2026 (12:00:00)\r\nNote: ");
    EXPECT_EQ(frmMain.Text4.Text(), SampleNotes[2]);
    EXPECT_EQ(ParamValues[2][2].Text(), "16 m");
    EXPECT_EQ(frmMain.Text5[2].Text(), "16 m");
    EXPECT_EQ(ParamValues[3][2].Text(), "---");
    EXPECT_EQ(ParamValues[2][1].Text(), "---");
}

TEST_F(NextSampleTest, NamesOfAdditionalInfoGivenBeforeTheFirstSampleReachTheMainWindow) {
    Start();
    ClickControl(frmNext.Command4);
    InsertText(frmNext.Text1, "10");
    frmNext.Label3[1].SetCaption("Depth");
    ClickControl(frmNext.Command1);
    EXPECT_EQ(frmMain.Label10[1].Caption(), "Depth:");
    EXPECT_EQ(frmMain.Label10[2].Caption(), "Additional info-2:");
}

TEST_F(NextSampleTest, The250thIsAddedAndThe251stRefused) {
    Begin("1");
    GrowTo(249);
    NextSample("250");
    EXPECT_EQ(SampleCount, 250);
    KeyNumber(1);
    for (Control* command : std::initializer_list<Control*>{&frmMain.Command5[1], &frmMain.mnuNext}) {
        services_.messages.shown.clear();
        ClickControl(*command);
        ASSERT_EQ(MessageCount(), 1u) << command->name;
        EXPECT_EQ(LastMessage().title, "Format regulation");
        EXPECT_EQ(LastMessage().text, "Sample number reached 250. Please create new data sheet.");
        EXPECT_EQ(LastMessage().icon, Icon::Information);
        EXPECT_FALSE(frmNext.IsLoaded()) << command->name;
        EXPECT_TRUE(frmMain.Enabled()) << command->name;
    }
    EXPECT_EQ(SampleCount, 250);
}

TEST_F(NextSampleTest, ASheetThatWasReadWith251SamplesCanGrow) {
    Begin("1");
    GrowTo(251);
    NextSample("300");
    EXPECT_EQ(SampleCount, 252);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(NextSampleTest, PastTheColumnsThatThereAreTheProgramEnds) {
    Begin("1");
    GrowTo(254);
    NextSample("300");
    EXPECT_EQ(SampleCount, 255);
    KeyNumber(1);
    RunEvent([this] { NextSample("301"); });
    EXPECT_EQ(services_.host.failure, "Subscript out of range");
    EXPECT_EQ(SampleCount, 255);
}

TEST_F(NextSampleTest, TheLargestSerialCountsWhereverItStands) {
    Begin("1");
    GrowTo(3);
    SampleTable[kSampleSerial][1] = 40;
    EXPECT_EQ(LargestSerial(), 40);
    NextSample("9");
    EXPECT_EQ(Serials(), (std::vector<int>{40, 2, 3, 41}));
    EXPECT_EQ(frmMain.Label4.Caption(), "41/41");
}

TEST_F(NextSampleTest, WithoutAnySerialTheLargestIs0) {
    Begin("1");
    SampleTable[kSampleSerial][1] = -9999;
    EXPECT_EQ(LargestSerial(), 0);
    SampleTable[kSampleSerial][1] = -9998;
    EXPECT_EQ(LargestSerial(), -9998);
}

TEST_F(NextSampleTest, TheStateThatResetGoesBackToHasTheColumn) {
    Begin("10");
    KeyNumber(1, 3);
    NextSample("20");
    ASSERT_EQ(CountsAtOpen.size(), 3u);
    EXPECT_EQ(CountsAtOpen[1][1], 3);
    EXPECT_EQ(CountsAtOpen[2][1], 0);
}

TEST_F(NextSampleTest, AFirstNameEmptiesWhatWasCountedBeforeIt) {
    Start();
    CloseWindow(frmNext);
    KeyNumber(1, 3);
    NextSample("10");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(CountsAtOpen[1][1], 0);
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
}

TEST_F(NextSampleTest, AFirstSampleThatIsCalledMinus9999CountsAsUnnamed) {
    Begin("10");
    KeyNumber(1, 3);
    SampleTable[kSampleName][1] = "-9999";
    NextSample("20");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "20");
    EXPECT_EQ(Counts[1][1], 0);
}

class NextSampleAfterOpenTest : public OpenTest {};

TEST_F(NextSampleAfterOpenTest, ASheetSavedBeforeItsFirstSampleHadANameLosesItsCounts) {
    Rows rows = DataSheet(1);
    rows[1][4] = "\"-9999\"";
    ASSERT_TRUE(Open(rows));
    ASSERT_EQ(Counts[1][1], 2);
    NextSample("20");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(Counts[1][1], 0);
}
}  // namespace

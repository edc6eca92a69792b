#include "files/save_sheet.h"

#include <limits>

#include "platform/failure.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kPath = "/sheets/Mere.csv";

class SaveSheetTest : public SheetTest {
protected:
    // Three taxa, two subtotals and two samples, the second on show.
    void CountTwoSamples() {
        services_.clock.time = "09:02:41";
        Start();
        ClickControl(frmNext.Command4);
        InsertText(frmNext.Text1, "12.5");
        frmNext.Label3[1].SetCaption("Depth of core");
        frmNext.Text3[1].SetText("14 m");
        ClickControl(frmNext.Command1);
        SheetHeader[kHeaderSubtotal1] = "Trees";
        SheetHeader[kHeaderSubtotal2] = "Herbs";
        const char* const names[] = {"Pinus", "Quercus", "Poaceae"};
        for (int slot = 1; slot <= 3; ++slot) {
            frmMain.Text1[slot].SetText(names[slot - 1]);
            TaxonTable[slot][slot == 3 ? kTaxonSubtotal2 : kTaxonSubtotal1] = 1;
        }
        KeyNumber(1, 40);
        KeyNumber(2, 9);
        KeyNumber(3);
        services_.clock.time = "09:40:07";
        ClickControl(frmMain.Command5[1]);
        ClickControl(frmNext.Text1);
        InsertText(frmNext.Text1, "15.0");
        frmNext.Text3[1].SetText("16 m");
        ClickControl(frmNext.Command1);
        KeyNumber(1, 12);
        KeyNumber(3, 3);
        services_.clock.time = "10:11:12";
    }
};

TEST_F(SaveSheetTest, ASheetOfTwoSamplesIsTheseBytes) {
    CountTwoSamples();
    AnswerDialog("C:\\Counts\\Mere.csv");
    SaveSheet(kSave);
    std::string expected =
        "\"C:\\Counts\\Mere.csv\",\"Last saved (dd/mm/yyyy):\",\"14/11/2026_(10:11:12)\",\"Serial No.\",1,2\r\n"
        "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"12.5\",\"15.0\"\r\n"
        "1,1,0,\"Pinus\",40,12\r\n"
        "2,1,0,\"Quercus\",9,0\r\n"
        "3,0,1,\"Poaceae\",1,3\r\n";
    for (int slot = 4; slot <= 135; ++slot) expected += std::to_string(slot) + ",0,0,\"---\",0,0\r\n";
    expected +=
        "\"---\",\"---\",\"---\",\"Depth of core\",\"14 m\",\"16 m\"\r\n"
        "\"---\",\"---\",\"---\",\"Additional info-2\",\"---\",\"---\"\r\n"
        "\"---\",\"---\",\"---\",\"Additional info-3\",\"---\",\"---\"\r\n"
        "\"---\",\"---\",\"---\",\"Additional info-4\",\"---\",\"---\"\r\n"
        "\"---\",\"---\",\"---\",\"Additional info-5\",\"---\",\"---\"\r\n"
        "\"---\",\"---\",\"---\",\"Additional info-6\",\"---\",\"---\"\r\n"
        "\"---\",\"---\",\"---\",\"Note: \",\"Created: 14/11/2026 (09:02:41)\r\nNote: \",\"Created: 14/11/2026 (09:40:07)\r\nNote: \r\n"
        "Last saved: 14/11/2026 (10:11:12)\"\r\n"
        "\"---\",\"---\",\"---\",\"Trees\",49,12\r\n"
        "\"---\",\"---\",\"---\",\"Herbs\",1,3\r\n"
        "\"---\",\"---\",\"---\",\"All total\",50,15\r\n";
    EXPECT_EQ(files_.bytes["C:\\Counts\\Mere.csv"], expected);
}

TEST_F(SaveSheetTest, WithOneSampleARowHasFiveCells) {
    Begin("10");
    KeyNumber(1, 3);
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 2), "\"Key index\",\"Subtotal-1\",\"Subtotal-2\",\"Sample name\",\"10\"");
    EXPECT_EQ(FileLine(kPath, 3), "1,0,0,\"---\",3");
    EXPECT_EQ(FileLine(kPath, 137), "135,0,0,\"---\",0");
}

TEST_F(SaveSheetTest, TaxaStandInTheOrderOfTheSheetNotOfTheSlots) {
    Begin("10");
    KeyNumber(1, 3);
    std::swap(KeyIndex[1], KeyIndex[135]);
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 3), "135,0,0,\"---\",0");
    EXPECT_EQ(FileLine(kPath, 137), "1,0,0,\"---\",3");
}

TEST_F(SaveSheetTest, CountsBelow0AndWhatStoodBareStayBare) {
    Begin("10");
    frmMain.Text2[1].SetText("-7");
    ParamValues[1][1] = 12.5;
    ParamValues[2][1] = "12.5";
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 3), "1,0,0,\"---\",-7");
    EXPECT_EQ(FileLine(kPath, 138), "\"---\",\"---\",\"---\",\"Additional info-1\",12.5");
    EXPECT_EQ(FileLine(kPath, 139), "\"---\",\"---\",\"---\",\"Additional info-2\",\"12.5\"");
}

TEST_F(SaveSheetTest, TheNameAndTheCountsOnTheScreenReachTheFile) {
    Begin("10");
    PutInCell(5, "8");
    frmMain.Combo2.SetText("11");
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 7), "5,0,0,\"---\",8");
    EXPECT_EQ(FileLine(kPath, 2), "\"Key index\",\"Subtotal-1\",\"Subtotal-2\",\"Sample name\",\"11\"");
    EXPECT_EQ(Counts[5][1], 8);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "11");
}

TEST_F(SaveSheetTest, EveryEmptyFieldIsFilledInTheSessionToo) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    SampleNotes[1] = "";
    ParamValues[3][1] = "";
    ParamHeader[2][2] = "";
    SaveAs(kPath);
    EXPECT_EQ(SampleNotes[1], "---");
    EXPECT_EQ(ParamValues[3][1].Text(), "---");
    for (int p = 1; p <= kParams; ++p)
        for (int cell = 1; cell <= 3; ++cell) EXPECT_EQ(ParamHeader[p][cell], "---") << p << cell;
    EXPECT_EQ(FileLine(kPath, 140), "\"---\",\"---\",\"---\",\"Additional info-3\",\"---\",\"---\"");
}

TEST_F(SaveSheetTest, TheNameOfAFieldComesFromTheScreenLessOneColon) {
    Begin("10");
    frmMain.Label10[1].SetCaption("pH");
    frmMain.Label10[2].SetCaption("Ratio 1:2::");
    ParamHeader[1][kParamName] = "another";
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 138), "\"---\",\"---\",\"---\",\"pH\",\"---\"");
    EXPECT_EQ(FileLine(kPath, 139), "\"---\",\"---\",\"---\",\"Ratio 1:2:\",\"---\"");
}

TEST_F(SaveSheetTest, AnAccentIsOneByteAndWhatThatPageLacksMakesTheFileUtf8) {
    Begin("10");
    frmMain.Text1[1].SetText("Ch\u00e2taignier");
    SaveAs(kPath);
    EXPECT_EQ(FileLine(kPath, 3), "1,0,0,\"Ch\xE2taignier\",0");
    frmMain.Text1[2].SetText("\u0141\u0105ka");
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kPath, 3), "1,0,0,\"Ch\xC3\xA2taignier\",0");
    EXPECT_EQ(FileLine(kPath, 4), "2,0,0,\"\xC5\x81\xC4\x85ka\",0");
    EXPECT_EQ(files_.bytes[kPath].front(), '"') << "no mark stands before it";
}

TEST_F(SaveSheetTest, ASaveSwitchesSaveOffAndWhatFollowsItOn) {
    Begin("10");
    KeyNumber(1);
    Key(kShift1);  // mnuNext off
    frmMain.mnuSaveCopy.SetEnabled(false);
    TemplateOpened = true;
    Played();
    SaveAs(kPath);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_TRUE(frmMain.Command5[1].Enabled());
    EXPECT_TRUE(frmMain.mnuNext.Enabled());
    EXPECT_TRUE(frmMain.mnuSaveCopy.Enabled());
    EXPECT_FALSE(TemplateOpened);
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_EQ(LastLines(1), Texts{"(Save)"});
    EXPECT_EQ(SaveOutcome, 0);
}

TEST_F(SaveSheetTest, PointerAndProgressBarAreBackAfterIt) {
    Begin("10");
    SaveAs(kPath);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
    EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
}

TEST_F(SaveSheetTest, ASumOf16BitsIsTheLargestThatIsWritten) {
    Begin("10");
    for (const int sum : {32767, -32768}) {
        Counts[1][1] = sum;
        frmMain.Text2[1].SetText(std::to_string(sum));
        SaveAs(kPath);
        const std::string end = "\"All total\"," + std::to_string(sum) + "\r\n";
        EXPECT_TRUE(files_.bytes[kPath].ends_with(end)) << sum;
    }
}

TEST_F(SaveSheetTest, ASumBeyondItStopsTheRunBeforeAnythingIsAskedOrWritten) {
    Begin("10");
    SaveAs(kPath);
    const std::string before = files_.bytes[kPath];
    for (const int sum : {32768, -32769, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        Counts[1][1] = sum;
        EXPECT_THROW(SaveSheet(kSave), Failure) << sum;
        EXPECT_THROW(SaveSheet(kSaveAs), Failure) << sum;
        EXPECT_EQ(files_.bytes[kPath], before) << sum;
        EXPECT_EQ(MessageCount(), 0u) << sum;
        EXPECT_EQ(services_.dialogs.asked.size(), 1u) << sum;
    }
}

TEST_F(SaveSheetTest, ASumBeyond32BitsStopsTheRunAsWell) {
    Begin("10");
    for (const int sign : {1, -1}) {
        Counts[1][1] = 32767 * sign;
        for (const int count : {sign * std::numeric_limits<int>::max(), sign * std::numeric_limits<int>::max() - 32766 * sign}) {
            Counts[2][1] = count;
            EXPECT_THROW(SaveSheet(kSaveAs), Failure) << count;
        }
    }
}

TEST_F(SaveSheetTest, ASubtotalBeyondItStopsTheRunAsWell) {
    Begin("10");
    Counts[1][1] = 20000;
    Counts[2][1] = 20000;
    Counts[3][1] = -20000;
    TaxonTable[1][kTaxonSubtotal2] = TaxonTable[2][kTaxonSubtotal2] = 1;
    EXPECT_THROW(SaveSheet(kSaveAs), Failure);
}

TEST_F(SaveSheetTest, AFlagOfAnyValueWeighsTheCountsOfItsTaxon) {
    Begin("10");
    const double flags[] = {1, 0, 2, -1, 0.5, 0.5};
    const int counts[] = {10, 7, 3, 4, 5, 3};  // 10, 10, 16, 12, 14.5 and with it 14, 15.5 and with it 16
    for (int slot = 1; slot <= 6; ++slot) {
        KeyNumber(slot, counts[slot - 1]);
        TaxonTable[slot][kTaxonSubtotal1] = flags[slot - 1];
    }
    SaveAs(kPath);
    EXPECT_TRUE(
        files_.bytes[kPath].ends_with("\"Subtotal-1\",16\r\n\"---\",\"---\",\"---\",\"Subtotal-2\",0\r\n"
                                      "\"---\",\"---\",\"---\",\"All total\",32\r\n"));
}

TEST_F(SaveSheetTest, AWeightedSumBeyondItStopsTheRunAsWell) {
    Begin("10");
    TaxonTable[1][kTaxonSubtotal1] = 2;
    for (const int count : {16384, -16385}) {
        Counts[1][1] = count;
        EXPECT_THROW(SaveSheet(kSaveAs), Failure) << count;
    }
}
}  // namespace

#include "diagram/move_sample_column.h"

#include <random>
#include <vector>

#include "diagram/data/percentages.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
// A sample with all that belongs to it, by value.
struct Column {
    std::int16_t serial;
    std::string name, note;
    std::vector<std::int32_t> counts;
    std::vector<float> shares;
    Texts params;
    bool operator==(const Column&) const = default;
};

Column Read(int sample) {
    Column column{static_cast<std::int16_t>(SampleTable[kSampleSerial][sample].Number()),
                  SampleTable[kSampleName][sample].Text(),
                  SampleNotes[sample],
                  {},
                  {},
                  {}};
    for (int slot = 1; slot <= kSlots; ++slot) {
        column.counts.push_back(Counts[slot][sample]);
        column.shares.push_back(SamplePercent[slot][sample]);
    }
    for (int p = 1; p <= kParams; ++p) column.params.push_back(ParamValues[p][sample].Text());
    return column;
}

class MoveSampleColumnTest : public SheetTest {
protected:
    MoveSampleColumnTest() { Begin("10"); }

    // Samples "A1", "A2", ... each with contents of its own.
    static void Fill(int samples) {
        SampleCount = static_cast<std::int16_t>(samples);
        frmMain.Combo2.Clear();
        for (int sample = 1; sample <= samples; ++sample) {
            SampleTable[kSampleSerial][sample] = sample;
            SampleTable[kSampleName][sample] = "A" + std::to_string(sample);
            frmMain.Combo2.AddItem("A" + std::to_string(sample));
            SampleNotes[sample] = "note " + std::to_string(sample);
            for (int slot = 1; slot <= kSlots; ++slot) {
                Counts[slot][sample] = 1000 * sample + slot;
                SamplePercent[slot][sample] = static_cast<float>(sample) / static_cast<float>(slot);
            }
            for (int p = 1; p <= kParams; ++p) ParamValues[p][sample] = std::to_string(sample) + "/" + std::to_string(p);
        }
    }
    static void Move(int from, int to) {
        MoveFrom = static_cast<std::int16_t>(from);
        MoveTo = static_cast<std::int16_t>(to);
        MoveSampleColumn();
    }
    static std::vector<Column> ReadAll() {
        std::vector<Column> columns;
        for (int sample = 1; sample <= SampleCount; ++sample) columns.push_back(Read(sample));
        return columns;
    }
};

TEST_F(MoveSampleColumnTest, ItAgreesWithTakingAColumnOutAndPuttingItInElsewhere) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    for (int round = 0; round < 25; ++round) {
        const int samples = std::uniform_int_distribution(1, round == 0 ? 255 : 40)(random);
        std::uniform_int_distribution place(1, samples);
        const int from = place(random);
        const int to = place(random);
        Fill(samples);
        std::vector<Column> expected = ReadAll();
        const Column moved = expected[from - 1];
        expected.erase(expected.begin() + from - 1);
        expected.insert(expected.begin() + to - 1, moved);
        Move(from, to);
        ASSERT_TRUE(ReadAll() == expected) << "seed " << seed << ": " << from << " to " << to << " of " << samples;
    }
}

TEST_F(MoveSampleColumnTest, ToItsOwnPlaceItDoesNothingAtAll) {
    Fill(3);
    CurrentSample = 2;
    frmMain.Command5[0].SetEnabled(false);
    frmMain.Combo2.SetText("as it was");
    Counts[1][2] = 16777217;
    Move(2, 2);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(frmMain.Combo2.Text(), "as it was");
    EXPECT_EQ(Counts[1][2], 16777217);
}

TEST_F(MoveSampleColumnTest, ADiagramThatIsClosedIsNotDrawn) {
    Fill(3);
    Move(1, 3);
    EXPECT_TRUE(frmDiagram.Combo2.List().empty());
    EXPECT_TRUE(frmDiagram.Picture1.Operations().empty());
}

TEST_F(MoveSampleColumnTest, TheSampleOnShowStaysOnShowWhenItIsTheOneThatMoves) {
    Fill(4);
    CurrentSample = 4;
    frmMain.Combo2.SetText("A4");
    Move(4, 2);
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(frmMain.Combo2.Text(), "A4");
    EXPECT_EQ(frmMain.Combo2.List(), (Texts{"A1", "A4", "A2", "A3"}));
}

TEST_F(MoveSampleColumnTest, AnotherSampleOnShowKeepsItsNumberAndTheTextOfTheList) {
    Fill(4);
    CurrentSample = 4;
    frmMain.Combo2.SetText("A4");
    Move(1, 3);
    EXPECT_EQ(CurrentSample, 4);
    EXPECT_EQ(frmMain.Combo2.Text(), "A4");
    EXPECT_EQ(frmMain.Combo2.List(), (Texts{"A2", "A3", "A1", "A4"}));
}

TEST_F(MoveSampleColumnTest, TheSheetThenCountsAsChanged) {
    Fill(2);
    frmMain.Command5[0].SetEnabled(false);
    frmMain.mnuSave.SetEnabled(false);
    Move(1, 2);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_TRUE(frmMain.mnuSave.Enabled());
}

TEST_F(MoveSampleColumnTest, InModifyModeSavingWaitsForItsEnd) {
    Fill(2);
    ClickControl(frmMain.Command3[0]);
    Move(1, 2);
    EXPECT_FALSE(frmMain.Command5[0].Enabled() || frmMain.mnuSave.Enabled());
    ClickControl(frmMain.Command3[1]);
    EXPECT_TRUE(frmMain.Command5[0].Enabled() && frmMain.mnuSave.Enabled());
}

TEST_F(MoveSampleColumnTest, OnlyTheMovedCountsPassThroughASingle) {
    Fill(2);
    Counts[1][1] = 16777217;
    Counts[2][1] = 16777216;
    Counts[1][2] = 16777217;
    Move(1, 2);
    EXPECT_EQ(Counts[1][2], 16777216);
    EXPECT_EQ(Counts[2][2], 16777216);
    EXPECT_EQ(Counts[1][1], 16777217);
}

TEST_F(MoveSampleColumnTest, TheNamesAsTheDiagramTookThemUpAndTheBasisSumsStay) {
    Fill(3);
    for (int sample = 1; sample <= 3; ++sample) {
        SampleTable[kSampleNameDrawn][sample] = sample;
        Counts[0][sample] = sample;
    }
    Move(3, 1);
    for (int sample = 1; sample <= 3; ++sample) {
        EXPECT_EQ(SampleTable[kSampleNameDrawn][sample].Number(), sample);
        EXPECT_EQ(Counts[0][sample], sample);
    }
}

TEST_F(MoveSampleColumnTest, ABareValueStaysBare) {
    Fill(2);
    ParamValues[1][1] = 12.5;
    Move(1, 2);
    EXPECT_TRUE(ParamValues[1][2].IsNumber());
}
TEST_F(MoveSampleColumnTest, ASampleOnShowBetweenTheTwoPlacesGoesAlongWithItsColumn) {
    Fill(4);
    CurrentSample = 2;
    frmMain.Combo2.SetText("A2");
    Move(4, 1);
    EXPECT_EQ(CurrentSample, 3);
    EXPECT_EQ(SampleTable[kSampleName][CurrentSample].Text(), "A2");
    Move(1, 4);
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(frmMain.Combo2.Text(), "A2");
}

TEST_F(MoveSampleColumnTest, WhatIsUndoneLaterBelongsToTheSampleWhereItWasCounted) {
    Fill(4);
    UndoList[0][kUndoSample] = 4;
    UndoList[0][kUndoSlot] = 7;
    UndoList[1][kUndoSample] = 1;
    UndoList[1][kUndoSlot] = -3;
    Move(4, 2);
    EXPECT_EQ(UndoList[0][kUndoSample], 2);
    EXPECT_EQ(UndoList[1][kUndoSample], 1);
}
}  // namespace

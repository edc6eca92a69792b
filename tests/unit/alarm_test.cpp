#include "session/sound.h"

#include "platform/user.h"
#include "session/key_dispatch.h"
#include "session/totals.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kMaster = "/program/References/Back up files/Master_back_up.csv";

class AlarmTest : public SheetTest {
protected:
    AlarmTest() { Begin("10"); }

    void CountedSoFar(int total) {  // all of it on slot 2
        PutInCell(2, std::to_string(total));
        RecountTotals(1);
        Played();
    }
    void Subtract(int key) {
        PressKey(kUndo);
        KeyNumber(key);
        ReleaseKey(kUndo);
    }
};

TEST_F(AlarmTest, ItSoundsAtEveryFullHundredAndNowhereElse) {
    struct {
        int before;
        const char* wave;
    } cases[] = {{0, "WaveKey1"},    {98, "WaveKey1"},   {99, "WaveAlarm"}, {100, "WaveKey1"},   {198, "WaveKey1"},
                 {199, "WaveAlarm"}, {999, "WaveAlarm"}, {149, "WaveKey1"}, {-101, "WaveAlarm"}, {-102, "WaveKey1"}};
    for (const auto& each : cases) {
        CountedSoFar(each.before);
        AlarmArmed = true;
        KeyNumber(1);
        EXPECT_EQ(Played(), Texts{each.wave}) << each.before + 1;
        PutInCell(1, "0");
    }
}

TEST_F(AlarmTest, ItFiresOnceAndIsArmedAgainOneBelow) {
    CountedSoFar(98);
    AlarmArmed = false;
    KeyNumber(1, 2);
    EXPECT_EQ(Played(), (Texts{"WaveKey1", "WaveAlarm"}));
    EXPECT_FALSE(AlarmArmed);
    Subtract(1);
    KeyNumber(1);
    EXPECT_EQ(Played(), (Texts{"WaveUndo", "WaveAlarm"}));
}

TEST_F(AlarmTest, ItIsSilentAtAHundredWhileItIsNotArmed) {
    CountedSoFar(99);
    AlarmArmed = false;
    KeyNumber(1);
    EXPECT_EQ(Played(), Texts{"WaveKey1"});
    EXPECT_FALSE(AlarmArmed);
}

TEST_F(AlarmTest, AReverseCountDownToAHundredSoundsItToo) {
    CountedSoFar(101);
    Subtract(2);
    EXPECT_EQ(Played(), Texts{"WaveAlarm"});
}

TEST_F(AlarmTest, AReverseCountElsewhereArmsIt) {
    CountedSoFar(150);
    AlarmArmed = false;
    Subtract(2);
    EXPECT_EQ(Played(), Texts{"WaveUndo"});
    EXPECT_TRUE(AlarmArmed);
}

TEST_F(AlarmTest, ATotalOf0IsNoHundred) {
    CountedSoFar(1);
    Subtract(2);
    EXPECT_EQ(Played(), Texts{"WaveUndo"});
}

TEST_F(AlarmTest, OnlyTheChosenTotalSoundsIt) {
    TaxonTable[1][kTaxonSubtotal1] = 1;  // Subtotal-1
    PutInCell(1, "99");
    CountedSoFar(50);
    ClickControl(frmMain.Option1[1]);
    KeyNumber(1);
    EXPECT_EQ(Played(), Texts{"WaveAlarm"});
    CountedSoFar(99);  // 199 in all
    AlarmArmed = true;
    KeyNumber(2);
    EXPECT_EQ(frmMain.Text3[0].Text(), "200");
    EXPECT_EQ(Played(), Texts{"WaveAlarm"}) << "Subtotal-1 still stands at 100";
    KeyNumber(1);
    EXPECT_EQ(Played(), Texts{"WaveKey1"});
}

TEST_F(AlarmTest, TheBackUpOfAnAlarmHoldsTheHundredthGrain) {
    CountedSoFar(99);
    EXPECT_EQ(files_.bytes.count(kMaster), 0u);
    KeyNumber(1);
    EXPECT_EQ(FileLine(kMaster, 3), "1,0,0,\"---\",1");
    EXPECT_EQ(FileLine(kMaster, 4), "2,0,0,\"---\",99");
}

TEST_F(AlarmTest, WithoutSoundThereIsNoAlarmAndNoBackUpButItIsArmed) {
    SoundOn = false;
    CountedSoFar(98);
    AlarmArmed = false;
    KeyNumber(1);
    EXPECT_TRUE(AlarmArmed);
    KeyNumber(1);
    EXPECT_TRUE(AlarmArmed);
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(files_.bytes.count(kMaster), 0u);
}

TEST_F(AlarmTest, AShiftKeyAtAHundredSoundsNothing) {
    CountedSoFar(100);
    Key(kShift1);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(AlarmTest, EveryCountedKeyPassesTheOldSampleTest) {
    WarnOldSample = true;
    CountedSoFar(99);
    KeyNumber(1);
    EXPECT_FALSE(WarnOldSample);
}

TEST_F(AlarmTest, ChoosingABasisArmsItAndUnderlinesItsMembers) {
    TaxonTable[1][kTaxonSubtotal1] = TaxonTable[2][kTaxonSubtotal2] = 1;
    for (const int basis : {1, 2, 0}) {
        AlarmArmed = false;
        ClickControl(frmMain.Option1[basis]);
        EXPECT_TRUE(AlarmArmed) << basis;
        for (int slot = 1; slot <= kSlots; ++slot) EXPECT_EQ(frmMain.Text1[slot].Underline(), slot == basis) << basis << ", slot " << slot;
    }
}

TEST_F(AlarmTest, OneBelowAFullHundredArmsItOnBothSidesOf0) {
    struct {
        int before;
        bool armed;
    } cases[] = {{98, true}, {97, false}, {198, true}, {-2, true}, {-3, false}, {-102, true}, {-103, false}};
    for (const auto& each : cases) {
        CountedSoFar(each.before);
        AlarmArmed = false;
        KeyNumber(1);
        EXPECT_EQ(AlarmArmed, each.armed) << each.before + 1;
        EXPECT_EQ(Played(), Texts{"WaveKey1"}) << each.before + 1;
        PutInCell(1, "0");
    }
}
}  // namespace

#include "session/pad_cells.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class ItalicsTest : public SheetTest {
protected:
    ItalicsTest() { Begin("10"); }
    int ItalicNames() const {
        int names = 0;
        for (int slot = 1; slot <= kSlots; ++slot) names += frmMain.Text1[slot].Italic();
        return names;
    }
};

TEST_F(ItalicsTest, GeneraAreItalicFamiliesAndEmptySlotsUpright) {
    struct {
        const char* name;
        bool italic;
    } cases[] = {{"Pinus", true}, {"Poaceae", false}, {"POACEAE", false}, {"PoaceaE", true}, {"PoaceAe", true}, {"Alnus ae", false},
                 {"ae", false},   {"e", true},        {"Aea", true},      {"---", false},    {"----", true}};
    for (const auto& each : cases) {
        frmMain.Text1[7].SetText(each.name);
        ApplyItalics();
        EXPECT_EQ(frmMain.Text1[7].Italic(), each.italic) << each.name;
    }
}

TEST_F(ItalicsTest, WithTheMenuUncheckedAllNamesAreUpright) {
    frmMain.Text1[1].SetText("Pinus");
    ApplyItalics();
    EXPECT_EQ(ItalicNames(), 1);
    frmMain.mnuItalic.SetChecked(false);
    ApplyItalics();
    EXPECT_EQ(ItalicNames(), 0);
}

TEST_F(ItalicsTest, TheMenuTurnsThemOffAndOn) {
    frmMain.Text1[135].SetText("Pinus");
    EXPECT_TRUE(frmMain.mnuItalic.Checked());
    ClickControl(frmMain.mnuItalic);
    EXPECT_FALSE(frmMain.mnuItalic.Checked());
    EXPECT_EQ(ItalicNames(), 0);
    ClickControl(frmMain.mnuItalic);
    EXPECT_TRUE(frmMain.mnuItalic.Checked());
    EXPECT_TRUE(frmMain.Text1[135].Italic());
}

TEST_F(ItalicsTest, AListOf135GeneraIsUprightAndOneOf134IsNot) {
    for (int slot = 1; slot <= kSlots; ++slot) frmMain.Text1[slot].SetText("Genus " + std::to_string(slot));
    ApplyItalics();
    EXPECT_EQ(ItalicNames(), 0);
    frmMain.Text1[60].SetText("Rosaceae");
    ApplyItalics();
    EXPECT_EQ(ItalicNames(), 134);
    EXPECT_FALSE(frmMain.Text1[60].Italic());
}

TEST_F(ItalicsTest, AnEmptySlotCountsAsNoGenus) {
    for (int slot = 1; slot < kSlots; ++slot) frmMain.Text1[slot].SetText("Genus");
    ApplyItalics();
    EXPECT_EQ(ItalicNames(), 134);
}
}  // namespace

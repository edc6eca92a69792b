#include "diagram/taxon_names.h"

#include "diagram/data/percentages.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
class TaxonNamesTest : public ThreeDepthsTest {
protected:
    TaxonNamesTest() { Open(frmMain.mnuBar); }

    static void Name(int row, const std::string& name) { DiagramNames[row] = name; }
    static const DrawOperation& Written(int row) { return frmDiagram.Picture4.Operations().at(row - 1); }
};

TEST_F(TaxonNamesTest, FamiliesStandUprightAllElseInItalics) {
    struct {
        const char* name;
        bool italic;
    } cases[] = {{"Pinus", true}, {"Poaceae", false}, {"POACEAE", false}, {"PoaceAe", true}, {"ae", false}, {"e", true}};
    for (const auto& each : cases) {
        Name(1, each.name);
        Name(2, "Cyperaceae");
        DrawTaxonNames();
        EXPECT_EQ(Written(1).italic, each.italic) << each.name;
        EXPECT_EQ(Written(1).text, each.name);
    }
}

TEST_F(TaxonNamesTest, AListWithoutAnyFamilyStandsUpright) {
    Name(1, "Pinus");
    Name(2, "Quercus");
    DrawTaxonNames();
    EXPECT_FALSE(Written(1).italic);
    EXPECT_FALSE(Written(2).italic);
}

TEST_F(TaxonNamesTest, ARowWithoutANameReadsDashesAndStandsUpright) {
    Name(1, "");
    Name(2, "---");
    Name(3, "Poaceae");
    DrawTaxonNames();
    for (const int row : {1, 2}) {
        EXPECT_EQ(Written(row).text, "---") << row;
        EXPECT_FALSE(Written(row).italic) << row;
    }
}

TEST_F(TaxonNamesTest, NamesStandInWholePixelsOverTheirColumns) {
    DrawTaxonNames();
    EXPECT_EQ(Written(1).x1, 5);    // 5 units: 4.95
    EXPECT_EQ(Written(2).x1, 54);   // 55 units: 54.45
    EXPECT_EQ(Written(3).x1, 139);  // 140 units: 138.6
    EXPECT_EQ(Written(1).y1, 132);  // 2105 twips are 140.4 pixels, less 8
    frmDiagram.Slider2.SetValue(10);
    EXPECT_EQ(Written(1).x1, 10);
}

TEST_F(TaxonNamesTest, OnlyTheLeftEdgeDecidesWhetherANameIsWritten) {
    EXPECT_EQ(frmDiagram.Picture4.Operations().size(), 36U);
    frmDiagram.HScroll1.SetValue(5);
    EXPECT_EQ(Written(1).text, "---");
    EXPECT_EQ(Written(1).x1, 0);
    frmDiagram.HScroll1.SetValue(6);
    EXPECT_EQ(Written(1).x1, 49);  // the second column
}

TEST_F(TaxonNamesTest, TheStripIsCopiedOnAWhiteGroundAndGetsItsOwnBack) {
    struct WatchedClipboard : Clipboard {
        Colour ground;
        std::size_t names = 0;
        void PutImage(const PictureBox& picture) override {
            ground = picture.BackColor();
            names = picture.Operations().size();
        }
    } clipboard;
    services.clipboard = &clipboard;
    PressMouse(frmDiagram.Picture4, {MouseButton::Right, 0, 0});
    ClickControl(frmDiagram.mnuCopyTaxaName);
    EXPECT_EQ(clipboard.ground, kWhite);
    EXPECT_EQ(clipboard.names, 36U);
    EXPECT_EQ(frmDiagram.Picture4.BackColor(), kFormColour);
    EXPECT_EQ(frmDiagram.Picture4.Operations().size(), 36U);
}
}  // namespace

#include "diagram/mouse_tools.h"

#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "platform/services.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
PictureBox& Diagram() {
    return frmDiagram.Picture1;
}

class MouseToolsTest : public ThreeDepthsTest {
protected:
    MouseToolsTest() { Open(frmMain.mnuBar); }

    static void Move(double x, double y) { MoveMouse(Diagram(), {MouseButton::None, x, y}); }
    static void Press(MouseButton button, double y) { PressMouse(Diagram(), {button, 250, y}); }
    static void Release(double y) { ReleaseMouse(Diagram(), {MouseButton::None, 250, y}); }
    static void TypeInList(const std::string& text) {
        ClickControl(frmDiagram.Combo2);
        InsertText(frmDiagram.Combo2, text);
    }
};

// The same with five samples that have names.
class MoveSampleTest : public MouseToolsTest {
protected:
    MoveSampleTest() {
        CloseWindow(frmDiagram);
        Sheet({"A", "B", "C", "D", "E"}, {{1}, {2}, {3}, {4}, {5}});
        Open(frmMain.mnuBar);
    }
};

TEST_F(MouseToolsTest, TheLineIsInReachByTheSquareOfAFifthOfTheScale) {
    Move(250, 27.9);  // 2.1 squared is more than 4.2
    EXPECT_EQ(MousePointer, kPointerDefault);
    Move(250, 27.96);
    EXPECT_EQ(MousePointer, kPointerSize);
    EXPECT_EQ(Drawn(Diagram(), "line 0 30 500 30 0,0,255"), 1);
    Move(250, 20);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_EQ(Drawn(Diagram(), "line 0 30 500 30 0,0,255"), 0);
}

TEST_F(MouseToolsTest, ADepthIsSoughtInTheRowNextToItsHeight) {
    frmDiagram.Slider1.SetValue(2);  // stands at 16.67, in the row 20
    Move(250, 16.67);
    EXPECT_EQ(MousePointer, kPointerDefault);
    Move(250, 20);
    EXPECT_EQ(MousePointer, kPointerSize);
    EXPECT_EQ(Drawn(Diagram(), "line 0 16.6667 500 16.6667 0,0,255"), 1);
}

TEST_F(MouseToolsTest, ADraggedLineGoesToTheNearestDepth) {
    MoveTo = 0;
    Move(250, 30);
    Press(MouseButton::Left, 30);
    EXPECT_TRUE(frmDiagram.SliderDragging);
    struct {
        double y;
        int sample;
    } cases[] = {{-500, 1}, {13, 1}, {13.5, 2}, {23, 2}, {23.5, 3}, {9000, 3}};
    for (const auto& each : cases) {
        Move(250, each.y);
        EXPECT_EQ(frmDiagram.Slider1.Value(), each.sample) << each.y;
        EXPECT_EQ(frmDiagram.SelectedSample, each.sample) << each.y;
    }
    Release(9000);
    EXPECT_FALSE(frmDiagram.SliderDragging);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_EQ(MoveTo, 0);  // of named samples alone
}

TEST_F(MouseToolsTest, LeavingThePicturesDropsTheDrag) {
    for (const int place : {0, 1, 2, 3}) {
        Move(250, 10.0 * frmDiagram.Slider1.Value());
        Press(MouseButton::Left, 30);
        ASSERT_TRUE(frmDiagram.SliderDragging) << place;
        const Mouse mouse{MouseButton::Left, 0, 0};
        if (place == 0) MoveMouseOverWindow(frmDiagram, mouse);
        if (place == 1) MoveMouse(frmDiagram.Frame3, mouse);
        if (place == 2) MoveMouse(frmDiagram.UpDown1, mouse);
        if (place == 3) MoveMouse(frmDiagram.Picture4, mouse);
        EXPECT_FALSE(frmDiagram.SliderDragging) << place;
        EXPECT_EQ(MousePointer, kPointerDefault) << place;
        Release(10);
    }
}

TEST_F(MouseToolsTest, AGuideLineGoesWithThePointerButStaysOverTheGroupOfTheSample) {
    const Mouse mouse{MouseButton::None, 0, 0};
    ClickControl(frmDiagram.mnuVertical);
    const auto guides = [] { return Drawn(Diagram(), "line * * * * 255,50,0"); };
    Move(120, 20);
    MoveMouse(frmDiagram.Frame3, mouse);
    EXPECT_EQ(guides(), 1);
    MoveMouse(frmDiagram.UpDown1, mouse);
    EXPECT_EQ(guides(), 1);
    MoveMouseOverWindow(frmDiagram, mouse);
    EXPECT_EQ(guides(), 0);
    Move(120, 20);
    ASSERT_EQ(guides(), 1);
    MoveMouse(frmDiagram.Picture4, mouse);
    EXPECT_EQ(guides(), 0);
}

TEST_F(MouseToolsTest, LeavingThePicturesBringsATickedNameBack) {
    const Mouse mouse{MouseButton::None, 0, 0};
    const struct {
        const char* name;
        void (*leave)(Mouse);
    } places[] = {{"window", [](Mouse where) { MoveMouseOverWindow(frmDiagram, where); }},
                  {"Frame3", [](Mouse where) { MoveMouse(frmDiagram.Frame3, where); }},
                  {"UpDown1", [](Mouse where) { MoveMouse(frmDiagram.UpDown1, where); }},
                  {"Picture4", [](Mouse where) { MoveMouse(frmDiagram.Picture4, where); }}};
    TypeInList("x");
    const std::string typed = frmDiagram.Combo2.Text();
    ASSERT_NE(typed, "40");
    for (const auto& place : places) {
        place.leave(mouse);
        EXPECT_EQ(frmDiagram.Combo2.Text(), typed) << place.name;
    }
    ClickControl(frmDiagram.Check1);
    for (const auto& place : places) {
        TypeInList("x");
        ASSERT_NE(frmDiagram.Combo2.Text(), "40");
        place.leave(mouse);
        EXPECT_EQ(frmDiagram.Combo2.Text(), "40") << place.name;
    }
}

TEST_F(MouseToolsTest, TheRightButtonDuringADragIsPassedOver) {
    Move(250, 30);
    Press(MouseButton::Left, 30);
    Press(MouseButton::Right, 30);
    EXPECT_FALSE(CanReach(frmDiagram.mnuCopyDiagram));
    EXPECT_EQ(MousePointer, kPointerSize);
    EXPECT_TRUE(frmDiagram.SliderDragging);
    Move(250, 10);
    EXPECT_EQ(frmDiagram.SelectedSample, 1);
}

TEST_F(MouseToolsTest, OnDepthsTheRightButtonOpensTheMenuOnTheLineToo) {
    Move(250, 30);
    Press(MouseButton::Right, 30);
    EXPECT_FALSE(frmDiagram.MovingSample);
    EXPECT_FALSE(frmDiagram.SliderDragging);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_TRUE(CanReach(frmDiagram.mnuCopyDiagram));
    EXPECT_FALSE(CanReach(frmDiagram.mnuCopyConiss));
}

TEST_F(MouseToolsTest, TheTreeHasAMenuOfItsOwn) {
    ClickControl(frmDiagram.nmuConiss);
    PressMouse(frmDiagram.Picture2, {MouseButton::Right, 0, 15});
    EXPECT_TRUE(CanReach(frmDiagram.mnuSaveConiss));
    EXPECT_FALSE(CanReach(frmDiagram.mnuCopyDiagram));
    EXPECT_FALSE(CanReach(frmDiagram.mnuCopyEOF));
}

TEST_F(MouseToolsTest, AGuideLineOverTheDiagramStandsUnderThePointerHoweverItIsScrolled) {
    ClickControl(frmDiagram.mnuVertical);
    frmDiagram.HScroll1.SetValue(30);
    Move(120, 20);
    EXPECT_EQ(Drawn(Diagram(), "line 120 9.5 120 30.5 255,50,0"), 1);
    Press(MouseButton::Left, 20);  // a press does not know of the scroll value
    EXPECT_EQ(Drawn(Diagram(), "line 220 9.5 220 30.5 255,50,0"), 1);
}

TEST_F(MouseToolsTest, OverTheTreeTheScrollValueStaysInTheVerticalGuide) {
    ClickControl(frmDiagram.nmuConiss);
    Press(MouseButton::Right, 20);
    ClickControl(frmDiagram.mnuVertical1);
    Release(20);
    frmDiagram.HScroll1.SetValue(30);
    MoveMouse(frmDiagram.Picture2, {MouseButton::None, 0.5, 20});
    EXPECT_EQ(Drawn(frmDiagram.Picture2, "line 30.5 9.5 30.5 30.5 255,50,0"), 1);
    EXPECT_EQ(Drawn(Diagram(), "line * * * * 255,50,0"), 0);
}

TEST_F(MouseToolsTest, TheHorizontalGuideCrossesBothPictures) {
    ClickControl(frmDiagram.nmuConiss);
    PressMouse(frmDiagram.Picture2, {MouseButton::Right, 0, 20});
    ClickControl(frmDiagram.mnuHorizontal2);
    ReleaseMouse(frmDiagram.Picture2, {MouseButton::Right, 0, 20});
    for (MenuItem* item : {&frmDiagram.mnuHorizontal, &frmDiagram.mnuHorizontal1, &frmDiagram.mnuHorizontal2})
        EXPECT_TRUE(item->Checked()) << item->name;
    Move(100, 20);
    EXPECT_EQ(Drawn(Diagram(), "line 0 20 500 20 255,50,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture2, "line 0 20 * 20 255,50,0"), 1);
    Move(100, 30);  // the line of the sample
    EXPECT_EQ(Drawn(Diagram(), "line * * * * 255,50,0"), 0);
    EXPECT_EQ(Drawn(frmDiagram.Picture2, "line * * * * 255,50,0"), 0);
}

TEST_F(MouseToolsTest, TheTipNamesTheTaxonOfTheColumn) {
    TaxonTable[1][kTaxonName] = "Pinus";
    TaxonTable[2][kTaxonName] = "Quercus";
    TaxonTable[135][kTaxonName] = "Fagus";
    Move(30, 20);
    EXPECT_EQ(Diagram().ToolTip(), "");
    ClickControl(frmDiagram.mnuTaxaName);
    Move(30, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
    Move(60, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Quercus");
    Move(2, 20);  // left of the first column: the last tip stays
    EXPECT_EQ(Diagram().ToolTip(), "Quercus");
    KeyIndex[1] = 2;  // the first row of the sheet holds another slot
    Move(30, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Quercus");
    frmDiagram.HScroll1.SetValue(frmDiagram.HScroll1.Max());
    Move(499, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Fagus");
    ClickControl(frmDiagram.mnuTaxaName);
    Move(499, 20);
    EXPECT_EQ(Diagram().ToolTip(), "");
}

TEST_F(MouseToolsTest, OnTheEdgeOfAColumnTheOldTipStays) {
    TaxonTable[1][kTaxonName] = "Pinus";
    TaxonTable[2][kTaxonName] = "Quercus";
    ClickControl(frmDiagram.mnuTaxaName);
    Move(ColumnOffset[1], 20);
    EXPECT_EQ(Diagram().ToolTip(), "");
    Move(ColumnOffset[1] + 0.25, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
    Move(ColumnOffset[2], 20);
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
    Move(ColumnOffset[2] + 0.25, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Quercus");
    Move(ColumnOffset[2], 20);
    EXPECT_EQ(Diagram().ToolTip(), "Quercus");
    Move(ColumnOffset[2] - 0.25, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
}

TEST_F(MouseToolsTest, TheTipOfTheLastTaxonBeginsPastTheEdgeOfItsColumn) {
    TaxonTable[1][kTaxonName] = "Pinus";
    TaxonTable[135][kTaxonName] = "Fagus";
    ClickControl(frmDiagram.mnuTaxaName);
    Move(30, 20);
    frmDiagram.HScroll1.SetValue(frmDiagram.HScroll1.Max());
    const double edge = ColumnOffset[135] - static_cast<double>(frmDiagram.HScroll1.Value());
    Move(edge, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
    Move(edge + 0.25, 20);
    EXPECT_EQ(Diagram().ToolTip(), "Fagus");
}

TEST_F(MouseToolsTest, TheTipAddsTheScrollValueUnscaledAndTheLastColumnStandsUnscaled) {
    TaxonTable[1][kTaxonName] = "Pinus";
    TaxonTable[3][kTaxonName] = "Alnus";
    TaxonTable[135][kTaxonName] = "Fagus";
    ClickControl(frmDiagram.mnuTaxaName);
    frmDiagram.Slider2.SetValue(10);
    ASSERT_EQ(ColumnOffset[2], 50.0F);
    Move(80, 20);  // the first column reaches to 100 on the screen
    EXPECT_EQ(Diagram().ToolTip(), "Pinus");
    frmDiagram.HScroll1.SetValue(200);
    Move(80, 20);  // the third from 260: 280 counts, where 480 would be the place
    EXPECT_EQ(Diagram().ToolTip(), "Alnus");
    frmDiagram.HScroll1.SetValue(500);
    Move(320, 20);  // 820: past ColumnOffset(135), far short of twice that
    EXPECT_EQ(Diagram().ToolTip(), "Fagus");
}

TEST_F(MouseToolsTest, TheReadOutsComeUpWithTheirButton) {
    EXPECT_FALSE(frmDiagram.Text1.Visible());
    MoveFrom = 2;
    MoveTo = 3;
    ClickControl(frmDiagram.Command1);
    EXPECT_TRUE(frmDiagram.Text1.Visible());
    EXPECT_TRUE(frmDiagram.Text2.Visible());
    EXPECT_EQ(frmDiagram.Text1.Text(), "2");
    EXPECT_EQ(frmDiagram.Text2.Text(), "3");
}

TEST_F(MoveSampleTest, TheRightButtonOnTheLineMovesTheColumn) {
    Move(250, 50);
    Press(MouseButton::Right, 50);
    EXPECT_TRUE(frmDiagram.MovingSample);
    EXPECT_EQ(Drawn(Diagram(), "line 0 50 500 50 255,0,0"), 1);
    Move(250, 24.9);
    EXPECT_EQ(MoveTo, 2);
    EXPECT_EQ(SampleTable[kSampleName][2], "B");
    Release(24.9);
    EXPECT_EQ(SampleTable[kSampleName][2], "E");
    EXPECT_EQ(SampleTable[kSampleName][5], "D");
    EXPECT_EQ(frmDiagram.Combo2.List()[1], "E");
    EXPECT_EQ(frmDiagram.Combo2.Text(), "E");
    EXPECT_EQ(frmDiagram.SelectedSample, 2);
    EXPECT_FALSE(frmDiagram.MovingSample);
}

TEST_F(MoveSampleTest, ReleasedWhereItWasPressedItMovesNothing) {
    Move(250, 50);
    Press(MouseButton::Right, 50);
    Release(50);
    EXPECT_EQ(SampleTable[kSampleName][5], "E");
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
}

TEST_F(MoveSampleTest, DroppedOutsideItMovesNothing) {
    Move(250, 50);
    Press(MouseButton::Right, 50);
    Move(250, 20);
    MoveMouseOverWindow(frmDiagram, {MouseButton::Right, 0, 0});
    Release(20);
    EXPECT_EQ(SampleTable[kSampleName][5], "E");
    EXPECT_EQ(SampleTable[kSampleName][2], "B");
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(frmDiagram.SelectedSample, 2);
}

TEST_F(MoveSampleTest, TheRedLineOfADroppedMoveStaysOverTheGroupUntilTheNextEvent) {
    Move(250, 50);
    Press(MouseButton::Right, 50);
    MoveMouse(frmDiagram.Frame3, {MouseButton::Right, 0, 0});
    EXPECT_FALSE(frmDiagram.MovingSample);
    EXPECT_EQ(Drawn(Diagram(), "line 0 50 500 50 255,0,0"), 1);
    MoveMouseOverWindow(frmDiagram, {MouseButton::Right, 0, 0});
    EXPECT_EQ(Drawn(Diagram(), "line 0 50 500 50 255,0,0"), 0);
    EXPECT_EQ(Drawn(Diagram(), "line 0 50 500 50 0,0,255"), 0);
}

TEST_F(MoveSampleTest, TheLineKeepsToTheSamplesHoweverFarItIsDragged) {
    Move(250, 50);
    Press(MouseButton::Left, 50);
    struct {
        double y;
        int sample;
    } cases[] = {{24.9, 2}, {25, 2}, {25.1, 3}, {35, 4}, {-1e9, 1}, {1e9, 5}};  // a tie goes to the even one
    for (const auto& each : cases) {
        Move(250, each.y);
        EXPECT_EQ(frmDiagram.Slider1.Value(), each.sample) << each.y;
        EXPECT_EQ(MoveTo, each.sample) << each.y;
    }
}

TEST_F(MoveSampleTest, AwayFromTheLineTheRightButtonOpensTheMenu) {
    Move(250, 15);
    Press(MouseButton::Right, 15);
    EXPECT_FALSE(frmDiagram.MovingSample);
    EXPECT_TRUE(CanReach(frmDiagram.mnuCopyDiagram));
}

TEST_F(MoveSampleTest, AnOpenTreeIsClusteredAnewOnceTheColumnHasMoved) {
    Sheet({"A", "B", "C", "D", "E"}, {{1}, {0, 1}, {0, 0, 1}, {0, 1}, {1}});
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.nmuConiss);
    ASSERT_EQ(MergeHeight[1], 2.0F);
    frmDiagram.Slider1.SetValue(4);
    Move(250, 40);
    Press(MouseButton::Right, 40);
    Move(250, 30);
    Release(30);
    EXPECT_EQ(MergeHeight[1], 0.0F);
    EXPECT_EQ(MergeUpper[1], 20.0F);
    EXPECT_EQ(Drawn(frmDiagram.Picture2, "line 0 20 0 30 0,0,0"), 1);
}
}  // namespace

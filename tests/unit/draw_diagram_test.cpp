#include "diagram/draw_diagram.h"

#include "diagram/data/percentages.h"
#include "platform/services.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
using DrawDiagramTest = ThreeDepthsTest;

int CountOf(DrawOperation::Shape shape) {
    const auto& operations = frmDiagram.Picture1.Operations();
    return static_cast<int>(std::count_if(operations.begin(), operations.end(), [shape](const auto& each) { return each.shape == shape; }));
}

constexpr const char* kBar = "line 5 10 45 10 0,128,0";  // of the first sample
constexpr const char* kMiddleBar = "line 5 16.6667 30 16.6667 0,128,0";
constexpr const char* kCurve = "line 45 10 30 16.6667 0,128,0";
constexpr const char* kDot = "circle 45 10 1.5 0,128,0 255,255,255";

TEST_F(DrawDiagramTest, EachStyleHasItsOwnParts) {
    struct {
        MenuItem& item;
        int bars, middle_bars, curves, dots;
    } cases[] = {
        {frmMain.mnuBar, 1, 1, 0, 0},   {frmMain.mnuArea, 1, 0, 1, 0},     {frmMain.mnuDot, 0, 0, 0, 1},
        {frmMain.mnuCurve, 1, 1, 1, 0}, {frmMain.mnuDotCurve, 0, 0, 1, 1},
    };
    for (const auto& each : cases) {
        Open(each.item);
        EXPECT_EQ(Drawn(frmDiagram.Picture1, kBar), each.bars) << each.item.name;
        EXPECT_EQ(Drawn(frmDiagram.Picture1, kMiddleBar), each.middle_bars) << each.item.name;
        EXPECT_EQ(Drawn(frmDiagram.Picture1, kCurve), each.curves) << each.item.name;
        EXPECT_EQ(Drawn(frmDiagram.Picture1, kDot), each.dots) << each.item.name;
        EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 5 30 0,0,0"), 1) << each.item.name << ": base line";
        EXPECT_EQ(Drawn(frmDiagram.Picture1, "rect 0 9.5 500 30.5 255,255,255"), 1) << each.item.name;
    }
}

TEST_F(DrawDiagramTest, ItIsPersistentAndTheLineOfTheSampleLiesOver) {
    Open(frmMain.mnuBar);
    EXPECT_TRUE(frmDiagram.Picture1.IsPersistent());
    EXPECT_EQ(frmDiagram.Picture1.PersistentCount(), frmDiagram.Picture1.Operations().size());
    ClickControl(frmDiagram.Check1);
    EXPECT_EQ(frmDiagram.Picture1.PersistentCount() + 1, frmDiagram.Picture1.Operations().size());
}

TEST_F(DrawDiagramTest, ASampleWithoutDataBreaksTheCurveAndClosesItsEnds) {
    Sheet({"a", "b", "c", "d", "e"}, {{}, {1, 1}, {}, {3, 1}, {1, 1}});
    Open(frmMain.mnuArea);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 80 40 55 50 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 55 20 0,128,0"), 0);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 55 20 5 30 0,128,0"), 0);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 5 10 0,128,0"), 1);   // the first sample, closed in any case
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 20 55 20 0,128,0"), 2);  // below the first, above the third
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 30 5 30 0,128,0"), 0);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 40 80 40 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 50 55 50 0,128,0"), 1);
}

TEST_F(DrawDiagramTest, ADotStandsForMoreThanHalfAPercent) {
    Sheet({"a", "b"}, {{199, 1}, {197, 1}});
    Open(frmMain.mnuDot);
    ASSERT_EQ(SamplePercent[2][1], 0.005F);
    EXPECT_EQ(CountOf(DrawOperation::Shape::Circle), 3);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "circle * 10 1.5 0,128,0 255,255,255"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "circle * 20 1.5 0,128,0 255,255,255"), 2);
}

TEST_F(DrawDiagramTest, AShareBelow0StandsLeftOfTheBaseLineWithoutADot) {
    Sheet({"a", "b"}, {{-1, 3}, {1, 1}});  // shares of -50 and 150 percent, then halves
    Open(frmMain.mnuCurve);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 -45 10 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line -45 10 55 20 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 5 20 0,0,0"), 1);
    Open(frmMain.mnuDot);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "circle * 10 1.5 0,128,0 255,255,255"), 1);  // of the second taxon
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "circle -45 10 1.5 0,128,0 255,255,255"), 0);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "circle 55 20 1.5 0,128,0 255,255,255"), 1);
}

TEST_F(DrawDiagramTest, ATickNeedsAColumnMoreThanFiveWider) {
    // 50 + 10 wide, then a bare gap of 10, then the last taxon.
    Open(frmMain.mnuBar);
    const auto tick = [](double percent) { return "line " + std::to_string(5 + percent) + " 9.5 * 9.668 0,0,0"; };
    for (const int percent : {0, 10, 20, 30, 40}) EXPECT_EQ(Drawn(frmDiagram.Picture1, tick(percent)), 1) << percent;
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 30.248 * 30.5 0,0,0"), 1) << "along the lower edge";
    struct {
        float width;
        int ticks;
    } cases[] = {{5, 1}, {15, 1}, {15.01F, 2}, {25, 2}, {26, 3}};
    for (const auto& each : cases) {
        for (int row = 2; row <= kSlots + 1; ++row) ColumnOffset[row] = 600;  // the others are out of view
        ColumnOffset[2] = 5 + each.width;
        ColumnOffset[1] = 5;
        ColumnOffset[3] = ColumnOffset[2] + 600;
        frmDiagram.HScroll1.SetRange(0, 0);
        DrawDiagram();
        int found = 0;
        for (int percent = 0; percent < 50 && percent < each.width + 5; percent += 10)
            found += Drawn(frmDiagram.Picture1, tick(percent)) > 0;
        EXPECT_EQ(found, each.ticks) << each.width;
    }
}

TEST_F(DrawDiagramTest, AColumnIsDrawnWhileItsEdgesTouchTheView) {
    Open(frmMain.mnuBar);
    const auto base_lines = [](int x) { return Drawn(frmDiagram.Picture1, "line " + std::to_string(x) + " 10 * 30 0,0,0"); };
    frmDiagram.HScroll1.SetValue(55);  // the right edge of the first column is that of the view
    EXPECT_EQ(base_lines(-50), 1);
    frmDiagram.HScroll1.SetValue(56);
    EXPECT_EQ(base_lines(-51), 0);
    frmDiagram.HScroll1.SetValue(0);
    EXPECT_EQ(base_lines(495), 1);
    EXPECT_EQ(base_lines(505), 0);
    frmDiagram.HScroll1.SetValue(5);
    EXPECT_EQ(base_lines(490), 1);
    EXPECT_EQ(base_lines(500), 0);
}

TEST_F(DrawDiagramTest, TheLastColumnEndsAtTheEndOfTheDiagram) {
    Counts[135][1] = 100;
    Open(frmMain.mnuBar);
    frmDiagram.HScroll1.SetValue(frmDiagram.HScroll1.Max());
    const double left = ColumnOffset[135] - static_cast<double>(frmDiagram.HScroll1.Value());
    EXPECT_LT(left + 50, 500);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line " + std::to_string(left) + " 10 " + std::to_string(left + 50) + " 10 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line " + std::to_string(left + 50) + " 9.5 * 9.668 0,0,0"), 1);  // its last tick
}

TEST_F(DrawDiagramTest, TheHorizontalScaleStretchesTicksAndBars) {
    Open(frmMain.mnuBar);
    frmDiagram.Slider2.SetValue(10);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 10 10 90 10 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 30 9.5 30 9.668 0,0,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 20 9.5 20 9.668 0,0,0"), 0);
}

TEST_F(DrawDiagramTest, AShareOfMillionsOfPercentDrawsNoMillionsOfTicks) {
    Counts[3][3] = 2'000'000'000;
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.mnuSub2);
    EXPECT_LT(frmDiagram.Picture1.Operations().size(), 20'000U);
    EXPECT_EQ(frmDiagram.HScroll1.Max(), 32767);
    frmDiagram.HScroll1.SetValue(32767);
    EXPECT_EQ(services_.host.failure, "");
}

TEST_F(DrawDiagramTest, SharesOfAPercentageTableDoNotShowInTheDiagram) {
    Sheet({"20", "10", "30"}, {{1}, {0, 1}, {0, 1}});
    Open(frmMain.mnuBar);
    ASSERT_EQ(Drawn(frmDiagram.Picture1, "line 115 0 215 0 0,128,0"), 0);
    const auto drawn = frmDiagram.Picture1.Operations().size();
    ShowSample(2);
    PressMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    ReleaseMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    frmDiagram.HScroll1.SetValue(1);
    frmDiagram.HScroll1.SetValue(0);
    EXPECT_EQ(frmDiagram.Picture1.Operations().size(), drawn);
    EXPECT_EQ(SamplePercent[2][1], 1.0F);  // the shallowest sample
    EXPECT_EQ(SamplePercent[1][2], 1.0F);
}

TEST_F(DrawDiagramTest, ThePercentButtonDoesNotBringACountIntoTheDiagram) {
    Sheet({"20", "10"}, {{1, 1}, {1}});
    Open(frmMain.mnuBar);
    Counts[2][1] = 0;  // as an undo leaves it, until the next key
    PressMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    ReleaseMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    EXPECT_EQ(SamplePercent[2][1], 0.0F);
    frmDiagram.HScroll1.SetValue(1);
    EXPECT_EQ(SamplePercent[2][2], 0.5F);
}

TEST_F(DrawDiagramTest, ThePointerAndTheBarAreGivenBack) {
    Open(frmMain.mnuBar);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
    EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
}

TEST_F(DrawDiagramTest, TheBarCountsThe135RowsOfTheSheet) {
    Open(frmMain.mnuBar);
    const BarWatch bar;
    DrawDiagram();
    ASSERT_EQ(bar.seen.size(), 135u);
    EXPECT_EQ(bar.seen.front(), "1 of 135");
    EXPECT_EQ(bar.seen.back(), "135 of 135");
}

TEST_F(DrawDiagramTest, DepthsOutOfOrderStandByTheColumnsOfTheSheet) {
    Sheet({"10", "5", "20"}, {{1}, {1}, {1}});
    Open(frmMain.mnuBar);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 0 105 0 0,128,0"), 1);  // 5 lies as far above 10 as 15 would below
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 30 105 30 0,128,0"), 1);
}

TEST_F(DrawDiagramTest, FallingDepthsStandFromTheFirstToTheLastAsWell) {
    Sheet({"40", "20", "10"}, {{1}, {1}, {1}});
    Open(frmMain.mnuBar);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 10 105 10 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 23.3333 105 23.3333 0,128,0"), 1);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 5 30 105 30 0,128,0"), 1);
}
}  // namespace

#include "diagram/diversity_curve.h"

#include <cmath>
#include <vector>

#include "platform/user.h"
#include "session/totals.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
using Shape = DrawOperation::Shape;
constexpr Colour kRed{255, 0, 0};
constexpr Colour kGrey{100, 100, 100};

class DiversityCurveTest : public SheetTest {
protected:
    DiversityCurveTest() { Begin("10"); }

    // Back from fractions of the picture into its scale.
    static double X(double fraction) { return frmMain.Picture2.ScaleLeft() + fraction * frmMain.Picture2.ScaleWidth(); }
    static double Y(double fraction) { return frmMain.Picture2.ScaleTop() + fraction * frmMain.Picture2.ScaleHeight(); }

    static std::vector<DrawOperation> Drawn(Shape shape, Colour colour) {
        std::vector<DrawOperation> drawn;
        for (const DrawOperation& operation : frmMain.Picture2.Operations())
            if (operation.shape == shape && operation.rim == colour) drawn.push_back(operation);
        return drawn;
    }
    // The stretches of the curve, in its scale.
    using Stretches = std::vector<std::vector<PicturePoint>>;
    static Stretches Curves() {
        Stretches curves;
        for (const DrawOperation& curve : Drawn(Shape::Curve, kRed)) {
            curves.emplace_back();
            for (std::size_t i = 0; i < curve.heights.size(); ++i)
                curves.back().push_back({std::round(X(curve.PointOf(i).x)), std::round(Y(curve.PointOf(i).y))});
        }
        return curves;
    }
    static void ExpectLine(const DrawOperation& line, double x1, double y1, double x2, double y2) {
        EXPECT_NEAR(X(line.x1), x1, 1e-9);
        EXPECT_NEAR(Y(line.y1), y1, 1e-9);
        EXPECT_NEAR(X(line.x2), x2, 1e-9);
        EXPECT_NEAR(Y(line.y2), y2, 1e-9);
    }
    static void ExpectScale(double left, double top, double width, double height) {
        EXPECT_DOUBLE_EQ(frmMain.Picture2.ScaleLeft(), left);
        EXPECT_DOUBLE_EQ(frmMain.Picture2.ScaleTop(), top);
        EXPECT_DOUBLE_EQ(frmMain.Picture2.ScaleWidth(), width);
        EXPECT_DOUBLE_EQ(frmMain.Picture2.ScaleHeight(), height);
    }
};

TEST_F(DiversityCurveTest, ItHoldsTenTimesTheTaxaSeenAtEachTotal) {
    for (const int key : {1, 1, 2, 1, 3}) KeyNumber(key);
    EXPECT_EQ(DiversityLength, 5);
    EXPECT_EQ(TaxaSeen, 3);
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{0, 10, 10, 20, 20, 30}));
}

TEST_F(DiversityCurveTest, TheScaleLeavesRoomForTheLabels) {
    KeyNumber(1);
    ExpectScale(-1.2, 11.7, 12, -14);
    KeyNumber(2);
    KeyNumber(2);
    ExpectScale(-3.6, 23.4, 36, -28);
}

TEST_F(DiversityCurveTest, LinesJoinThePointsInRedAndTheAxesAreGrey) {
    for (const int key : {1, 2, 2}) KeyNumber(key);
    EXPECT_EQ(Curves(), Stretches({{{10, 10}, {20, 20}, {30, 20}}}));
    const auto axes = Drawn(Shape::Line, kGrey);
    ASSERT_EQ(axes.size(), 2u);
    ExpectLine(axes[0], 0, 0, 30, 0);
    ExpectLine(axes[1], 0, 0, 0, 20);
}

TEST_F(DiversityCurveTest, FourLabelsStandAtTheEndsOfTheAxes) {
    for (int key = 1; key <= 12; ++key) KeyNumber(key);
    const auto labels = Drawn(Shape::Text, kGrey);
    ASSERT_EQ(labels.size(), 4u);
    struct {
        const char* text;
        double x, y;
    } expected[] = {{"0", 0, -2.4}, {"12", 114, -2.4}, {"0", -5.16, 10.8}, {"12", -12.12, 130.8}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(labels[i].text, expected[i].text);
        EXPECT_NEAR(X(labels[i].x1), expected[i].x, 1e-9) << i;
        EXPECT_NEAR(Y(labels[i].y1), expected[i].y, 1e-9) << i;
        EXPECT_EQ(labels[i].size, 7) << i;
        EXPECT_NEAR(X(labels[i].x2), i < 2 ? 12 * 10.8 : 0, 1e-9) << i << " ends before the picture does, or before the axis";
    }
}

TEST_F(DiversityCurveTest, OneGrainOfOneTaxonIsAPointAndOnlyTheAxesShow) {
    KeyNumber(1);
    EXPECT_EQ(DiversityCurve[1], 10) << "set although the first count has not passed the old-sample test";
    EXPECT_TRUE(Curves().empty());
    EXPECT_EQ(Drawn(Shape::Line, kGrey).size(), 2u);
}

TEST_F(DiversityCurveTest, TheFirstCountAfterAChangeOfSampleLeavesAGap) {
    for (const int key : {1, 2, 3}) KeyNumber(key);
    ShowSample(1);
    for (const int key : {1, 1, 1}) KeyNumber(key);
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{0, 0, 0, 0, 0, 30, 30}));
    EXPECT_EQ(Curves(), Stretches({{{50, 30}, {60, 30}}}));
}

TEST_F(DiversityCurveTest, AGapInTheRecordPartsTheCurve) {
    for (const int key : {1, 2, 3, 1, 1, 1, 2}) KeyNumber(key);
    DiversityCurve[4] = 0;
    DrawDiversityCurve();
    EXPECT_EQ(Curves(), Stretches({{{10, 10}, {20, 20}, {30, 30}}, {{50, 30}, {60, 30}, {70, 30}}}));
    DiversityCurve[6] = 0;
    DrawDiversityCurve();
    EXPECT_EQ(Curves(), Stretches({{{10, 10}, {20, 20}, {30, 30}}})) << "a point alone shows nothing";
}

TEST_F(DiversityCurveTest, UndoShortensItAndCountingUpWritesItAnew) {
    for (const int key : {1, 2, 3}) KeyNumber(key);
    Key(kUndo);
    Key(kUndo);
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{0, 10}));
    KeyNumber(1);
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{0, 10, 10}));
    EXPECT_EQ(TaxaSeen, 1);
}

TEST_F(DiversityCurveTest, AtATotalOf0ThePictureIsBlank) {
    KeyNumber(1);
    EXPECT_FALSE(frmMain.Picture2.Operations().empty());
    Key(kUndo);
    EXPECT_TRUE(frmMain.Picture2.Operations().empty());
}

TEST_F(DiversityCurveTest, ACountBelow0IsATaxonSeen) {
    frmMain.Text2[1].SetText("-2");
    frmMain.Text2[2].SetText("5");
    RecountTotals(1);
    EXPECT_EQ(TaxaSeen, 2);
    EXPECT_EQ(DiversityLength, 3);
}

TEST_F(DiversityCurveTest, ATotalBelow0DisturbsNothing) {
    KeyNumber(1, 2);
    PressKey(kUndo);
    KeyNumber(1, 3);
    EXPECT_EQ(Counts[1][1], -1);
    EXPECT_TRUE(Curves().empty());
    KeyNumber(2, 2);
    ReleaseKey(kUndo);
    KeyNumber(1, 5);
    EXPECT_EQ(DiversityLength, 2);
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{0, 10, 20})) << "a total of 1 is one taxon, whatever the cells hold";
}

TEST_F(DiversityCurveTest, PastATotalOf32767ItStandsStillAndCountingGoesOn) {
    KeyNumber(1);
    frmMain.Text2[2].SetText("32765");
    KeyNumber(1);
    EXPECT_EQ(DiversityLength, 32767);
    EXPECT_EQ(DiversityCurve[32767], 20);
    KeyNumber(3);
    EXPECT_EQ(DiversityLength, 32767);
    EXPECT_EQ(frmMain.Text3[0].Text(), "32768");
    EXPECT_EQ(Counts[3][1], 1);
}

TEST_F(DiversityCurveTest, ThePictureTellsWhatItShowsAndCanBeCopied) {
    MoveMouse(frmMain.Picture2, {});
    EXPECT_EQ(frmMain.Picture2.ToolTip(), "Taxa diversity vs. total count");
    EXPECT_FALSE(CanReach(frmMain.mnuCopyDiversity));
    PressMouse(frmMain.Picture2, {MouseButton::Left, 0, 0});
    EXPECT_FALSE(CanReach(frmMain.mnuCopyDiversity));
    PressMouse(frmMain.Picture2, {MouseButton::Right, 0, 0});
    ClickControl(frmMain.mnuCopyDiversity);
    EXPECT_EQ(services_.clipboard.picture, &frmMain.Picture2);
}
}  // namespace

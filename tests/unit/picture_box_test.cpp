#include "platform/picture_box.h"

#include <gtest/gtest.h>

#include "unit/test_window.h"

namespace {
using Shape = DrawOperation::Shape;
constexpr Colour kRed{255, 0, 0};
constexpr Colour kGrey{100, 100, 100};

class PictureBoxTest : public testing::Test {
protected:
    const DrawOperation& Last() const { return picture_.Operations().back(); }
    void SetScale(double left, double top, double width, double height) {
        picture_.SetScaleLeft(left);
        picture_.SetScaleTop(top);
        picture_.SetScaleWidth(width);
        picture_.SetScaleHeight(height);
    }
    PictureBox picture_;
};

TEST_F(PictureBoxTest, ALineIsKeptInFractionsOfThePicture) {
    SetScale(-10, 50, 40, 200);
    picture_.Line(-10, 50, 30, 250, kRed);
    EXPECT_EQ(Last().shape, Shape::Line);
    EXPECT_DOUBLE_EQ(Last().x1, 0);
    EXPECT_DOUBLE_EQ(Last().y1, 0);
    EXPECT_DOUBLE_EQ(Last().x2, 1);
    EXPECT_DOUBLE_EQ(Last().y2, 1);
    EXPECT_EQ(Last().rim, kRed);
}

TEST_F(PictureBoxTest, ACurveIsKeptInFractionsOfThePicture) {
    SetScale(-10, 50, 40, 200);
    picture_.Curve(-10, 20, {50, 50, 250}, kRed);
    SetScale(0, 0, 1, 1);
    EXPECT_EQ(Last().shape, Shape::Curve);
    const PicturePoint expected[] = {{0, 0}, {0.5, 0}, {1, 1}};
    ASSERT_EQ(Last().heights.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(Last().PointOf(i), expected[i]) << i;
    EXPECT_EQ(Last().rim, kRed);
}

TEST_F(PictureBoxTest, ANegativeHeightTurnsYUpward) {
    SetScale(0, 11.7, 12, -14);
    picture_.Line(6, 11.7, 6, -2.3, kRed);
    EXPECT_DOUBLE_EQ(Last().x1, 0.5);
    EXPECT_DOUBLE_EQ(Last().y1, 0);
    EXPECT_DOUBLE_EQ(Last().y2, 1);
}

TEST_F(PictureBoxTest, AScaleThatMovesLeavesWhatIsDrawn) {
    picture_.Line(0, 0, 0.5, 0.5, kRed);
    SetScale(100, 100, 7, 7);
    EXPECT_DOUBLE_EQ(Last().x2, 0.5);
}

TEST_F(PictureBoxTest, ACircleTextAndNameKeepTheirMeasures) {
    SetScale(0, 0, -200, 100);
    picture_.Circle(-50, 25, 20, kGrey, kRed);
    EXPECT_EQ(Last().shape, Shape::Circle);
    EXPECT_DOUBLE_EQ(Last().x1, 0.25);
    EXPECT_DOUBLE_EQ(Last().y1, 0.25);
    EXPECT_DOUBLE_EQ(Last().radius, 0.1) << "of the width, whichever way it runs";
    EXPECT_EQ(Last().rim, kGrey);
    EXPECT_EQ(Last().fill, kRed);
    picture_.Print(-100, 50, 7, "12", kGrey);
    EXPECT_EQ(Last().shape, Shape::Text);
    EXPECT_DOUBLE_EQ(Last().x1, 0.5);
    EXPECT_DOUBLE_EQ(Last().y1, 0.5);
    EXPECT_EQ(Last().size, 7);
    EXPECT_EQ(Last().text, "12");
    picture_.Name(30, 40, true, "Pinus");
    EXPECT_EQ(Last().shape, Shape::Name);
    EXPECT_EQ(Last().x1, 30) << "in pixels";
    EXPECT_EQ(Last().y1, 40);
    EXPECT_TRUE(Last().italic);
}

TEST_F(PictureBoxTest, ARectangleOverTheWholeDropsWhatLiesUnderIt) {
    SetScale(0, 10, 500, 20);
    picture_.Line(0, 10, 500, 30, kRed);
    picture_.Persist();
    picture_.FilledRectangle(0, 10, 500, 29, kWhite);
    EXPECT_EQ(picture_.Operations().size(), 2u) << "it leaves a strip";
    picture_.FilledRectangle(500, 30, 0, 10, kWhite);
    EXPECT_EQ(picture_.Operations().size(), 1u) << "whichever corner comes first";
    EXPECT_EQ(Last().shape, Shape::Rectangle);
    EXPECT_EQ(Last().fill, kWhite);
    EXPECT_EQ(picture_.PersistentCount(), 0u);
    EXPECT_FALSE(picture_.IsPersistent());
    picture_.Line(0, 10, 1, 11, kRed);
    picture_.FilledRectangle(-100, -100, 900, 900, kWhite);
    EXPECT_EQ(picture_.Operations().size(), 1u);
}

TEST_F(PictureBoxTest, OverlaysComeAndGoAndThePersistentImageStays) {
    picture_.Line(0, 0, 1, 1, kRed);
    picture_.Line(0, 1, 1, 0, kRed);
    EXPECT_FALSE(picture_.IsPersistent());
    picture_.Persist();
    EXPECT_TRUE(picture_.IsPersistent());
    EXPECT_EQ(picture_.PersistentCount(), 2u);
    const int version = picture_.PersistentVersion();
    picture_.Line(0.5, 0, 0.5, 1, kGrey);
    EXPECT_EQ(picture_.Operations().size(), 3u);
    EXPECT_EQ(picture_.PersistentCount(), 2u);
    picture_.ClearOverlay();
    EXPECT_EQ(picture_.Operations().size(), 2u);
    EXPECT_EQ(picture_.PersistentVersion(), version) << "an overlay costs no new image";
    picture_.Line(0.5, 0, 0.5, 1, kGrey);
    picture_.Persist();
    EXPECT_EQ(picture_.PersistentCount(), 3u);
    EXPECT_GT(picture_.PersistentVersion(), version);
}

TEST_F(PictureBoxTest, ClearTakesThePersistentImageToo) {
    picture_.Line(0, 0, 1, 1, kRed);
    picture_.Persist();
    const int version = picture_.PersistentVersion();
    picture_.Clear();
    EXPECT_TRUE(picture_.Operations().empty());
    EXPECT_FALSE(picture_.IsPersistent());
    EXPECT_GT(picture_.PersistentVersion(), version);
}

TEST_F(PictureBoxTest, TheViewHearsOfEveryStroke) {
    ViewRecorder view;
    picture_.BindView(&view);
    picture_.Line(0, 0, 1, 1, kRed);
    EXPECT_EQ(view.Take(), std::vector{Property::Drawing});
    picture_.Persist();
    EXPECT_EQ(view.Take().size(), 1u);
    picture_.ClearOverlay();
    EXPECT_EQ(view.Take().size(), 0u) << "there was none";
    picture_.Line(0, 0, 1, 1, kRed);
    picture_.ClearOverlay();
    EXPECT_EQ(view.Take().size(), 2u);
}

TEST_F(PictureBoxTest, TheDesignStateIsABlankPictureInTheScaleOfItsDesign) {
    window_a.picture.SetScaleLeft(9);
    window_a.picture.Line(0, 0, 1, 1, kRed);
    window_a.picture.Persist();
    window_a.Load();
    window_a.Unload();
    EXPECT_TRUE(window_a.picture.Operations().empty());
    EXPECT_EQ(window_a.picture.ScaleLeft(), 0);
    EXPECT_EQ(window_a.picture.ScaleWidth(), 1);
}
}  // namespace

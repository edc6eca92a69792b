#include "drive/drawn.h"

#include <gtest/gtest.h>

#include "drive/script.h"

using drive::CountAll;
using drive::CountDrawn;
using drive::CountKind;
using drive::PictureLines;
using drive::ScaleIs;
using drive::ScriptFault;

namespace {
constexpr Colour kGreen{0, 128, 0};

class DriveDrawnTest : public testing::Test {
protected:
    DriveDrawnTest() {
        picture_.SetScaleTop(9.5);
        picture_.SetScaleWidth(500);
        picture_.SetScaleHeight(21);
    }
    PictureBox picture_;
};
}  // namespace

TEST_F(DriveDrawnTest, APictureIsAListOfLines) {
    picture_.FilledRectangle(0, 9.5, 500, 30.5, kWhite);
    picture_.Line(5, 10, 45, 50.0 / 3, kGreen);
    picture_.Circle(45, 10, 1.5, kGreen, kWhite);
    picture_.Persist();
    picture_.Print(3, 10, 7, "a \"b\"", kBlack);
    picture_.Name(12, 80, true, "Pinus");
    EXPECT_EQ(PictureLines(picture_), (std::vector<std::string>{"scale 0 9.5 500 21", "rect 0 9.5 500 30.5 255,255,255",
                                                                "line 5 10 45 16.666667 0,128,0", "circle 45 10 1.5 0,128,0 255,255,255",
                                                                "persist", R"(text 3 10 7 "a \"b\"")", R"(name 12 80 italic "Pinus")"}));
}

TEST_F(DriveDrawnTest, ACurveIsTheLinesThatItIsMadeOf) {
    picture_.Curve(5, 40, {10, 10, 20}, kGreen);
    picture_.Persist();
    picture_.Circle(45, 10, 1.5, kGreen, kWhite);
    EXPECT_EQ(PictureLines(picture_), (std::vector<std::string>{"scale 0 9.5 500 21", "line 5 10 45 10 0,128,0", "line 45 10 85 20 0,128,0",
                                                                "persist", "circle 45 10 1.5 0,128,0 255,255,255"}));
    EXPECT_EQ(CountDrawn(picture_, "line 45 10 85 20 0,128,0"), 1);
    EXPECT_EQ(CountDrawn(picture_, "line 5 10 85 20 0,128,0"), 0);
    EXPECT_EQ(CountKind(picture_, "line"), 2);
    EXPECT_EQ(CountAll(picture_), 3);
}

TEST_F(DriveDrawnTest, NothingPersistsInAnEmptyPicture) {
    EXPECT_EQ(PictureLines(picture_), std::vector<std::string>{"scale 0 9.5 500 21"});
}

TEST_F(DriveDrawnTest, LinesStandInTheScaleOfTheMoment) {
    picture_.Line(50, 20, 100, 20, kGreen);
    picture_.SetScaleWidth(250);
    EXPECT_EQ(CountDrawn(picture_, "line 25 20 50 20 0,128,0"), 1);
}

TEST_F(DriveDrawnTest, NumbersMatchWithinAThousandth) {
    picture_.Line(5, 10, 45, 10, kGreen);
    EXPECT_EQ(CountDrawn(picture_, "line 5.001 10 44.999 10 0,128,0"), 1);
    EXPECT_EQ(CountDrawn(picture_, "line 5.0011 10 45 10 0,128,0"), 0);
    EXPECT_EQ(CountDrawn(picture_, "line * 10 * 10 0,128,0"), 1);
    EXPECT_EQ(CountDrawn(picture_, "line 5 10 45 10 0,*,0"), 1);
    EXPECT_EQ(CountDrawn(picture_, "line 5 10 45 10 0,127,0"), 0);
    EXPECT_EQ(CountDrawn(picture_, "line 45 10 5 10 0,128,0"), 0) << "a line has a beginning and an end";
    EXPECT_EQ(CountDrawn(picture_, "rect 5 10 45 10 0,128,0"), 0);
}

TEST_F(DriveDrawnTest, TextsMatchToTheLetter) {
    picture_.Print(3, 10, 7, "10", kBlack);
    EXPECT_EQ(CountDrawn(picture_, R"(text * * 7 "10")"), 1);
    EXPECT_EQ(CountDrawn(picture_, "text 3 10 7 10"), 1);
    EXPECT_EQ(CountDrawn(picture_, R"(text * * 7 " 10")"), 0);
    picture_.Name(12, 80, false, "Poaceae");
    EXPECT_EQ(CountDrawn(picture_, "name * 80 upright Poaceae"), 1);
    EXPECT_EQ(CountDrawn(picture_, "name * 80 italic Poaceae"), 0);
}

TEST_F(DriveDrawnTest, EqualOperationsAreCounted) {
    picture_.Line(5, 10, 45, 10, kGreen);
    picture_.Line(5, 10, 45, 10, kGreen);
    picture_.Circle(5, 10, 1, kGreen, kGreen);
    EXPECT_EQ(CountDrawn(picture_, "line 5 10 45 10 0,128,0"), 2);
    EXPECT_EQ(CountKind(picture_, "line"), 2);
    EXPECT_EQ(CountKind(picture_, "circle"), 1);
    EXPECT_EQ(CountKind(picture_, "rect"), 0);
    EXPECT_THROW(CountKind(picture_, "lines"), ScriptFault);
}

TEST_F(DriveDrawnTest, AnOperationOfNoKnownFormIsAFaultEvenIfNothingIsDrawn) {
    for (const char* line :
         {"", "square 1 2", "line 1 2 3 4", "line 1 2 3 4 0,0,0 0", "line 1 2 3 x 0,0,0", "line 1 2 3 4 0,0", "text 1 2 3"})
        EXPECT_THROW(CountDrawn(picture_, line), ScriptFault) << line;
}

TEST_F(DriveDrawnTest, TheScaleMatchesAsNumbersDo) {
    EXPECT_TRUE(ScaleIs(picture_, {"0", "9.5", "500", "21"}));
    EXPECT_TRUE(ScaleIs(picture_, {"*", "9.5", "*", "21.0005"}));
    EXPECT_FALSE(ScaleIs(picture_, {"0", "9.5", "500", "22"}));
    EXPECT_THROW(ScaleIs(picture_, {"0", "9.5", "500", "x"}), ScriptFault);
}

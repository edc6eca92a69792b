#include "platform/qt/picture_painter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <cstdint>
#include <random>
#include <vector>

namespace {
constexpr int kWidth = 100;
constexpr int kHeight = 60;
constexpr Colour kRed{255, 0, 0};

class PicturePainterTest : public testing::Test {
protected:
    PicturePainterTest() {
        picture_.SetScaleWidth(kWidth);
        picture_.SetScaleHeight(kHeight);
    }

    QImage Painted(double density, double spread = 1) const {
        QImage image(QSize(kWidth, kHeight) * density, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintOperations(painter, picture_.Operations(), {QSizeF(image.size()), density, spread});
        return image;
    }
    static bool HasInk(const QImage& image, int column) {
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(column, y) != Qt::white) return true;
        return false;
    }
    static int FirstInk(const QImage& image) {
        int column = 0;
        while (column < image.width() && !HasInk(image, column)) ++column;
        return column;
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QApplication application_{count_, arguments_};
    PictureBox picture_;
};

TEST_F(PicturePainterTest, AnUprightLineIsOnePixelWideAtEveryDensity) {
    picture_.Line(50, 0, 50, kHeight, kBlack);
    for (const int density : {1, 2, 3}) {
        const QImage image = Painted(density);
        int inked = 0;
        for (int column = 0; column < image.width(); ++column) {
            const QColor colour = image.pixelColor(column, kHeight / 2);
            EXPECT_TRUE(colour == Qt::black || colour == Qt::white) << "a blurred edge at density " << density;
            inked += colour == Qt::black;
        }
        EXPECT_EQ(inked, 1);
    }
}

TEST_F(PicturePainterTest, LinesThatMeetLeaveNoHole) {
    picture_.Line(10, 20, 40, 20, kBlack);
    picture_.Line(40, 20, 40, 50, kBlack);
    const QImage image = Painted(1);
    EXPECT_EQ(image.pixelColor(10, 20), Qt::black);
    EXPECT_EQ(image.pixelColor(40, 20), Qt::black);
    EXPECT_EQ(image.pixelColor(40, 50), Qt::black);
}

TEST_F(PicturePainterTest, ACurveLooksLikeItsLines) {
    constexpr double kStart = 10.0137;  // no point lies between two pixels, where rounding alone would decide
    picture_.SetScaleTop(-0.31);
    std::mt19937 random(20261122);
    for (const double step : {0.0013, 0.031, 0.43, 5.1}) {  // many points a pixel, and many pixels a point
        std::vector<std::int16_t> heights;
        while (static_cast<double>(heights.size()) * step < 80) {
            const auto height = static_cast<std::int16_t>(random() % 50);
            heights.insert(heights.end(), random() % 4 == 0 ? 1 : random() % 300 + 1, height);
        }
        picture_.Clear();
        for (std::size_t i = 1; i < heights.size(); ++i)
            picture_.Line(kStart + static_cast<double>(i - 1) * step, heights[i - 1], kStart + static_cast<double>(i) * step, heights[i],
                          kBlack);
        const QImage lines = Painted(2);
        picture_.Clear();
        picture_.Curve(kStart, step, heights, kBlack);
        EXPECT_EQ(Painted(2), lines) << step;
    }
}

TEST_F(PicturePainterTest, NamesSpreadWithTheColumnsBelowThem) {
    picture_.Name(20, 50, false, "Pinus");
    const int plain = FirstInk(Painted(1));
    EXPECT_NEAR(plain, 20, 4);
    EXPECT_EQ(FirstInk(Painted(1, 2)) - plain, 20) << "in a picture twice as wide as its design";
}

TEST_F(PicturePainterTest, ANameThatIsLongerThanTheStripIsCondensed) {
    for (const char* name : {"Chenopodiaceae/Amaranthaceae", "WWWWWWWWWWWWWWWWWWWWWWWWW"}) {
        picture_.Clear();
        picture_.Name(20, 55, true, name);
        const QImage image = Painted(2);
        bool inked = false;
        for (int column = 0; column < image.width(); ++column) {
            for (int y = 0; y < 2; ++y) EXPECT_EQ(image.pixelColor(column, y), Qt::white) << name;
            for (int y = 4; y < 16; ++y) inked = inked || image.pixelColor(column, y) != Qt::white;
        }
        EXPECT_TRUE(inked) << name << " ends right below the edge";
    }
}

TEST_F(PicturePainterTest, ATextEndsBeforeItsEndHoweverWideItsLettersAre) {
    for (const char* number : {"0", "15", "135", "1350000"}) {
        picture_.Clear();
        picture_.PrintBefore(20, 18, 10, 10, number, kBlack);
        for (const int density : {1, 2, 3}) {
            const QImage image = Painted(density);
            int last = image.width() - 1;
            while (last > 0 && !HasInk(image, last)) --last;
            EXPECT_LT(last, 20 * density) << number;
            EXPECT_GT(last, 14 * density) << number;
        }
    }
    picture_.Clear();
    picture_.Print(95, 10, 10, "135", kBlack);
    EXPECT_FALSE(HasInk(Painted(1), kWidth - 1));
    EXPECT_TRUE(HasInk(Painted(1), kWidth - 5)) << "it begins further left";
}

TEST_F(PicturePainterTest, ACopyIsThreeTimesAsLargeAndWideEnoughToPrint) {
    for (const auto& [width, times] : {std::pair{60, 1600 / 60.0}, {600, 3.0}}) {
        picture_.SetWidth(width * 15);
        picture_.SetHeight(40 * 15);
        picture_.Clear();
        picture_.SetBackColor(kWhite);
        picture_.Line(50, 0, 50, kHeight, kBlack);
        picture_.Persist();
        picture_.Line(0, 30, kWidth, 30, kRed);
        const QImage copy = CopyOf(picture_);
        EXPECT_EQ(copy.size(), (QSizeF(width, 40) * times).toSize());
        EXPECT_NEAR(copy.widthMM(), width * 25.4 / 96, 0.5) << "on paper";
        int inked = 0;
        for (int column = 0; column < copy.width(); ++column) inked += copy.pixelColor(column, copy.height() / 4) == Qt::black;
        EXPECT_EQ(inked, qRound(times)) << "lines in proportion";
        EXPECT_EQ(copy.pixelColor(1, copy.height() / 2), Qt::red) << "the overlay too";
        EXPECT_EQ(copy.pixelColor(1, 1), Qt::white);
    }
}

TEST_F(PicturePainterTest, ANameReadsUpward) {
    picture_.Name(20, 50, false, "Pinus sylvestris");
    const QImage image = Painted(1);
    bool above = false, below = false;
    for (int column = 15; column < 40; ++column) {
        above = above || image.pixelColor(column, 30) != Qt::white || image.pixelColor(column, 31) != Qt::white;
        below = below || image.pixelColor(column, 56) != Qt::white;
    }
    EXPECT_TRUE(above);
    EXPECT_FALSE(below);
}
}  // namespace

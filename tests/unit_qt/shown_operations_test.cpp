// A picture that is repainted in parts is, to the pixel, the picture painted anew.
#include "platform/qt/picture_painter.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPixmap>
#include <random>

namespace {
constexpr unsigned kSeed = 20261121;
constexpr QSize kSize(160, 120);

class ShownOperationsTest : public testing::Test {
protected:
    int Any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    double AnyPlace() { return Any(-10, 110) / 100.0 + Any(0, 9) / 1000.0; }

    DrawOperation AnyOperation() {
        DrawOperation operation;
        operation.shape = static_cast<DrawOperation::Shape>(Any(0, 99) < 90 ? Any(0, 2) : Any(3, 5));
        const bool is_name = operation.shape == DrawOperation::Shape::Name;
        operation.x1 = is_name ? Any(0, 150) : AnyPlace();
        operation.y1 = is_name ? Any(40, 110) : AnyPlace();
        const bool is_short = Any(0, 1) == 0;  // some lines stay in one pixel
        operation.x2 = is_short ? operation.x1 + Any(-9, 9) / 2000.0 : AnyPlace();
        operation.y2 = is_short ? operation.y1 + Any(-9, 9) / 2000.0 : AnyPlace();
        operation.radius = Any(1, 60) / 1000.0;
        operation.size = 9;
        operation.rim = Any(0, 1) == 0 ? kBlack : Colour{0, 128, 0};
        operation.fill = kFormColour;
        operation.text = "Pinus";
        if (operation.shape == DrawOperation::Shape::Curve) {
            operation.x2 = Any(1, 40) / 100.0;
            operation.y2 = Any(-9, 9) / 100.0;
            for (int points = Any(2, 9); points > 0; --points) operation.heights.push_back(static_cast<std::int16_t>(Any(-2, 2)));
        }
        return operation;
    }

    static QPixmap White(const PictureScale& scale) {
        QPixmap picture(scale.size.toSize());
        picture.fill(Qt::white);
        return picture;
    }
    static QPixmap PaintedAnew(const std::vector<DrawOperation>& operations, const PictureScale& scale) {
        QPixmap picture = White(scale);
        QPainter painter(&picture);
        PaintOperations(painter, operations, scale);
        return picture;
    }

    // One of them changes, comes or goes.
    void ChangeSomething(std::vector<DrawOperation>& operations) {
        const int place = Any(0, static_cast<int>(operations.size()) - 1);
        switch (Any(0, 4)) {
            case 0:
                operations.push_back(AnyOperation());
                break;
            case 1:
                operations.insert(operations.begin() + place, AnyOperation());
                break;
            case 2:
                operations.erase(operations.begin() + place);
                break;
            case 3:
                operations[place].rim = Colour{255, 0, 0};
                break;
            default:
                operations[place] = AnyOperation();
        }
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QApplication application_{count_, arguments_};
    std::mt19937 random_{kSeed};
};

TEST_F(ShownOperationsTest, APictureMendedInPartsIsThePicturePaintedAnew) {
    int smaller = 0;
    for (const double density : {1.0, 1.25, 2.0}) {
        const PictureScale scale{(QSizeF(kSize) * density).toSize(), density, 1};
        const QRect all(QPoint(), scale.size.toSize());
        std::vector<DrawOperation> operations(40);
        for (DrawOperation& operation : operations) operation = AnyOperation();
        ShownOperations shown;
        QPixmap mended = White(scale);
        for (int change = 0; change < 150; ++change) {
            const QRect part = shown.Show(operations, scale);
            RepaintPart(mended, part, kWhite, shown.All(), scale);
            ASSERT_EQ(mended.toImage(), PaintedAnew(operations, scale).toImage()) << "density " << density << ", change " << change;
            smaller += !part.contains(all);
            ChangeSomething(operations);
        }
    }
    EXPECT_GT(smaller, 150) << "most changes are small";
}

TEST_F(ShownOperationsTest, WhatIsTheSameLeavesNothingToPaint) {
    const std::vector<DrawOperation> operations{AnyOperation(), AnyOperation()};
    const PictureScale scale{kSize, 1, 1};
    ShownOperations shown;
    EXPECT_FALSE(shown.Show(operations, scale).isEmpty());
    EXPECT_TRUE(shown.Show(operations, scale).isEmpty());
    EXPECT_FALSE(shown.Show({}, scale).isEmpty()) << "what goes leaves a hole";
    EXPECT_TRUE(shown.Show({}, scale).isEmpty());
}

TEST_F(ShownOperationsTest, AMovedLineTouchesWhereItWasAndWhereItIs) {
    DrawOperation line;
    line.x2 = 1;
    line.y1 = line.y2 = 0.5;
    const PictureScale scale{kSize, 1, 1};
    ShownOperations shown;
    shown.Show(std::span(&line, 1), scale);
    line.y1 = line.y2 = 0.6;
    const QRect part = shown.Show(std::span(&line, 1), scale);
    EXPECT_TRUE(part.contains(QRect(0, 60, kSize.width(), 13)));
    EXPECT_LT(part.height(), 22);
}
}  // namespace

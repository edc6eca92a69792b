#include "platform/qt/mouse.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>

#include "platform/services.h"

namespace {
class PointerTest : public testing::Test {
protected:
    ~PointerTest() override { MousePointer = kPointerDefault; }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
};

TEST_F(PointerTest, ANewApplicationIsToldOfThePointerAnew) {
    MousePointer = kPointerBusy;
    for (int round = 1; round <= 2; ++round) {
        const QApplication application(count_, arguments_);
        ShowPointer();
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr) << round;
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
}

TEST_F(PointerTest, WithoutAWishOfTheProgramEachWidgetHasItsOwn) {
    const QApplication application(count_, arguments_);
    for (const int pointer : {kPointerIBeam, kPointerSize}) {
        MousePointer = pointer;
        ShowPointer();
    }
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::SizeVerCursor);
    MousePointer = kPointerDefault;
    ShowPointer();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
}  // namespace

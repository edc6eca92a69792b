// Whether there is a device to play on. Both drivers are SDL's own: one that plays into nothing, and one that does not exist.
#include "platform/qt/qt_sounds.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>

namespace {
class QtSoundsTest : public testing::Test {
protected:
    ~QtSoundsTest() override { qunsetenv("SDL_AUDIODRIVER"); }

    // How often the program hears that there is no device; whoever leaves has waited for the device.
    int TimesTold(const char* driver) {
        qputenv("SDL_AUDIODRIVER", driver);
        int told = 0;
        {
            QtSounds sounds;
            sounds.IfSilent([&told] { ++told; });
        }
        QCoreApplication::processEvents();
        return told;
    }

    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    QApplication application_{count_, arguments_};
};

TEST_F(QtSoundsTest, SilenceIsToldOnce) {
    EXPECT_EQ(TimesTold("no-such-driver"), 1);
}

TEST_F(QtSoundsTest, WithADeviceThereIsNothingToTell) {
    EXPECT_EQ(TimesTold("dummy"), 0);
}

TEST_F(QtSoundsTest, WhoAsksLaterIsToldToo) {
    qputenv("SDL_AUDIODRIVER", "no-such-driver");
    bool first = false, second = false;
    QtSounds sounds;
    sounds.IfSilent([&first] { first = true; });
    for (const QDeadlineTimer limit(20000); !first && !limit.hasExpired();) QCoreApplication::processEvents();
    ASSERT_TRUE(first);
    sounds.IfSilent([&second] { second = true; });
    QCoreApplication::processEvents();
    EXPECT_TRUE(second);
}
}  // namespace

// Whether there is a device to play on, what a broken wave does there, and what comes after a device that goes away. The drivers are
// SDL's own: one that plays into nothing, one that does not exist, and one that plays into a file and is gone when that takes no more.
#include "platform/qt/qt_sounds.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <string>

#include "platform/headless/files.h"
#include "unit/wave_bytes.h"

namespace {
constexpr int kLimit = 20000;  // milliseconds

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

    template <class Condition>
    static bool Comes(Condition condition) {
        for (const QDeadlineTimer limit(kLimit); !limit.hasExpired(); QThread::msleep(1))
            if (condition()) return true;
        return false;
    }
    // Whether the wave that was asked for last sounds. While the device opens, the library may not be asked what its channel does.
    static bool IsHeard() {
        return Comes([] { return Mix_QuerySpec(nullptr, nullptr, nullptr) > 0 && Mix_AllocateChannels(-1) == 1; }) &&
               Comes([] { return Mix_Playing(0) != 0; });
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
    ASSERT_TRUE(Comes([&first] {
        QCoreApplication::processEvents();
        return first;
    }));
    sounds.IfSilent([&second] { second = true; });
    QCoreApplication::processEvents();
    EXPECT_TRUE(second);
}

TEST_F(QtSoundsTest, AWaveOfOneFrameASecondDoesNotEndTheProgram) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    std::string opening = DiskFiles().ReadAll(WAVES_FOLDER "/Opening.wav");
    opening.replace(24, 4, LowFirst(1, 4));
    const Wave spoiled{"WaveOpening", opening};
    const Wave next{"WaveKey1", SilentWave(20 * 44100)};
    QtSounds sounds;
    sounds.Play(spoiled);
    sounds.Play(next);
    EXPECT_TRUE(IsHeard());
    sounds.Play(spoiled);
    EXPECT_FALSE(Mix_Playing(0));
}

TEST_F(QtSoundsTest, ABrokenWaveCutsOffTheOldOneAndIsSilent) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    const Wave old_one{"WaveKey1", SilentWave(20 * 44100)};
    const Wave broken[] = {
        {"a rate too low", SilentWave(1000, {.rate = 7999})},
        {"floating point", SilentWave(1000, {.coding = 3, .bits = 32})},
        {"over 30 s", SilentWave(31 * 8000, {.rate = 8000})},
        {"no samples", SilentWave(0)},
        {"too short for the device", SilentWave(1, {.rate = 192000})},
        {"no wave", "broken"},
        {"empty", ""},
    };
    QtSounds sounds;
    for (const Wave& wave : broken) {
        sounds.Play(old_one);
        ASSERT_TRUE(IsHeard()) << "before " << wave.name;
        sounds.Play(wave);
        EXPECT_FALSE(Mix_Playing(0)) << wave.name;
    }
}

TEST_F(QtSoundsTest, MusicUnderTheNameOfAWaveReachesNoDecoder) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    QtSounds sounds;
    const Wave wave{"WaveKey1", SilentWave(20 * 44100)};
    sounds.Play(wave);
    ASSERT_TRUE(IsHeard());
    for (const char* head : {"OggS", "fLaC", "MThd", "ID3\x03", "IMPM"}) {
        const Wave music{head, head + std::string(100, '\0')};
        sounds.Play(music);
    }
    EXPECT_EQ(Mix_Init(0), 0) << "the decoders that are loaded";
}

#ifndef _WIN32  // there is no file that is always full
class LostDeviceTest : public QtSoundsTest {
protected:
    LostDeviceTest() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", device_.toUtf8());
    }
    ~LostDeviceTest() override { qunsetenv("SDL_DISKAUDIOFILE"); }

    void PlugIn(const QString& file) {
        QFile::remove(device_);
        ASSERT_TRUE(QFile::link(file, device_));
    }
    bool IsPlayedInto() const { return QFile(file_).size() > 0; }

    const Wave wave_{"WaveKey1", SilentWave(20 * 44100)};
    QTemporaryDir folder_;
    const QString device_ = folder_.filePath("device"), file_ = folder_.filePath("file");
};

TEST_F(LostDeviceTest, TheNextDeviceTakesItsPlace) {
    PlugIn("/dev/full");
    QtSounds sounds;
    ASSERT_TRUE(Comes([] { return Mix_QuerySpec(nullptr, nullptr, nullptr) > 0; }));
    PlugIn(file_);
    ASSERT_TRUE(Comes([this] { return IsPlayedInto(); }));
    sounds.Play(wave_);
    EXPECT_TRUE(IsHeard());
}

TEST_F(LostDeviceTest, OneThatComesLaterIsPlayedOnButNotWhatWasPlayedBefore) {
    PlugIn(folder_.filePath("no folder/file"));
    int told = 0;
    QtSounds sounds;
    sounds.IfSilent([&told] { ++told; });
    ASSERT_TRUE(Comes([&told] {
        QCoreApplication::processEvents();
        return told == 1;
    }));
    sounds.Play(wave_);
    PlugIn(file_);
    SDL_Event has_come{};
    has_come.type = SDL_AUDIODEVICEADDED;
    SDL_PushEvent(&has_come);
    ASSERT_TRUE(Comes([this] { return IsPlayedInto(); }));
    EXPECT_FALSE(Mix_Playing(0));
    sounds.Play(wave_);
    EXPECT_TRUE(IsHeard());
}
#endif
}  // namespace

// Waves in the hands of the sound library itself, on SDL's device that plays into nothing.
#include "platform/qt/load_wave.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <optional>
#include <string>

#include "platform/headless/files.h"
#include "platform/wave_format.h"
#include "unit/wave_bytes.h"

namespace {
constexpr int kRate = 44100;
constexpr int kFrame = 4;  // bytes of 16-bit stereo
constexpr Uint32 kLongest = kLongestWave * kRate * kFrame;

class LoadWaveTest : public testing::Test {
protected:
    LoadWaveTest() {
        qputenv("SDL_AUDIODRIVER", "dummy");
        EXPECT_EQ(SDL_Init(SDL_INIT_AUDIO), 0);
        EXPECT_EQ(Mix_OpenAudio(kRate, AUDIO_S16SYS, 2, 512), 0);
    }
    ~LoadWaveTest() override {
        Mix_CloseAudio();
        SDL_Quit();
        qunsetenv("SDL_AUDIODRIVER");
    }

    // In bytes of the device; nothing for a broken wave.
    std::optional<Uint32> Loaded(const std::string& bytes) {
        Mix_Chunk* chunk = LoadWave(bytes);
        if (!chunk) return std::nullopt;
        const Uint32 length = chunk->alen;
        Mix_FreeChunk(chunk);
        return length;
    }
};

TEST_F(LoadWaveTest, MutantsOfTheInstalledWavesEndNothing) {
    constexpr unsigned kMutants = 300;
    unsigned seed = 0, playable = 0, broken = 0;
    for (const char* name : {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"}) {
        const std::string wave = DiskFiles().ReadAll(WAVES_FOLDER "/" + std::string(name) + ".wav");
        ASSERT_TRUE(Loaded(wave)) << name;
        for (unsigned mutants = 0; mutants < kMutants; ++mutants) {
            const std::string mutant = SpoiledWave(wave, ++seed);
            const std::optional<Uint32> length = Loaded(mutant);
            ASSERT_EQ(length.has_value(), IsPlayableWave(mutant)) << name << ", seed " << seed;
            ASSERT_LE(length.value_or(0), kLongest) << name << ", seed " << seed;
            ++(length ? playable : broken);
        }
    }
    EXPECT_GT(playable, 100u);
    EXPECT_GT(broken, 100u);
}

TEST_F(LoadWaveTest, WhatIsOddInAWaveAndYetRightIsHeardWhole) {
    const std::string format = FormatChunk({});
    const std::string data = WaveChunk("data", std::string(std::size_t{2} * kRate, '\0'));
    const std::string other = WaveChunk("LIST", "odd");
    const std::string waves[] = {format + data,
                                 LongFormatChunk({}) + data,
                                 other + format + data,
                                 format + other + data,
                                 format + data + other,
                                 format + data + data,
                                 LongFormatChunk({.channels = 2, .bits = 8}) + data,
                                 format + data + "LIST" + LowFirst(0xffffffff, 4)};
    for (const std::string& chunks : waves) EXPECT_EQ(Loaded(WaveOf(chunks)), Uint32{kRate * kFrame}) << chunks.substr(0, 100);
    std::string from_a_pipe = WaveOf(format + data);
    EXPECT_EQ(Loaded(from_a_pipe.replace(4, 4, LowFirst(0, 4))), Uint32{kRate * kFrame});
}

TEST_F(LoadWaveTest, TheLongestWavesAreHeardWhole) {
    for (const std::uint32_t rate : {kLowestWaveRate, std::uint32_t{kRate}, kHighestWaveRate})
        for (const int channels : {1, 2}) {
            const std::optional<Uint32> length = Loaded(SilentWave(kLongestWave * rate, {.channels = channels, .rate = rate}));
            ASSERT_TRUE(length) << rate;
            EXPECT_LE(*length, kLongest) << rate;
            EXPECT_GE(*length, kLongest - kLongest / 1000) << rate;
        }
}
}  // namespace

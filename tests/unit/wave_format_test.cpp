// Which wave files may be played: on both sides of each limit, with what is odd in them and yet right, and cut at every byte.
#include "platform/wave_format.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/headless/files.h"
#include "unit/wave_bytes.h"

namespace {
std::string Data(std::size_t bytes = 200) {
    return WaveChunk("data", std::string(bytes, '\0'));
}

std::string DataOfSize(std::uint32_t told, std::size_t bytes) {
    return "data" + LowFirst(told, 4) + std::string(bytes, '\0');
}

bool IsPlayable(const WaveFormat& format) {
    return IsPlayableWave(SilentWave(100, format));
}

std::string With(std::size_t place, const std::string& bytes) {
    std::string wave = SilentWave(100);
    return wave.replace(place, bytes.size(), bytes);
}

TEST(WaveFormatTest, TheInstalledWavesArePlayable) {
    for (const char* name : {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"})
        EXPECT_TRUE(IsPlayableWave(DiskFiles().ReadAll(WAVES_FOLDER "/" + std::string(name) + ".wav"))) << name;
}

TEST(WaveFormatTest, OneOrTwoChannelsOfEightOrSixteenBits) {
    for (const int channels : {1, 2})
        for (const int bits : {8, 16}) EXPECT_TRUE(IsPlayable({.channels = channels, .bits = bits})) << channels << ", " << bits;
    for (const int channels : {0, 3, 6, 0x7fff}) EXPECT_FALSE(IsPlayable({.channels = channels})) << channels;
    for (const int bits : {0, 1, 4, 12, 20, 24, 32, 64}) EXPECT_FALSE(IsPlayable({.bits = bits})) << bits;
}

TEST(WaveFormatTest, FromEightTo192Kilohertz) {
    for (const std::uint32_t rate : {8000u, 11025u, 22050u, 44100u, 48000u, 96000u, 192000u})
        EXPECT_TRUE(IsPlayable({.rate = rate})) << rate;
    for (const std::uint32_t rate : {0u, 1u, 100u, 7999u, 192001u, 0x7fffffffu, 0xffffffffu})
        EXPECT_FALSE(IsPlayable({.rate = rate})) << rate;
}

TEST(WaveFormatTest, FromOneFrameToThirtySeconds) {
    for (const WaveFormat& format : {WaveFormat{.rate = 8000, .bits = 8}, WaveFormat{.channels = 2}}) {
        EXPECT_FALSE(IsPlayableWave(SilentWave(0, format)));
        EXPECT_TRUE(IsPlayableWave(SilentWave(1, format)));
        EXPECT_TRUE(IsPlayableWave(SilentWave(30 * format.rate, format)));
        EXPECT_FALSE(IsPlayableWave(SilentWave(30 * format.rate + 1, format)));
    }
    EXPECT_FALSE(IsPlayableWave(WaveOf(FormatChunk({.channels = 2}) + Data(3)))) << "less than a frame";
    EXPECT_TRUE(IsPlayableWave(WaveOf(FormatChunk({.channels = 2}) + Data(7)))) << "a frame, and a part of one";
}

TEST(WaveFormatTest, TheLongestOfTheHighestRateAnd24MegabytesWithAllElse) {
    const std::string longest = SilentWave(30 * 192000, {.channels = 2, .rate = 192000});
    EXPECT_TRUE(IsPlayableWave(longest));
    constexpr std::size_t kMost = 24 << 20, kChunkHead = 8;
    const std::string largest = longest + WaveChunk("LIST", std::string(kMost - longest.size() - kChunkHead, 'x'));
    ASSERT_EQ(largest.size(), kMost);
    EXPECT_TRUE(IsPlayableWave(largest));
    EXPECT_FALSE(IsPlayableWave(largest + "x"));
}

TEST(WaveFormatTest, OnlyPcm) {
    for (const int coding : {0, 2, 3, 6, 7, 0x11, 0x31, 0x55, 0xfffe, 0xffff}) {
        EXPECT_FALSE(IsPlayable({.coding = coding})) << coding;
        EXPECT_FALSE(IsPlayableWave(WaveOf(LongFormatChunk({.coding = coding}) + Data()))) << coding;
    }
}

TEST(WaveFormatTest, TheCodingMayStandBehindTheRest) {
    const std::string chunk = LongFormatChunk({.channels = 2});
    EXPECT_TRUE(IsPlayableWave(WaveOf(chunk + Data())));
    EXPECT_FALSE(IsPlayableWave(WaveOf(WaveChunk("fmt ", chunk.substr(8, 39)) + Data()))) << "cut short";
    for (const std::uint32_t told : {0u, 21u}) {
        std::string content = chunk.substr(8);
        content.replace(16, 2, LowFirst(told, 2));
        EXPECT_FALSE(IsPlayableWave(WaveOf(WaveChunk("fmt ", content) + Data()))) << told << " bytes more";
    }
    for (std::size_t place = 24; place < 40; ++place) {
        std::string content = chunk.substr(8);
        content[place] = static_cast<char>(content[place] ^ 1);
        EXPECT_FALSE(IsPlayableWave(WaveOf(WaveChunk("fmt ", content) + Data()))) << "another byte " << place;
    }
}

TEST(WaveFormatTest, AFrameIsOneSampleForEachChannel) {
    for (const int frame : {0, 1, 3, 4, 0xffff}) EXPECT_FALSE(IsPlayableWave(With(32, LowFirst(frame, 2)))) << frame;
}

TEST(WaveFormatTest, TheBytesASecondMayBeWrong) {
    for (const std::uint32_t bytes : {0u, 1u, 0xffffffffu}) EXPECT_TRUE(IsPlayableWave(With(28, LowFirst(bytes, 4)))) << bytes;
}

TEST(WaveFormatTest, AFormatHasSixteenBytesOrMore) {
    const std::string content = FormatChunk({}).substr(8);
    for (const std::size_t size : {0, 1, 14, 15})
        EXPECT_FALSE(IsPlayableWave(WaveOf(WaveChunk("fmt ", content.substr(0, size)) + Data()))) << size;
    for (const std::size_t more : {1, 2, 3, 24})
        EXPECT_TRUE(IsPlayableWave(WaveOf(WaveChunk("fmt ", content + std::string(more, '\0')) + Data()))) << more;
}

void ExpectPlayableAround(const std::string& other) {
    const std::string format = FormatChunk({});
    EXPECT_TRUE(IsPlayableWave(WaveOf(other + format + Data()))) << other.size();
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + other + other + Data()))) << other.size();
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + Data() + other))) << other.size();
}

TEST(WaveFormatTest, OtherChunksMayStandAnywhere) {
    const std::string format = FormatChunk({});
    for (const std::size_t size : {0, 1, 2, 7, 1000})  // odd ones have a byte more behind them
        ExpectPlayableAround(WaveChunk("LIST", std::string(size, 'x')));
    EXPECT_FALSE(IsPlayableWave(WaveOf(format + "LIST" + LowFirst(3, 4) + "abc" + Data()))) << "without its byte more";
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + Data() + "LIST" + LowFirst(0xffffffff, 4)))) << "behind the samples nothing matters";
}

TEST(WaveFormatTest, ThereIsOneFormatAndItComesBeforeTheSamples) {
    const std::string format = FormatChunk({});
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + Data())));
    EXPECT_FALSE(IsPlayableWave(WaveOf(WaveChunk("fmt ", "") + format + Data())));
    EXPECT_FALSE(IsPlayableWave(WaveOf(Data() + format)));
    EXPECT_FALSE(IsPlayableWave(WaveOf(Data())));
    EXPECT_FALSE(IsPlayableWave(WaveOf(format)));
    EXPECT_FALSE(IsPlayableWave(WaveOf(format + format + Data())));
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + Data() + Data(3)))) << "the first samples are those that sound";
}

TEST(WaveFormatTest, TheSamplesLieInsideTheFile) {
    const std::string format = FormatChunk({});
    EXPECT_TRUE(IsPlayableWave(WaveOf(format + DataOfSize(200, 200))));
    for (const std::uint32_t told : {201u, 202u, 0x7fffffffu, 0x80000000u, 0xfffffffeu, 0xffffffffu, 0u})  // the last two: from a pipe
        EXPECT_FALSE(IsPlayableWave(WaveOf(format + DataOfSize(told, 200)))) << told;
    EXPECT_TRUE(IsPlayableWave(WaveOf(FormatChunk({.bits = 8}) + DataOfSize(101, 101))))
        << "the byte behind an odd size is missing at the end";
}

TEST(WaveFormatTest, NoSizeOfAChunkLeadsBack) {
    for (const std::uint32_t size : {0xfffffff7u, 0xfffffff8u, 0xfffffffeu, 0xffffffffu})
        EXPECT_FALSE(IsPlayableWave(WaveOf(FormatChunk({}) + "LIST" + LowFirst(size, 4) + Data()))) << size;
}

TEST(WaveFormatTest, TheSizeOfTheWholeIsThereOr0) {
    for (const std::uint32_t size : {0u, 236u, 237u, 0xffffffffu}) EXPECT_TRUE(IsPlayableWave(With(4, LowFirst(size, 4)))) << size;
    for (const std::uint32_t size : {1u, 4u, 28u, 35u}) EXPECT_FALSE(IsPlayableWave(With(4, LowFirst(size, 4)))) << size << ": no samples";
}

TEST(WaveFormatTest, NothingButRiffWave) {
    for (const char* name : {"RIFX", "RF64", "BW64", "FORM", "OggS", "fLaC", "MThd", "ID3\x03"})
        EXPECT_FALSE(IsPlayableWave(With(0, name))) << name;
    for (const char* name : {"AVI ", "RMID", "wave"}) EXPECT_FALSE(IsPlayableWave(With(8, name))) << name;
}

TEST(WaveFormatTest, NoWaveThatIsCutIsPlayable) {
    for (const WaveFormat& format : {WaveFormat{}, WaveFormat{.channels = 2, .bits = 8}}) {
        const std::string wave = WaveOf(LongFormatChunk(format) + WaveChunk("LIST", "odd") + Data(50));
        ASSERT_TRUE(IsPlayableWave(wave));
        for (std::size_t size = 0; size < wave.size(); ++size) EXPECT_FALSE(IsPlayableWave(std::string(wave, 0, size))) << size;
    }
}
}  // namespace

// The eight sounds, measured: what must hold so that ten thousand of them a day tire nobody and each still tells its one thing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numbers>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr const char* kAll[] = {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"};
constexpr const char* kOthersWhileCounting[] = {"Key-1", "Key-2", "Key-3", "Undo", "Save", "Error"};
constexpr double kRate = 44100;
constexpr std::size_t kHeader = 44;  // bytes in front of the samples
constexpr double kFifth = 1.5;

std::string Bytes(const std::string& name) {
    std::ifstream file(WAVES_FOLDER "/" + name + ".wav", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::uint32_t NumberAt(const std::string& bytes, std::size_t place, int width) {  // the low byte first
    std::uint32_t number = 0;
    for (int byte = width; byte-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes.at(place + byte));
    return number;
}

std::vector<int> Samples(const std::string& name) {
    const std::string bytes = Bytes(name);
    std::vector<int> samples;
    for (std::size_t place = kHeader; place + 1 < bytes.size(); place += 2)
        samples.push_back(static_cast<std::int16_t>(NumberAt(bytes, place, 2)));
    return samples;
}

double Milliseconds(const std::vector<int>& samples) {
    return 1000 * samples.size() / kRate;
}

int Peak(const std::vector<int>& samples) {
    int peak = 0;
    for (const int sample : samples) peak = std::max(peak, std::abs(sample));
    return peak;
}

std::vector<int> Part(const std::vector<int>& samples, double from_ms, double to_ms) {
    const auto place = [&](double ms) { return std::min(samples.size(), static_cast<std::size_t>(ms * kRate / 1000)); };
    return {samples.begin() + place(from_ms), samples.begin() + place(to_ms)};
}

double StrengthAt(const std::vector<int>& samples, double hz) {  // by Goertzel's recurrence
    const double turn = 2 * std::cos(2 * std::numbers::pi * hz / kRate);
    double last = 0, before = 0;
    for (const int sample : samples) {
        const double next = sample + turn * last - before;
        before = last;
        last = next;
    }
    return last * last + before * before - turn * last * before;
}

double Pitch(const std::vector<int>& samples) {  // the strongest frequency between 110 and 3520 Hz, to a quarter of a semitone
    double pitch = 0, strongest = 0;
    for (double hz = 110; hz < 3520; hz *= std::exp2(1.0 / 48)) {
        const double strength = StrengthAt(samples, hz);
        if (strength > strongest) strongest = strength, pitch = hz;
    }
    return pitch;
}

}  // namespace

TEST(WavesTest, AllAreSixteenBitMonoAt44100) {
    for (const char* name : kAll) {
        const std::string bytes = Bytes(name);
        ASSERT_GT(bytes.size(), kHeader) << name;
        EXPECT_EQ(bytes.substr(0, 4), "RIFF") << name;
        EXPECT_EQ(NumberAt(bytes, 4, 4), bytes.size() - 8) << name;
        EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ") << name;
        EXPECT_EQ(NumberAt(bytes, 16, 4), 16u) << name;
        EXPECT_EQ(NumberAt(bytes, 20, 2), 1u) << name << ": PCM";
        EXPECT_EQ(NumberAt(bytes, 22, 2), 1u) << name << ": channels";
        EXPECT_EQ(NumberAt(bytes, 24, 4), 44100u) << name;
        EXPECT_EQ(NumberAt(bytes, 28, 4), 88200u) << name << ": bytes a second";
        EXPECT_EQ(NumberAt(bytes, 32, 2), 2u) << name << ": bytes a sample";
        EXPECT_EQ(NumberAt(bytes, 34, 2), 16u) << name << ": bits";
        EXPECT_EQ(bytes.substr(36, 4), "data") << name;
        EXPECT_EQ(NumberAt(bytes, 40, 4), bytes.size() - kHeader) << name;
    }
}

TEST(WavesTest, AKeySoundLasts40To80Milliseconds) {
    for (const char* name : {"Key-1", "Key-2", "Key-3"}) {
        EXPECT_GE(Milliseconds(Samples(name)), 40) << name;
        EXPECT_LE(Milliseconds(Samples(name)), 80) << name;
    }
}

TEST(WavesTest, TheOpeningEndsWithinASecondAndAHalf) {
    EXPECT_GT(Milliseconds(Samples("Opening")), 500);
    EXPECT_LT(Milliseconds(Samples("Opening")), 1500);
}

TEST(WavesTest, AllPeakNearMinusNineDecibels) {
    for (const char* name : kAll) {
        const double decibels = 20 * std::log10(Peak(Samples(name)) / 32768.0);
        EXPECT_GE(decibels, -10) << name;
        EXPECT_LE(decibels, -8) << name;
    }
}

TEST(WavesTest, NoneClicksAtItsStartOrEnd) {
    for (const char* name : kAll) {
        const std::vector<int> samples = Samples(name);
        EXPECT_EQ(samples.front(), 0) << name;
        EXPECT_EQ(samples.back(), 0) << name;
        const double end = Milliseconds(samples);
        EXPECT_LT(Peak(Part(samples, 0, 1)), Peak(samples) / 8) << name << ": the first millisecond";
        EXPECT_LT(Peak(Part(samples, end - 1, end)), Peak(samples) / 100) << name << ": the last millisecond";
    }
}

TEST(WavesTest, NoneStepsBetweenTwoSamples) {  // a square wave, or a note cut off inside, would jump by its whole height
    for (const char* name : kAll) {
        const std::vector<int> samples = Samples(name);
        const int step = Peak(samples) / 3;
        for (std::size_t place = 1; place < samples.size(); ++place)
            ASSERT_LT(std::abs(samples[place] - samples[place - 1]), step) << name << " at sample " << place;
    }
}

TEST(WavesTest, TheBanksAreAFifthApartOrMore) {
    const double neutral = Pitch(Samples("Key-1"));
    const double one_shift = Pitch(Samples("Key-2"));
    const double both_shifts = Pitch(Samples("Key-3"));
    EXPECT_GT(one_shift, neutral * kFifth);
    EXPECT_GT(both_shifts, one_shift * kFifth);
}

TEST(WavesTest, UndoFalls) {
    const std::vector<int> undo = Samples("Undo");
    double above = 10000;
    for (double ms = 0; ms + 30 <= Milliseconds(undo); ms += 25) {
        const double pitch = Pitch(Part(undo, ms, ms + 30));
        EXPECT_LT(pitch, above) << "at " << ms << " ms";
        above = pitch;
    }
    EXPECT_GT(Pitch(Part(undo, 0, 30)), kFifth * Pitch(Part(undo, 90, 120)));
}

TEST(WavesTest, SaveHasTwoTonesTheSecondHigher) {
    const std::vector<int> save = Samples("Save");
    const double first = Pitch(Part(save, 0, 90));
    const double second = Pitch(Part(save, 120, 240));
    EXPECT_GT(second, first * 1.4);
    EXPECT_NEAR(Pitch(Part(save, 0, 45)), Pitch(Part(save, 45, 90)), first / 20) << "each tone stands still";
    EXPECT_NEAR(Pitch(Part(save, 120, 180)), Pitch(Part(save, 180, 240)), second / 20);
}

TEST(WavesTest, TheAlarmIsTheLongestSoundWhileCounting) {
    for (const char* name : kOthersWhileCounting) EXPECT_GT(Milliseconds(Samples("Alarm")), 1.5 * Milliseconds(Samples(name))) << name;
}

TEST(WavesTest, TheAlarmTrillsAboveAllOthersFromItsFirstTenthOfASecond) {  // the next key may cut it off soon after
    const std::vector<int> alarm = Samples("Alarm");
    const double high = Pitch(Part(alarm, 0, 50));
    const double low = Pitch(Part(alarm, 60, 105));
    EXPECT_GT(high, low * 1.25);
    EXPECT_NEAR(Pitch(Part(alarm, 115, 160)), high, high / 50);
    for (const char* name : kOthersWhileCounting) EXPECT_GT(low, Pitch(Part(Samples(name), 0, 100)) * 1.05) << name;
}

TEST(WavesTest, TheErrorIsLow) {
    const double error = Pitch(Samples("Error"));
    for (const char* name : {"Key-1", "Key-2", "Key-3", "Undo", "Save", "Alarm"}) EXPECT_GT(Pitch(Samples(name)), error * kFifth) << name;
}

TEST(WavesTest, AllEightDiffer) {
    std::set<std::string> different;
    for (const char* name : kAll) different.insert(Bytes(name));
    EXPECT_EQ(different.size(), std::size(kAll));
}

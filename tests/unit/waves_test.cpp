// The eight sounds, measured: what must hold so that ten thousand of them a day tire nobody and each still tells its one thing.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
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

constexpr std::size_t kWhole = 1 << 16;  // samples: a second and a half, more than any of the eight has
constexpr std::size_t kHead = 1 << 12;   // 90 milliseconds

void Transform(std::vector<std::complex<double>>& values) {  // Fourier's, of a length that is a power of 2
    if (values.size() == 1) return;
    std::vector<std::complex<double>> even, odd;
    for (std::size_t place = 0; place < values.size(); place += 2) {
        even.push_back(values[place]);
        odd.push_back(values[place + 1]);
    }
    Transform(even);
    Transform(odd);
    for (std::size_t place = 0; place < odd.size(); ++place) {
        const auto turned = odd[place] * std::polar(1.0, -2 * std::numbers::pi * place / values.size());
        values[place] = even[place] + turned;
        values[place + odd.size()] = even[place] - turned;
    }
}

std::vector<std::complex<double>> Transformed(const std::vector<int>& samples, std::size_t length) {
    std::vector<std::complex<double>> values(length);
    std::copy(samples.begin(), samples.end(), values.begin());
    for (auto& value : values) value /= 32768;
    Transform(values);
    return values;
}

std::vector<double> FirstSpectrum(const std::string& name) {  // the power at each place of kHead, of the first 60 ms
    const auto values = Transformed(Part(Samples(name), 0, 60), kHead);
    std::vector<double> power(kHead / 2);
    for (std::size_t place = 0; place < power.size(); ++place) power[place] = std::norm(values[place]);
    return power;
}

double PowerBetween(const std::vector<double>& power, double from_hz, double to_hz) {
    double sum = 0;
    for (std::size_t place = 0; place < power.size(); ++place)
        if (const double hz = place * kRate / kHead; hz >= from_hz && hz < to_hz) sum += power[place];
    return sum;
}

// How strongly a frequency is heard: curve A of IEC 61672 (1 at 1 kHz), through a small speaker that has no bass (below 500 Hz 12 dB an
// octave).
double Heard(double hz) {
    if (hz == 0) return 0;
    const double f = hz * hz;
    const double curve_a = 1.2589 * 12194 * 12194 * f * f /
                           ((f + 20.6 * 20.6) * std::sqrt((f + 107.7 * 107.7) * (f + 737.9 * 737.9)) * (f + 12194.0 * 12194.0));
    return curve_a / std::sqrt(1 + std::pow(500 / hz, 4));
}

// What a sound level meter shows at the most, in dB of the full scale: the power of what is heard, with the meter's "fast" time of 125 ms.
double Loudness(const std::vector<int>& samples) {
    auto values = Transformed(samples, kWhole);
    for (std::size_t place = 0; place < kWhole; ++place) values[place] *= Heard(std::min(place, kWhole - place) * kRate / kWhole);
    for (auto& value : values) value = std::conj(value);  // the way back, but for a conjugation that the power does not see
    Transform(values);
    const double hold = std::exp(-1 / (0.125 * kRate));
    double shown = 0, most = 0;
    for (const auto& value : values) {
        shown = hold * shown + (1 - hold) * std::norm(value / static_cast<double>(kWhole));
        most = std::max(most, shown);
    }
    return 10 * std::log10(most);
}

constexpr int kBands = 40;
using Bands = std::array<double, kBands>;  // dB beside the whole sound, -50 at the least

Bands FirstBands(const std::string& name) {  // from 100 Hz to 10 kHz, of the first 60 ms
    const std::vector<double> power = FirstSpectrum(name);
    const double whole = PowerBetween(power, 100, 10000);
    Bands bands;
    const auto edge = [](int band) { return 100 * std::pow(100, band / static_cast<double>(kBands)); };
    for (int band = 0; band < kBands; ++band)
        bands[band] = std::max(10 * std::log10(PowerBetween(power, edge(band), edge(band + 1)) / whole), -50.0);
    return bands;
}

double Distance(const Bands& one, const Bands& other) {  // dB, the root of the mean square
    double sum = 0;
    for (int band = 0; band < kBands; ++band) sum += (one[band] - other[band]) * (one[band] - other[band]);
    return std::sqrt(sum / kBands);
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

TEST(WavesTest, NoneComesNearTheEndOfTheScale) {
    for (const char* name : kAll) EXPECT_LE(20 * std::log10(Peak(Samples(name)) / 32768.0), -3) << name;
}

TEST(WavesTest, TheBanksAreEquallyLoudAndErrorAndAlarmLouder) {
    const double keys[] = {Loudness(Samples("Key-1")), Loudness(Samples("Key-2")), Loudness(Samples("Key-3"))};
    EXPECT_NEAR(*std::min_element(keys, keys + 3), *std::max_element(keys, keys + 3), 3);
    for (const char* name : {"Error", "Alarm"}) EXPECT_GT(Loudness(Samples(name)), *std::max_element(keys, keys + 3) + 6) << name;
    for (const char* name : {"Undo", "Save", "Opening"}) EXPECT_NEAR(Loudness(Samples(name)), keys[0], 4) << name;
}

TEST(WavesTest, EveryTwoAreApartBeforeTheNextKeyCutsThemOff) {
    std::map<std::string, Bands> heard;
    for (const std::string name : kAll) {
        const Bands bands = FirstBands(name);
        for (const auto& [other, its_bands] : heard) EXPECT_GT(Distance(bands, its_bands), 10) << name << ", " << other;
        heard[name] = bands;
    }
}

TEST(WavesTest, WhatIsLowHasOvertonesForASmallSpeaker) {
    for (const char* name : {"Key-1", "Error"}) {
        const std::vector<double> power = FirstSpectrum(name);
        EXPECT_GT(PowerBetween(power, 700, 1400), PowerBetween(power, 100, 20000) / 10) << name;
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

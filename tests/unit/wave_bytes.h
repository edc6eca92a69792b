// Wave files for tests: whole, odd, and spoiled.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

struct WaveFormat {
    int coding = 1;  // PCM
    int channels = 1;
    std::uint32_t rate = 44100;  // frames a second
    int bits = 16;               // a sample
    int FrameBytes() const { return channels * bits / 8; }
};

std::string LowFirst(std::uint32_t number, int bytes);
std::string WaveChunk(std::string_view name, std::string_view content);  // with a byte more behind an odd size
std::string FormatChunk(const WaveFormat& format);
std::string LongFormatChunk(const WaveFormat& format);  // the coding stands behind the rest
std::string WaveOf(std::string_view chunks);
std::string SilentWave(std::uint32_t frames, const WaveFormat& format = {});

// With one to three faults, most of them in the first 44 bytes; the same seed spoils in the same way.
std::string SpoiledWave(std::string wave, unsigned seed);

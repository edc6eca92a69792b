// Which wave files may reach the sound library. It reads many kinds more, and a spoiled file of some ends the program in it, holds it up
// for seconds or takes a gigabyte.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string_view>

constexpr std::uint32_t kLowestWaveRate = 8000;  // frames a second
constexpr std::uint32_t kHighestWaveRate = 192000;
constexpr std::uint32_t kLongestWave = 30;      // seconds
constexpr std::size_t kLargestWave = 24 << 20;  // bytes of the file: the longest has 23 million, the rest is room for other chunks

// True for the bytes of a whole RIFF WAVE file of PCM, with 1 or 2 channels, 8 or 16 bits, a rate within the two above, and one frame or
// more up to the longest, all of them inside the file, which is no larger than the largest.
bool IsPlayableWave(std::string_view bytes);

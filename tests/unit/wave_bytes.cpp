#include "unit/wave_bytes.h"

#include <algorithm>
#include <iterator>
#include <random>

namespace {
constexpr std::size_t kHead = 44;  // bytes before the samples of a plain wave

struct Field {
    std::size_t place;
    int bytes;
};
constexpr Field kFields[] = {{4, 4}, {16, 4}, {20, 2}, {22, 2}, {24, 4}, {28, 4}, {32, 2}, {34, 2}, {40, 4}};
constexpr std::uint32_t kNumbers[] = {0,    1,    2,     3,     4,      8,      15,     16,         17,         24,        32,
                                      7999, 8000, 11025, 48000, 192000, 192001, 0xfffe, 0x7fffffff, 0x80000000, 0xffffffff};

void Spoil(std::string& wave, std::mt19937& dice) {
    const std::size_t place = dice() % std::min(kHead, wave.size());
    const Field field = kFields[dice() % std::size(kFields)];
    const auto byte = static_cast<char>(dice());
    switch (dice() % 8) {
        case 0:
            wave[place] = byte;
            break;
        case 1:
            wave.insert(place, 1 + dice() % 8, byte);
            break;
        case 2:
            wave.erase(place, 1 + dice() % 8);
            break;
        case 3:
            wave.resize(dice() % wave.size());
            break;
        default:
            if (field.place + field.bytes > wave.size()) return;
            wave.replace(field.place, field.bytes, LowFirst(kNumbers[dice() % std::size(kNumbers)], field.bytes));
    }
}

std::string PlainFormat(const WaveFormat& format, int coding) {
    return LowFirst(coding, 2) + LowFirst(format.channels, 2) + LowFirst(format.rate, 4) + LowFirst(format.rate * format.FrameBytes(), 4) +
           LowFirst(format.FrameBytes(), 2) + LowFirst(format.bits, 2);
}
}  // namespace

std::string LowFirst(std::uint32_t number, int bytes) {
    std::string text;
    for (int place = 0; place < bytes; ++place) text += static_cast<char>(number >> (8 * place) & 0xff);
    return text;
}

std::string WaveChunk(std::string_view name, std::string_view content) {
    std::string chunk = std::string(name) + LowFirst(static_cast<std::uint32_t>(content.size()), 4) + std::string(content);
    if (content.size() % 2 != 0) chunk += '\0';
    return chunk;
}

std::string FormatChunk(const WaveFormat& format) {
    return WaveChunk("fmt ", PlainFormat(format, format.coding));
}

std::string LongFormatChunk(const WaveFormat& format) {
    constexpr std::string_view kOfAllCodings("\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71", 14);
    return WaveChunk("fmt ", PlainFormat(format, 0xfffe) + LowFirst(22, 2) + LowFirst(format.bits, 2) + LowFirst(0, 4) +
                                 LowFirst(format.coding, 2) + std::string(kOfAllCodings));
}

std::string WaveOf(std::string_view chunks) {
    return "RIFF" + LowFirst(static_cast<std::uint32_t>(4 + chunks.size()), 4) + "WAVE" + std::string(chunks);
}

std::string SilentWave(std::uint32_t frames, const WaveFormat& format) {
    const char silence = format.bits == 8 ? '\x80' : '\0';
    return WaveOf(FormatChunk(format) + WaveChunk("data", std::string(std::size_t{frames} * format.FrameBytes(), silence)));
}

std::string SpoiledWave(std::string wave, unsigned seed) {
    std::mt19937 dice(seed);
    for (auto faults = 1 + dice() % 3; faults > 0 && !wave.empty(); --faults) Spoil(wave, dice);
    return wave;
}

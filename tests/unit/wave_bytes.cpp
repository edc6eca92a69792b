#include "unit/wave_bytes.h"

namespace {
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

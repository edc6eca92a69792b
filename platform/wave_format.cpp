// "RIFF", the size of what follows, "WAVE", and then chunks: a name of four letters, a size, so many bytes, and one more behind an odd
// size. Of these "fmt " tells what the samples are and comes before "data", which has them; no other matters. Its first 16 bytes:
//
//     2 coding    2 channels    4 frames a second    4 bytes a second    2 bytes a frame    2 bits a sample
//
// The coding is 1 for PCM, or 0xFFFE if it stands in the bytes 24 to 39 instead; the bytes 16 and 17 then count those behind them, 22 or
// more. Numbers have their low byte first.
#include "platform/wave_format.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace {
constexpr std::uint64_t kFileHead = 12;
constexpr std::uint64_t kChunkHead = 8;
constexpr std::size_t kFormatSize = 16;
constexpr std::size_t kLongFormatSize = 40;
constexpr std::uint32_t kBytesBehindCount = 22;
constexpr std::uint32_t kPcm = 1;
constexpr std::uint32_t kInLongFormat = 0xfffe;
constexpr std::string_view kLongPcm("\x01\x00\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71", 16);

std::uint32_t NumberAt(std::string_view bytes, std::size_t place, int width) {
    std::uint32_t number = 0;
    for (int byte = width; byte-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[place + byte]);
    return number;
}

bool IsLongPcm(std::string_view format) {
    return format.size() >= kLongFormatSize && NumberAt(format, 16, 2) >= kBytesBehindCount && format.substr(24, 16) == kLongPcm;
}

bool IsPcm(std::string_view format) {
    const std::uint32_t coding = NumberAt(format, 0, 2);
    return coding == kPcm || (coding == kInLongFormat && IsLongPcm(format));
}

// `format`: the content of the chunk "fmt "; `size`: of the samples, in bytes.
bool ArePlayable(std::string_view format, std::uint64_t size) {
    if (format.size() < kFormatSize || !IsPcm(format)) return false;
    const std::uint32_t channels = NumberAt(format, 2, 2);
    const std::uint32_t rate = NumberAt(format, 4, 4);
    const std::uint32_t frame = NumberAt(format, 12, 2);
    const std::uint32_t bits = NumberAt(format, 14, 2);
    if (channels < 1 || channels > 2 || (bits != 8 && bits != 16) || frame != channels * bits / 8) return false;
    if (rate < kLowestWaveRate || rate > kHighestWaveRate) return false;
    const std::uint64_t frames = size / frame;
    return frames >= 1 && frames <= std::uint64_t{kLongestWave} * rate;
}

// Where the chunks end. A program that writes to a pipe leaves a size of 0.
std::uint64_t EndOfChunks(std::string_view bytes) {
    const std::uint64_t size = NumberAt(bytes, 4, 4);
    return size == 0 ? bytes.size() : std::min<std::uint64_t>(bytes.size(), kChunkHead + size);
}
}  // namespace

bool IsPlayableWave(std::string_view bytes) {
    if (bytes.size() < kFileHead || bytes.size() > kLargestWave || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") return false;
    const std::uint64_t end = EndOfChunks(bytes);
    std::optional<std::string_view> format;
    for (std::uint64_t place = kFileHead; place + kChunkHead <= end;) {
        const auto head = static_cast<std::size_t>(place);
        const std::string_view name = bytes.substr(head, 4);
        const std::uint64_t size = NumberAt(bytes, head + 4, 4);
        const std::string_view content = bytes.substr(head + kChunkHead, size);  // less if the file ends
        if (name == "data") return format && content.size() == size && ArePlayable(*format, size);
        if (name == "fmt " && format) return false;
        if (name == "fmt ") format = content;
        place += kChunkHead + size + size % 2;
    }
    return false;
}

#include "platform/encoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

// What Windows-1252 has at 0x80..0x9F; all its other bytes are the characters of the same value.
constexpr char32_t kWindows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

// How many bytes the character has that begins with `lead`; 0 if none begins so.
std::size_t BytesOfCharacter(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC0 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    if (lead >= 0xF0 && lead < 0xF8) return 4;
    return 0;
}

}  // namespace

char32_t TakeCharacter(std::string_view& utf8) {
    constexpr char32_t kFirstOfBytes[5] = {0, 0, 0x80, 0x800, 0x10000};  // what fits in fewer bytes must use fewer
    const auto lead = static_cast<unsigned char>(utf8[0]);
    const std::size_t bytes = BytesOfCharacter(lead);
    if (bytes == 0 || bytes > utf8.size()) return kMalformed;
    char32_t character = bytes == 1 ? lead : lead & (0x7F >> bytes);
    for (std::size_t place = 1; place < bytes; ++place) {
        const auto byte = static_cast<unsigned char>(utf8[place]);
        if ((byte & 0xC0) != 0x80) return kMalformed;
        character = character << 6 | (byte & 0x3F);
    }
    const bool is_surrogate = character >= 0xD800 && character < 0xE000;
    if (character < kFirstOfBytes[bytes] || is_surrogate || character > 0x10FFFF) return kMalformed;
    utf8.remove_prefix(bytes);
    return character;
}

namespace {
// How many ASCII bytes stand at the head: nearly all of most files, hence eight at a time.
std::size_t AsciiHead(std::string_view text) {
    std::size_t at = 0;
    for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if (eight & 0x8080808080808080) break;
    }
    while (at < text.size() && !(text[at] & 0x80)) ++at;
    return at;
}

// The same, taken off `text`.
std::string_view TakeAscii(std::string_view& text) {
    const std::string_view head = text.substr(0, AsciiHead(text));
    text.remove_prefix(head.size());
    return head;
}

bool IsUtf8(std::string_view bytes) {
    for (TakeAscii(bytes); !bytes.empty(); TakeAscii(bytes))
        if (TakeCharacter(bytes) == kMalformed) return false;
    return true;
}

// Appends the byte of a character beyond ASCII; false if Windows-1252 has none.
bool AppendByte(std::string& bytes, char32_t character) {
    if (character >= 0xA0 && character < 0x100) {
        bytes += static_cast<char>(character);
        return true;
    }
    const auto found = std::find(std::begin(kWindows1252), std::end(kWindows1252), character);
    if (found == std::end(kWindows1252)) return false;
    bytes += static_cast<char>(0x80 + (found - std::begin(kWindows1252)));
    return true;
}

// Appends the character of a byte beyond ASCII.
void AppendCharacter(std::string& utf8, unsigned char byte) {
    const char32_t character = byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
    const auto last = static_cast<char>(0x80 | (character & 0x3F));
    if (character < 0x800) {
        utf8 += static_cast<char>(0xC0 | character >> 6);
    } else {
        utf8 += static_cast<char>(0xE0 | character >> 12);
        utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    }
    utf8 += last;
}

}  // namespace

bool IsAscii(std::string_view text) {
    return AsciiHead(text) == text.size();
}

std::string EncodeFile(std::string_view utf8) {
    std::string_view rest = utf8;
    std::string bytes(TakeAscii(rest));
    if (rest.empty()) return bytes;
    for (; !rest.empty(); bytes += TakeAscii(rest))
        if (!AppendByte(bytes, TakeCharacter(rest))) return std::string(utf8);
    // The bytes of a few odd texts would be taken for UTF-8: those of "Ã©" are the UTF-8 of "é".
    return DecodeFile(bytes) == utf8 ? bytes : std::string(utf8);
}

std::string DecodeFile(std::string_view bytes) {
    if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
    if (IsUtf8(bytes)) return std::string(bytes);
    std::string utf8(TakeAscii(bytes));
    while (!bytes.empty()) {
        AppendCharacter(utf8, static_cast<unsigned char>(bytes[0]));
        bytes.remove_prefix(1);
        utf8 += TakeAscii(bytes);
    }
    return utf8;
}

#include "long/memory_in_use.h"

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // not every compiler brings the header

constexpr std::size_t kBlockHead = 16;
std::size_t BytesInUse() {
    return __sanitizer_get_current_allocated_bytes();
}
#else
constexpr std::size_t kBlockHead = 8;
std::size_t BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
#endif

std::size_t BytesOf(const std::vector<std::string>& lines) {
    constexpr std::size_t kWithinTheString = 15;
    std::size_t bytes = lines.capacity() * sizeof(std::string);
    for (const std::string& line : lines)
        if (line.size() > kWithinTheString) bytes += (line.size() + 1 + kBlockHead + 15) / 16 * 16;
    return bytes;
}

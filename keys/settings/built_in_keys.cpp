#include "keys/settings/built_in_keys.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int kCodes[] = {
    'Q', 'W', 'E', 'A', 'S', 'D', 'Z', 'X', 'C',  // 1..9
    'R', 'T', 'Y', 'F', 'G', 'H', 'V', 'B', 'N',  // 10..18
    'U', 'I', 'O', 'J', 'K', 'L', 'M', 188, 190,  // 19..27: the last two are comma and full stop
    112, 113, 114, '1', '2', '3', 115, 116, 117,  // 28..36: F1..F3, digits, F4..F6
    '4', '5', '6', 118, 119, 120, '7', '8', '9',  // 37..45: digits, F7..F9, digits
};
}  // namespace

int BuiltInKeyNumber(int code) {
    const auto key = std::find(std::begin(kCodes), std::end(kCodes), code);
    return key == std::end(kCodes) ? 0 : static_cast<int>(key - std::begin(kCodes)) + 1;
}

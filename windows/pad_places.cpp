#include "windows/pad_places.h"

namespace {
constexpr int kLefts[9] = {240, 1320, 2400, 4080, 5160, 6240, 7920, 9000, 10080};  // three columns a block
constexpr int kLowerTops[3] = {2140, 2910, 3680};
constexpr int kUpperTops[2] = {360, 1130};
constexpr int kNameWidth = 1040;
constexpr int kNameHeight = 270;
}  // namespace

Box PadPlace(int place) {
    const bool lower = place <= 27;
    const int in_band = lower ? place - 1 : place - 28;
    const int band_size = lower ? 9 : 6;
    const int block = in_band / band_size;
    const int row = in_band % band_size / 3;
    const int column = in_band % 3;
    return {kLefts[block * 3 + column], lower ? kLowerTops[row] : kUpperTops[row], kNameWidth, kNameHeight};
}

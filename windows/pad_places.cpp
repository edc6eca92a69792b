#include "windows/pad_places.h"

namespace {
constexpr int kLefts[9] = {240, 1320, 2400, 4080, 5160, 6240, 7920, 9000, 10080};
constexpr int kTops[5] = {360, 1130, 2140, 2910, 3680};
constexpr int kNameWidth = 1040;
constexpr int kNameHeight = 270;
}  // namespace

PadCell CellOfPlace(int place) {
    const bool lower = place <= 27;
    const int in_band = lower ? place - 1 : place - 28;
    const int band_size = lower ? 9 : 6;
    return {in_band / band_size * 3 + in_band % 3, in_band % band_size / 3 + (lower ? 2 : 0)};
}

Box PadPlace(int place) {
    const PadCell cell = CellOfPlace(place);
    return {kLefts[cell.column], kTops[cell.row], kNameWidth, kNameHeight};
}

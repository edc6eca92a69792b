#include "platform/headless/recorders.h"

#include <algorithm>
#include <iterator>
#include <string_view>

bool RecordedHost::CanShow(const std::string& picture) {
    constexpr std::string_view kJpegPngGifBmp[] = {"\xFF\xD8\xFF", "\x89PNG", "GIF8", "BM"};
    return std::any_of(std::begin(kJpegPngGifBmp), std::end(kJpegPngGifBmp),
                       [&picture](std::string_view start) { return picture.starts_with(start); });
}

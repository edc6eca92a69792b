#include "platform/qt/tab_bar.h"

#include <algorithm>

#include "platform/window.h"

namespace {
constexpr int kLowest = 240;
constexpr int kHighest = 420;
constexpr int kGap = 20;
constexpr double kWidestToHeight = 7;
}  // namespace

int TabBarTwips(const TabControl& tabs) {
    int height = kHighest;
    for (const Control* control : tabs.window->Controls())
        if (control->container == &tabs && control->Height() > 0) height = std::min(height, control->Top() - kGap);
    return std::max(height, kLowest);
}

QRectF TabBarPlace(const TabControl& tabs, int tab, double width, double height) {
    const double each =
        std::min(width / static_cast<double>(std::max<std::size_t>(tabs.TabCaptions().size(), 1)), height * kWidestToHeight);
    return {each * tab, 0, each, height};
}

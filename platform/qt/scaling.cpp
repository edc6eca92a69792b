#include "platform/qt/scaling.h"

#include <QRect>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/window.h"

namespace {
constexpr double kComfortable = 0.97;  // of the screen, by the window that is worked in
constexpr int kFramePixels = 36;       // title bar and edges
constexpr int kMenuBarTwips = 330;

double LargestFactor(const QScreen& screen, QSize twips) {
    const QSize room = screen.availableGeometry().size();
    return std::min(room.width() * kComfortable / twips.width(),
                    (room.height() * kComfortable - kFramePixels) / (twips.height() + kMenuBarTwips));
}
}  // namespace

double CommonFactor(const QScreen& screen) {
    QSize largest(1, 1);
    for (const Window* window : AllWindows()) {
        const QSize size(window->Width(), window->Height());
        if (window->covers_screen) continue;
        if (window->key_preview) return LargestFactor(screen, size);
        if (!window->resizable && size.width() * size.height() > largest.width() * largest.height()) largest = size;
    }
    return LargestFactor(screen, largest);
}

double FactorThatFits(const QScreen& screen, QSize twips, double wanted) {
    return std::min(wanted, LargestFactor(screen, twips));
}

QRect Scaled(const Box& box, double factor) {
    const auto pixel = [factor](int twips) { return static_cast<int>(std::lround(twips * factor)); };
    const int left = pixel(box.left), top = pixel(box.top);
    return {left, top, pixel(box.left + box.width) - left, pixel(box.top + box.height) - top};
}

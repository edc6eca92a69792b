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

double LargestFactor(QSizeF room, QSize twips) {
    return std::min(room.width() / twips.width(), room.height() / (twips.height() + kMenuBarTwips));
}

double ComfortableFactor(const QScreen& screen, QSize twips) {
    const QSizeF room = screen.availableGeometry().size();
    return LargestFactor(room * kComfortable - QSizeF(0, kFramePixels), twips);
}
}  // namespace

double CommonFactor(const QScreen& screen) {
    QSize largest(1, 1);
    for (const Window* window : AllWindows()) {
        const QSize size(window->Width(), window->Height());
        if (window->covers_screen) continue;
        if (window->key_preview) return ComfortableFactor(screen, size);
        if (!window->resizable && size.width() * size.height() > largest.width() * largest.height()) largest = size;
    }
    return ComfortableFactor(screen, largest);
}

double FactorThatFits(QSize room, QSize twips, double wanted) {
    return std::min(wanted, LargestFactor(room, twips));
}

QRect Scaled(const Box& box, double factor) {
    const auto pixel = [factor](int twips) { return static_cast<int>(std::lround(twips * factor)); };
    const int left = pixel(box.left), top = pixel(box.top);
    return {left, top, pixel(box.left + box.width) - left, pixel(box.top + box.height) - top};
}

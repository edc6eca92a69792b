#include "platform/qt/shown_operations.h"

#include <algorithm>

// Of the thousands of operations a counted grain changes those of one sample, and their order stays.
QRect ShownOperations::Show(std::span<const DrawOperation> now, const PictureScale& scale) {
    QRectF part;
    const std::size_t in_both = std::min(shown_.size(), now.size());
    for (std::size_t i = 0; i < in_both; ++i) {
        if (shown_[i] == now[i]) continue;
        part |= Reach(shown_[i], scale) | Reach(now[i], scale);
        shown_[i] = now[i];
    }
    for (const DrawOperation& gone : std::span(shown_).subspan(in_both)) part |= Reach(gone, scale);
    shown_.resize(in_both);
    for (const DrawOperation& come : now.subspan(in_both)) {
        part |= Reach(come, scale);
        shown_.push_back(come);
    }
    return (part & QRectF(QPointF(), scale.size)).toAlignedRect();
}

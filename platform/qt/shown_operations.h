// A display list as it was last shown: tells in which part of the picture the next one looks different.
#pragma once
#include <span>
#include <vector>

#include "platform/qt/picture_painter.h"

class ShownOperations {
public:
    const std::vector<DrawOperation>& All() const { return shown_; }

    // Shows `now` from here on. The pixels of the picture that may look different; an empty rectangle if none does.
    QRect Show(std::span<const DrawOperation> now, const PictureScale& scale);

private:
    std::vector<DrawOperation> shown_;
};

// Paints the display list of a picture, pixel by pixel of the screen: lines of the axis directions are crisp at every density.
#pragma once
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <span>
#include <vector>

#include "platform/picture_box.h"

struct PictureScale {
    QSizeF size;        // of the picture, in pixels of the painter
    double pixel = 1;   // a pixel of the program (15 twips) in pixels of the painter
    double spread = 1;  // how much wider the picture is than kNamedWidth: names stay over the columns that spread below them
    int line = 1;       // thickness of a line, in pixels of the painter
};

// What another program gets: the whole picture with its overlays, in at least three times the pixels of the program and 1600 across,
// letters and lines in proportion.
QImage CopyOf(const PictureBox& picture);

void PaintOperations(QPainter& painter, std::span<const DrawOperation> operations, const PictureScale& scale);

// Paints a part of a picture again, on a ground of one colour; the rest stays. The pixels are those of PaintOperations.
void RepaintPart(QPixmap& picture, const QRect& part, Colour ground, std::span<const DrawOperation> operations, const PictureScale& scale);

// The pixels that an operation may colour, and some around them.
QRectF Reach(const DrawOperation& operation, const PictureScale& scale);

// A display list as it was last shown: tells in which part of the picture the next one looks different.
class ShownOperations {
public:
    const std::vector<DrawOperation>& All() const { return shown_; }

    // Shows `now` from here on. The pixels of the picture that may look different; an empty rectangle if none does.
    QRect Show(std::span<const DrawOperation> now, const PictureScale& scale);

private:
    std::vector<DrawOperation> shown_;
};

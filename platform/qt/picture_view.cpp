#include <QImage>
#include <QPixmap>
#include <QSvgRenderer>
#include <QToolTip>
#include <cmath>
#include <utility>

#include "platform/qt/look.h"
#include "platform/qt/picture_painter.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/views.h"
#include "platform/services.h"

namespace {
// What has been made persistent is kept as an image at the resolution of the screen; each paint adds only the overlay. Of a drawing that
// changes, only the part that looks different is painted again: a key counts one sample, and its row alone is new in the diagram.
class PictureView : public ControlWidget {
public:
    PictureView(PictureBox& picture, ViewHost& window, ControlWidget* owner) : ControlWidget(picture, window, owner), picture_(picture) {
        canvas_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        canvas_->setAttribute(Qt::WA_OpaquePaintEvent);
        Adopt(canvas_);
    }

private:
    void ShowContent(Changes changes) override {
        if (changes.Has(Property::Colours)) ground_image_ = {};
        if (changes.Has(Property::ToolTip) && canvas_->underMouse())  // it follows the pointer from column to column
            QToolTip::showText(QCursor::pos(), Brief(picture_.ToolTip()), canvas_);
    }

    bool GivesDragAway() const override { return true; }  // a line that is dragged off the picture is dropped there

    Mouse MouseAt(MouseButton button, QPointF at) const override {
        return {button, picture_.ScaleLeft() + at.x() / canvas_->width() * picture_.ScaleWidth(),
                picture_.ScaleTop() + at.y() / canvas_->height() * picture_.ScaleHeight()};
    }

    QPointF PlaceOf(double x, double y) const override {
        const auto span = [](double length) { return length == 0 ? 1 : length; };
        return {(x - picture_.ScaleLeft()) / span(picture_.ScaleWidth()) * canvas_->width(),
                (y - picture_.ScaleTop()) / span(picture_.ScaleHeight()) * canvas_->height()};
    }

    void Repaint(Changes changes) override {
        const QRect part = ShowDrawing();
        if (!changes.HasOnly(Property::Drawing))
            canvas_->update();
        else if (!part.isEmpty())
            canvas_->update(QRectF(QPointF(part.topLeft()) / Density(), QSizeF(part.size()) / Density()).toAlignedRect());
    }

    double Density() const { return canvas_->devicePixelRatioF(); }

    PictureScale Scale() const {
        return {QSizeF(canvas_->size()) * Density(), kTwipsPerPixel * Factor() * Density(),
                static_cast<double>(picture_.Width()) / kNamedWidth};
    }

    // To the last pixel of the screen that the picture has a part of.
    static QSize PixelsOf(const PictureScale& scale) {
        return {static_cast<int>(std::ceil(scale.size.width())), static_cast<int>(std::ceil(scale.size.height()))};
    }

    // The pixels that look different from before.
    QRect ShowDrawing() {
        if (canvas_->size().isEmpty()) return {};
        const PictureScale scale = Scale();
        const std::span operations(picture_.Operations());
        const QRect in_overlay = overlay_.Show(operations.subspan(picture_.PersistentCount()), scale);
        return in_overlay | ShowGround(operations.first(picture_.PersistentCount()), scale);
    }

    // Painted once, however often it changes before the window is.
    QRect ShowGround(std::span<const DrawOperation> operations, const PictureScale& scale) {
        if (std::exchange(version_, picture_.PersistentVersion()) == picture_.PersistentVersion()) return {};
        QRect part = ground_.Show(operations, scale);
        const bool had_image = std::exchange(has_image_, !picture_.image.empty() || !picture_.ImageBytes().empty());
        if (had_image || has_image_) part = QRect(QPoint(), PixelsOf(scale));
        to_mend_ |= part;
        return part;
    }

    void Paint(QPainter& painter) {
        if (canvas_->size().isEmpty()) return;
        const PictureScale scale = Scale();
        MendGround(scale);
        painter.drawPixmap(0, 0, ground_image_);
        painter.scale(1 / Density(), 1 / Density());
        const QTransform& device = painter.deviceTransform();  // bars in the overlay lie on whole pixels, as in the image
        painter.translate(std::round(device.dx()) - device.dx(), std::round(device.dy()) - device.dy());
        PaintOperations(painter, overlay_.All(), scale);
    }

    void MendGround(const PictureScale& scale) {
        const QSize size = PixelsOf(scale);
        const QRect part = std::exchange(to_mend_, {});
        if (ground_image_.size() != size || 2LL * part.width() * part.height() > 1LL * size.width() * size.height())
            PaintGround(scale);
        else
            RepaintPart(ground_image_, part, picture_.BackColor(), ground_.All(), scale);
    }

    void PaintGround(const PictureScale& scale) {
        if (const QSize size = PixelsOf(scale); ground_image_.size() != size) ground_image_ = QPixmap(size);
        ground_image_.setDevicePixelRatio(1);
        ground_image_.fill(ToQt(picture_.BackColor()));
        QPainter painter(&ground_image_);
        if (has_image_) PaintImage(painter, ground_image_.size());
        PaintOperations(painter, ground_.All(), scale);
        painter.end();
        ground_image_.setDevicePixelRatio(Density());
    }

    // Fitted into the picture, in its middle.
    void PaintImage(QPainter& painter, const QSize& size) {
        const auto place = [&size](const QSize& image) {
            const QSizeF fitted = QSizeF(image).scaled(size, Qt::KeepAspectRatio);
            return QRectF(QPointF((size.width() - fitted.width()) / 2, (size.height() - fitted.height()) / 2), fitted);
        };
        if (const std::string& bytes = picture_.ImageBytes(); !bytes.empty()) {
            const QImage image = ReadPicture(bytes);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(place(image.size()), image);
        }
        if (picture_.image.empty()) return;
        if (QSvgRenderer drawing(":/pictures/" + ToQt(picture_.image) + ".svg"); drawing.isValid())
            drawing.render(&painter, place(drawing.defaultSize()));
    }

    PictureBox& picture_;
    QWidget* canvas_;
    QPixmap ground_image_;  // what is persistent
    QRect to_mend_;         // where it is not yet what `ground_` tells
    ShownOperations ground_, overlay_;
    bool has_image_ = false;
    int version_ = -1;  // of what is persistent
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(PictureBox& picture, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<PictureView>(picture, window, owner);
}

#include <QImage>
#include <QPixmap>
#include <QSvgRenderer>
#include <QToolTip>

#include "platform/qt/look.h"
#include "platform/qt/picture_file.h"
#include "platform/qt/picture_painter.h"
#include "platform/qt/views.h"
#include "platform/services.h"

namespace {
constexpr int kTwipsPerPixel = 15;

// What has been made persistent is kept as an image at the resolution of the screen; each paint adds only the overlay.
class PictureView : public ControlWidget {
public:
    PictureView(PictureBox& picture, WindowWidget& window, ControlWidget* owner)
        : ControlWidget(picture, window, owner), picture_(picture) {
        canvas_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        canvas_->setAttribute(Qt::WA_OpaquePaintEvent);
        Adopt(canvas_);
    }

private:
    void ShowContent(Changes changes) override {
        if (changes.Has(Property::Colours)) persistent_ = {};
        if (changes.Has(Property::ToolTip) && canvas_->underMouse())  // it follows the pointer from column to column
            QToolTip::showText(QCursor::pos(), ToQt(picture_.ToolTip()), canvas_);
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

    void Paint(QPainter& painter) {
        if (canvas_->size().isEmpty()) return;
        const double density = canvas_->devicePixelRatioF();
        const PictureScale scale{QSizeF(canvas_->size()) * density, kTwipsPerPixel * Factor() * density,
                                 static_cast<double>(picture_.Width()) / picture_.DesignBox().width};
        const std::span operations(picture_.Operations());
        painter.drawPixmap(0, 0, Persistent(scale, density));
        painter.scale(1 / density, 1 / density);
        PaintOperations(painter, operations.subspan(picture_.PersistentCount()), scale);
    }

    const QPixmap& Persistent(const PictureScale& scale, double density) {
        const QSize size(qRound(scale.size.width()), qRound(scale.size.height()));
        if (persistent_.size() == size && version_ == picture_.PersistentVersion()) return persistent_;
        persistent_ = QPixmap(size);
        version_ = picture_.PersistentVersion();
        persistent_.fill(ToQt(picture_.BackColor()));
        QPainter painter(&persistent_);
        PaintImage(painter, size);
        PaintOperations(painter, std::span(picture_.Operations()).first(picture_.PersistentCount()), scale);
        painter.end();
        persistent_.setDevicePixelRatio(density);
        return persistent_;
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
    QPixmap persistent_;
    int version_ = 0;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(PictureBox& picture, WindowWidget& window, ControlWidget* owner) {
    return std::make_unique<PictureView>(picture, window, owner);
}

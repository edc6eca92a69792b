// Frames, and the status bar, which shows nothing but its edge.
#include <QFontMetricsF>

#include "platform/qt/look.h"
#include "platform/qt/views.h"

namespace {
class FrameView : public ControlWidget {
public:
    FrameView(Frame& frame, ViewHost& window, ControlWidget* owner) : ControlWidget(frame, window, owner), frame_(frame) {
        ground_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(ground_);
    }

private:
    void ShowContent(Changes) override {}

    void Paint(QPainter& painter) {
        const QRectF box = ground_->rect();
        painter.fillRect(box, ToQt(frame_.BackColor()));
        if (!frame_.Border()) return;
        const double radius = 45 * Factor();
        const QString caption = ToQt(frame_.Caption()).trimmed();
        if (caption.isEmpty()) return PaintOutline(painter, box, kOutline, 1, radius);
        const QFont font = Font();
        const QFontMetricsF metrics(font);
        PaintOutline(painter, box.adjusted(0, metrics.height() / 2, 0, 0), kOutline, 1, radius);
        const QRectF words(120 * Factor(), 0, metrics.horizontalAdvance(caption), metrics.height());
        const double gap = 60 * Factor();
        painter.fillRect(words.adjusted(-gap, 0, gap, 0), ToQt(frame_.BackColor()));
        painter.setPen(frame_.Enabled() ? ToQt(frame_.ForeColor()) : kRestingWords);
        painter.setFont(font);
        painter.drawText(QPointF(words.left(), metrics.ascent()), caption);
    }

    Frame& frame_;
    QWidget* ground_;
};

class StatusBarView : public ControlWidget {
public:
    StatusBarView(StatusBar& bar, ViewHost& window, ControlWidget* owner) : ControlWidget(bar, window, owner) {
        strip_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) {
            painter.fillRect(strip_->rect(), ToQt(control().BackColor()));
            painter.fillRect(QRect(0, 0, strip_->width(), 1), kOutline);
        });
        Adopt(strip_);
    }

private:
    void ShowContent(Changes) override {}

    QWidget* strip_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(Frame& frame, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<FrameView>(frame, window, owner);
}

std::unique_ptr<ControlWidget> MakeView(StatusBar& bar, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<StatusBarView>(bar, window, owner);
}

#include <QElapsedTimer>
#include <QProgressBar>
#include <algorithm>

#include "platform/qt/look.h"
#include "platform/qt/views.h"

namespace {
constexpr int kShortestMs = 15;  // up to the first repaint and between two: nobody sees more, and a save is not to wait for its bar

// The bar moves while an event still runs, so it is repainted at once; what is over sooner than that shows no bar.
class ProgressView : public ControlWidget {
public:
    ProgressView(ProgressBar& bar, ViewHost& window, ControlWidget* owner) : ControlWidget(bar, window, owner), bar_(bar) {
        shown_ = new Painted<QProgressBar>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(shown_);
        since_repaint_.start();
    }

    void Changed(Property property) override {
        ControlWidget::Changed(property);
        if (property == Property::Visible) since_repaint_.restart();
        if (property != Property::Value || !bar_.Visible() || !Events().InEvent() || since_repaint_.elapsed() < kShortestMs) return;
        Agree();  // alone: what else has changed may be half done
        shown_->repaint();
        since_repaint_.restart();
    }

private:
    void ShowContent(Changes) override {
        shown_->setRange(bar_.Min(), std::max(bar_.Max(), bar_.Min() + 1));
        shown_->setValue(std::clamp(bar_.Value(), shown_->minimum(), shown_->maximum()));
    }

    void Paint(QPainter& painter) {
        const QRectF box = shown_->rect();
        const double part = static_cast<double>(shown_->value() - shown_->minimum()) / (shown_->maximum() - shown_->minimum());
        painter.fillRect(box, Qt::white);
        painter.fillRect(QRectF(box.left(), box.top(), box.width() * part, box.height()), kAccent);
        PaintOutline(painter, box, kOutline, 1, 0);
    }

    ProgressBar& bar_;
    QProgressBar* shown_;
    QElapsedTimer since_repaint_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(ProgressBar& bar, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<ProgressView>(bar, window, owner);
}

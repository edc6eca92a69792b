// Sliders, scroll bars and pairs of arrows: what the user moves up and down.
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>

#include "platform/qt/look.h"
#include "platform/qt/views.h"
#include "platform/user.h"

namespace {
class RangeView : public ControlWidget {
public:
    // `make` makes the widget on the ground it is given.
    RangeView(RangeControl& range, ViewHost& window, ControlWidget* owner, const std::function<QAbstractSlider*(QWidget*)>& make)
        : ControlWidget(range, window, owner), range_(range), slider_(make(OwnerGround())) {
        slider_->setObjectName(kScaledRange);
        Adopt(slider_);
        connect(slider_, &QAbstractSlider::valueChanged, this, [this](int value) {
            RangeView::Changed(Property::Value);  // a procedure may put it elsewhere
            Events().Run([&] { SlideTo(range_, value); });
        });
    }

private:
    void ShowContent(Changes) override {
        const QSignalBlocker blocker(slider_);
        slider_->setRange(range_.Min(), std::max(range_.Min(), range_.Max()));
        slider_->setSingleStep(range_.SmallChange());
        slider_->setPageStep(range_.LargeChange());
        slider_->setValue(range_.Value());
    }
    bool PassesMouse() const override { return CanReach(range_); }
    bool UseKey(QKeyEvent& key) override {
        QCoreApplication::sendEvent(slider_, &key);
        return key.isAccepted();
    }

    RangeControl& range_;
    QAbstractSlider* slider_;
};
}  // namespace

// The lower end of a vertical slider is above, as samples stand in a diagram.
std::unique_ptr<ControlWidget> MakeView(Slider& slider, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<RangeView>(slider, window, owner, [&slider](QWidget* ground) {
        auto* const shown = new QSlider(slider.vertical ? Qt::Vertical : Qt::Horizontal, ground);
        shown->setInvertedAppearance(slider.vertical);
        shown->setInvertedControls(slider.vertical);
        return shown;
    });
}

std::unique_ptr<ControlWidget> MakeView(ScrollBar& bar, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<RangeView>(bar, window, owner, [&bar](QWidget* ground) {
        return new QScrollBar(bar.Width() >= bar.Height() ? Qt::Horizontal : Qt::Vertical, ground);
    });
}

namespace {
constexpr int kFirstRepeatMs = 400;
constexpr int kRepeatMs = 80;

// Two arrows, one above the other, or side by side with up at the right. Held down, an arrow repeats.
class UpDownView : public ControlWidget {
public:
    UpDownView(UpDown& arrows, ViewHost& window, ControlWidget* owner) : ControlWidget(arrows, window, owner), arrows_(arrows) {
        whole_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(whole_);
        connect(&repeat_, &QTimer::timeout, this, [this] {
            repeat_.setInterval(kRepeatMs);
            Events().Run([this] { Spin(arrows_, up_); });
        });
    }

private:
    bool IsUpright() const { return whole_->height() >= whole_->width(); }
    QRectF Half(bool up) const {
        const QRectF box = whole_->rect();
        if (IsUpright()) return {0, up ? 0 : box.height() / 2, box.width(), box.height() / 2};
        return {up ? box.width() / 2 : 0, 0, box.width() / 2, box.height()};
    }

    void ShowContent(Changes) override {}
    void Press(const Mouse& mouse, QPointF at) override {
        PressMouse(arrows_, mouse);
        if (mouse.button != MouseButton::Left) return;
        up_ = Half(true).contains(at);
        Spin(arrows_, up_);
        repeat_.start(kFirstRepeatMs);
    }
    void Release(const Mouse& mouse, bool) override { ReleaseMouse(arrows_, mouse); }
    void ShowPressed(bool pressed) override {
        pressed_ = pressed;
        if (!pressed) repeat_.stop();
        whole_->update();
    }

    void Paint(QPainter& painter) {
        for (const bool up : {true, false}) PaintHalf(painter, up);
    }

    void PaintHalf(QPainter& painter, bool up) {
        const Qt::ArrowType arrow = IsUpright() ? (up ? Qt::UpArrow : Qt::DownArrow) : (up ? Qt::RightArrow : Qt::LeftArrow);
        PaintStepButton(painter, Half(up), arrow, arrows_.Enabled(), pressed_ && up == up_);
    }

    UpDown& arrows_;
    QWidget* whole_;
    QTimer repeat_;
    bool up_ = false;
    bool pressed_ = false;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(UpDown& arrows, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<UpDownView>(arrows, window, owner);
}

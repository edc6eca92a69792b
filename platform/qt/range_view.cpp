// Sliders and scroll bars: a value between two ends, moved by the user.
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>

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
    bool TakeKey(QKeyEvent& key) override {
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

// Push buttons; option buttons and check boxes, which are a mark that is on or off and its caption.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/qt/fitted_text.h"
#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/views.h"

namespace {
constexpr int kMostLinesOfButton = 3;

class ButtonView : public ControlWidget {
public:
    ButtonView(Button& button, ViewHost& window, ControlWidget* owner) : ControlWidget(button, window, owner), model_(button) {
        button_ = new Painted<QPushButton>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        button_->setAutoDefault(false);
        Adopt(button_);
    }

private:
    void ShowContent(Changes) override {}
    void ShowPressed(bool pressed) override { button_->setDown(pressed); }
    const FittedText* Fitted() const override { return &fitted_; }

    void Paint(QPainter& painter) {
        const QRectF box = button_->rect();
        const QColor face = model_.BackColor() == kFormColour ? kButtonFace : ToQt(model_.BackColor());
        const ButtonState state{button_->isEnabled(), button_->isDown(), button_->underMouse(), button_->hasFocus()};
        PaintButton(painter, box, face, state, 45 * Factor());
        painter.setPen(button_->isDown() ? QColor(Qt::white) : button_->isEnabled() ? ToQt(model_.ForeColor()) : kRestingWords);
        const double margin = 60 * Factor();
        fitted_.Paint(painter, {Brief(model_.Caption()), Font(), box.adjusted(margin, 1, -margin, -1), kMostLinesOfButton},
                      Qt::AlignCenter);
    }

    Button& model_;
    QPushButton* button_;
    FittedText fitted_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(Button& button, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<ButtonView>(button, window, owner);
}

namespace {
constexpr double kMarkTwips = 210;
constexpr int kMostLines = 2;

void PaintDot(QPainter& painter, const QRectF& mark, bool on) {
    painter.drawEllipse(mark);
    if (!on) return;
    const double rim = mark.width() * 0.26;
    painter.setBrush(Qt::white);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(mark.adjusted(rim, rim, -rim, -rim));
}

void PaintTick(QPainter& painter, const QRectF& mark, bool on) {
    painter.drawRoundedRect(mark, 2, 2);
    if (!on) return;
    const auto at = [&mark](double x, double y) { return QPointF(mark.left() + x * mark.width(), mark.top() + y * mark.height()); };
    painter.setPen(QPen(Qt::white, mark.width() * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.43, 0.72), at(0.8, 0.28)}));
}

// Its state follows the program's alone.
template <class Base>
class TickWidget : public Painted<Base> {
public:
    using Painted<Base>::Painted;

protected:
    void nextCheckState() override {}
};

template <class Model, class Base>
class TickView : public ControlWidget {
public:
    TickView(Model& model, ViewHost& window, ControlWidget* owner) : ControlWidget(model, window, owner), model_(model) {
        button_ = new TickWidget<Base>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        button_->setAutoExclusive(false);
        Adopt(button_);
        if (Group()) fitted_.Join(*Group(), *button_, [this] { return Words(); });
    }

private:
    void ShowContent(Changes) override {
        button_->setChecked(model_.Value() != 0);
        fitted_.Follow();
    }
    void ShowPressed(bool pressed) override { button_->setDown(pressed); }
    const FittedText* Fitted() const override { return &fitted_; }

    double MarkSize() const { return std::min(kMarkTwips * Factor(), button_->height() - 2.0); }
    FittedText::Words Words() const {
        const QRectF room = QRectF(button_->rect()).adjusted(MarkSize() + 75 * Factor(), 0, 0, 0);
        return {Brief(model_.Caption()), Font(), room, kMostLines};
    }

    void Paint(QPainter& painter) {
        const QRectF box = button_->rect();
        if (model_.BackColor() != kFormColour) painter.fillRect(box, ToQt(model_.BackColor()));
        const bool on = model_.Value() != 0;
        const double size = MarkSize();
        const QRectF mark(box.left() + 1.5, box.center().y() - size / 2, size, size);
        const QColor colour = button_->isEnabled() ? kAccent : kRestingWords;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(on || button_->hasFocus() || button_->isDown() ? colour : kRestingWords, button_->hasFocus() ? 2 : 1.2));
        painter.setBrush(on ? colour : QColor(button_->isDown() ? kOutline : QColor(Qt::white)));
        if constexpr (std::is_same_v<Base, QRadioButton>)
            PaintDot(painter, mark, on);
        else
            PaintTick(painter, mark, on);
        painter.setPen(button_->isEnabled() ? ToQt(model_.ForeColor()) : kRestingWords);
        fitted_.Paint(painter, Words(), Qt::AlignLeft | Qt::AlignVCenter);
    }

    Model& model_;
    Base* button_;
    FittedText fitted_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(OptionButton& option, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<TickView<OptionButton, QRadioButton>>(option, window, owner);
}

std::unique_ptr<ControlWidget> MakeView(CheckBox& box, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<TickView<CheckBox, QCheckBox>>(box, window, owner);
}

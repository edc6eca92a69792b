#include <QPushButton>

#include "platform/qt/fitted_text.h"
#include "platform/qt/look.h"
#include "platform/qt/views.h"

namespace {
constexpr int kMostLines = 3;

QColor Face(const QPushButton& button, Colour back) {
    if (button.isDown()) return kAccent;
    const QColor face = back == kFormColour ? kButtonFace : ToQt(back);
    return button.isEnabled() && button.underMouse() ? face.darker(105) : face;
}

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

    void Paint(QPainter& painter) {
        const QRectF box = button_->rect();
        const double radius = 45 * Factor();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(button_->isEnabled() ? Face(*button_, model_.BackColor()) : ToQt(kFormColour));
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        const bool in_focus = button_->hasFocus();
        PaintOutline(painter, box, in_focus ? kAccent : kOutline, in_focus ? 2 : 1, radius);
        painter.setPen(button_->isDown() ? QColor(Qt::white) : button_->isEnabled() ? ToQt(model_.ForeColor()) : kRestingWords);
        const double margin = 60 * Factor();
        fitted_.Paint(painter, box.adjusted(margin, 1, -margin, -1), ToQt(model_.Caption()), Font(), Qt::AlignCenter, kMostLines);
    }

    Button& model_;
    QPushButton* button_;
    FittedText fitted_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(Button& button, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<ButtonView>(button, window, owner);
}

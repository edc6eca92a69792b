#include "platform/qt/fitted_text.h"
#include "platform/qt/look.h"
#include "platform/qt/views.h"

namespace {
constexpr int kMostLines = 99;

class LabelView : public ControlWidget {
public:
    LabelView(Label& label, ViewHost& window, ControlWidget* owner) : ControlWidget(label, window, owner), label_(label) {
        words_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(words_);
    }

private:
    void ShowContent(Changes) override {}

    // A label in the colour of the windows is only its words: what lies below may have another.
    void Paint(QPainter& painter) {
        const QRect box = words_->rect();
        if (label_.BackColor() != kFormColour) painter.fillRect(box, ToQt(label_.BackColor()));
        painter.setPen(label_.Enabled() ? ToQt(label_.ForeColor()) : kRestingWords);
        const Qt::Alignment across = label_.centred ? Qt::AlignHCenter : label_.right_aligned ? Qt::AlignRight : Qt::AlignLeft;
        fitted_.Paint(painter, box, ToQt(label_.Caption()), Font(), across | Qt::AlignVCenter, kMostLines);
    }

    Label& label_;
    QWidget* words_;
    FittedText fitted_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(Label& label, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<LabelView>(label, window, owner);
}

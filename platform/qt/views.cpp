#include "platform/qt/views.h"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QProgressBar>
#include <algorithm>

#include "platform/qt/fitted_text.h"
#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"

namespace {
class ViewMaker : public ControlVisitor {
public:
    ViewMaker(ViewHost& window, ControlWidget* owner) : window_(window), owner_(owner) {}

    std::unique_ptr<ControlWidget> Take() { return std::move(view_); }

    void Visit(TextBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(Label& label) override { view_ = MakeView(label, window_, owner_); }
    void Visit(Button& button) override { view_ = MakeView(button, window_, owner_); }
    void Visit(OptionButton& option) override { view_ = MakeView(option, window_, owner_); }
    void Visit(CheckBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(ComboBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(Frame& frame) override { view_ = MakeView(frame, window_, owner_); }
    void Visit(TabControl& tabs) override { view_ = MakeView(tabs, window_, owner_); }
    void Visit(PictureBox& picture) override { view_ = MakeView(picture, window_, owner_); }
    void Visit(ProgressBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(Slider& slider) override { view_ = MakeView(slider, window_, owner_); }
    void Visit(ScrollBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(UpDown& arrows) override { view_ = MakeView(arrows, window_, owner_); }
    void Visit(StatusBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(MenuItem&) override {}  // the menu bar shows it

private:
    ViewHost& window_;
    ControlWidget* owner_;
    std::unique_ptr<ControlWidget> view_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeControlWidget(Control& control, ViewHost& window, ControlWidget* owner) {
    ViewMaker maker(window, owner);
    control.Accept(maker);
    return maker.Take();
}

// ---- The plain ones ----

namespace {
constexpr int kMostLines = 99;

class LabelView : public ControlWidget {
public:
    LabelView(Label& label, ViewHost& window, ControlWidget* owner) : ControlWidget(label, window, owner), label_(label) {
        words_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { Paint(painter); });
        Adopt(words_);
        if (Group()) fitted_.Join(*Group(), *words_, [this] { return Words(); });
    }

private:
    void ShowContent(Changes) override { fitted_.Follow(); }
    const FittedText* Fitted() const override { return &fitted_; }
    FittedText::Words Words() const { return {Brief(label_.Caption()), Font(), words_->rect(), kMostLines}; }

    // A label in the colour of the windows is only its words: what lies below may have another.
    void Paint(QPainter& painter) {
        const QRect box = words_->rect();
        if (label_.BackColor() != kFormColour) painter.fillRect(box, ToQt(label_.BackColor()));
        painter.setPen(label_.Enabled() ? ToQt(label_.ForeColor()) : kRestingWords);
        const Qt::Alignment across = label_.centred ? Qt::AlignHCenter : label_.right_aligned ? Qt::AlignRight : Qt::AlignLeft;
        fitted_.Paint(painter, Words(), across | Qt::AlignVCenter);
    }

    Label& label_;
    QWidget* words_;
    FittedText fitted_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeView(Label& label, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<LabelView>(label, window, owner);
}

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
        const QString caption = Brief(frame_.Caption()).trimmed();
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
        Sync();  // alone: what else has changed may be half done
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

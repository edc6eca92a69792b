#include "platform/qt/combo_box_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <algorithm>

#include "platform/qt/look.h"
#include "platform/qt/views.h"
#include "platform/user.h"

namespace {
constexpr double kArrowTwips = 270;
}

ComboBoxView::ComboBoxView(ComboBox& box, ViewHost& window, ControlWidget* owner) : ControlWidget(box, window, owner), box_(box) {
    field_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { PaintArrow(painter); });
    Adopt(field_);
    line_ = new TextLine(field_, box, *this);
    WatchMouse(line_);
}

int ComboBoxView::ArrowWidth() const {
    return std::min(static_cast<int>(kArrowTwips * Factor()), field_->height());
}

void ComboBoxView::ShowContent(Changes changes) {
    line_->setGeometry(field_->rect().adjusted(0, 0, 1 - ArrowWidth(), 0));
    line_->Agree(Font(), Factor());
    line_->update();
    if (changes.Has(Property::Items) && list_ && list_->isVisible()) list_->ShowItems();
}

// A press on the arrow is over when the list opens, for the list has the mouse then.
void ComboBoxView::Press(const Mouse& mouse, QPointF at) {
    ControlWidget::Press(mouse, at);
    if (mouse.button != MouseButton::Left || at.x() < line_->geometry().right() || !CanReach(box_)) return;
    ReleaseMouse(box_, mouse);
    OpenList();
}

ComboList& ComboBoxView::OpenList() {
    if (!list_) list_ = new ComboList(field_, box_, [this](int item) { Events().Run([&] { ChooseItem(box_, item); }); });
    list_->setFont(Font());
    list_->OpenBelow(*field_);
    return *list_;
}

bool ComboBoxView::TakeKey(QKeyEvent& key) {
    if (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up || key.key() == Qt::Key_F4)
        OpenList();
    else
        QCoreApplication::sendEvent(line_, &key);
    return true;
}

void ComboBoxView::PaintArrow(QPainter& painter) {
    const QRectF box = field_->rect();
    const QRectF button = box.adjusted(box.width() - ArrowWidth(), 0, 0, 0);
    painter.fillRect(button, kButtonFace);
    PaintOutline(painter, button, kOutline, 1, 0);
    const double half = button.width() * 0.18;
    const QPointF middle = button.center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(box_.Enabled() ? QColor(Qt::black) : kRestingWords, std::max(1.0, 22 * Factor()), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-half, -half / 2), middle + QPointF(0, half / 2), middle + QPointF(half, -half / 2)}));
}

std::unique_ptr<ControlWidget> MakeView(ComboBox& box, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<ComboBoxView>(box, window, owner);
}

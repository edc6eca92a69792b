#include "platform/qt/box_views.h"

#include <QAbstractListModel>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/views.h"
#include "platform/user.h"

namespace {
// `Editor` is TextLine or TextArea.
template <class Editor>
class TextBoxView : public ControlWidget {
public:
    TextBoxView(TextBox& box, ViewHost& window, ControlWidget* owner) : ControlWidget(box, window, owner), box_(box) {
        if constexpr (std::is_same_v<Editor, TextArea>)
            editor_ = new TextArea(OwnerGround(), box, *this);
        else
            editor_ = new TextLine(OwnerGround(), box, *this, Group());
        Adopt(editor_);
        if (MouseWidget() != editor_) WatchMouse(MouseWidget());
    }

    QWidget* MouseWidget() override {
        if constexpr (std::is_same_v<Editor, TextArea>) return editor_->viewport();
        return editor_;
    }

private:
    void ShowContent(Changes) override {
        editor_->Sync(Font(), Factor());
        MouseWidget()->update();
    }
    QString Tip() const override { return TipOf(box_, editor_->Held()); }
    const FittedText* Fitted() const override { return &editor_->Fitted(); }
    bool PassesMouse() const override { return HoldsFocus(box_); }
    bool UseKey(QKeyEvent& key) override {
        QCoreApplication::sendEvent(editor_, &key);
        return true;
    }

    TextBox& box_;
    Editor* editor_;
};
}  // namespace

// The box that holds the focus while nothing is to be typed is not there to be seen: the window itself has the keyboard then.
std::unique_ptr<ControlWidget> MakeView(TextBox& box, ViewHost& window, ControlWidget* owner) {
    if (!box.takes_text) return nullptr;
    if (box.multiline) return std::make_unique<TextBoxView<TextArea>>(box, window, owner);
    return std::make_unique<TextBoxView<TextLine>>(box, window, owner);
}

// ---- Combo boxes ----

namespace {
constexpr int kMostShown = 16;

class Items : public QAbstractListModel {
public:
    Items(QObject* parent, const ComboBox& box) : QAbstractListModel(parent), box_(box) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || index.row() >= box_.ListCount()) return {};
        return Brief(box_.List()[static_cast<std::size_t>(index.row())]);
    }
    void Refresh() {
        beginResetModel();
        count_ = box_.ListCount();
        endResetModel();
    }

private:
    const ComboBox& box_;
    int count_ = 0;
};
}  // namespace

ComboList::ComboList(QWidget* parent, const ComboBox& box, std::function<void(int)> choose)
    : QListView(parent), box_(box), choose_(std::move(choose)) {
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setModel(new Items(this, box));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListView::entered, this, [this](const QModelIndex& item) { setCurrentIndex(item); });
}

void ComboList::ShowItems() {
    static_cast<Items*>(model())->Refresh();
    SelectShown();
}

// Of several equal lines the last, as in a history.
void ComboList::SelectShown() {
    const auto& items = box_.List();
    const auto found = std::find(items.rbegin(), items.rend(), box_.Text());
    if (found == items.rend()) return;
    setCurrentIndex(model()->index(static_cast<int>(items.rend() - found) - 1, 0));
    scrollTo(currentIndex(), PositionAtCenter);
}

int ComboList::LineWidth() const {
    const QFontMetrics metrics(font());
    int widest = 0;
    for (const std::string& item : box_.List()) widest = std::max(widest, metrics.horizontalAdvance(Brief(item)));
    return widest + metrics.height();
}

void ComboList::OpenBelow(const QWidget& field) {
    static_cast<Items*>(model())->Refresh();
    const QRect screen = field.screen()->availableGeometry();
    const int lines = std::clamp(box_.ListCount(), 1, kMostShown);
    const int line_height = std::max(sizeHintForRow(0), QFontMetrics(font()).height());
    const int height = lines * line_height + 2 * frameWidth();
    const int width = std::min(std::max(field.width(), LineWidth() + verticalScrollBar()->sizeHint().width()), screen.width());
    QPoint corner = field.mapToGlobal(QPoint(0, field.height()));
    if (corner.y() + height > screen.bottom()) corner = field.mapToGlobal(QPoint(0, -height));
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() - width)));
    setGeometry(QRect(corner, QSize(width, height)));
    show();
    SelectShown();
}

bool ComboList::IsNavigation(int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
        case Qt::Key_F4:
            return true;
        default:
            return false;
    }
}

void ComboList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Choose(currentIndex());
        case Qt::Key_Escape:
        case Qt::Key_F4:
            hide();
            return;
        default:
            QListView::keyPressEvent(event);
    }
}

void ComboList::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Choose(indexAt(event->position().toPoint()));
}

void ComboList::ChooseRow(int row) {
    Choose(model()->index(row, 0));
}

void ComboList::Choose(const QModelIndex& item) {
    if (!item.isValid()) return;
    hide();
    choose_(item.row());
}

namespace {
constexpr double kArrowTwips = 270;
}

ComboBoxView::ComboBoxView(ComboBox& box, ViewHost& window, ControlWidget* owner) : ControlWidget(box, window, owner), box_(box) {
    field_ = new Painted<QWidget>(OwnerGround(), [this](QPainter& painter) { PaintArrow(painter); });
    Adopt(field_);
    line_ = new TextLine(field_, box, *this, Group());
    WatchMouse(line_);
}

int ComboBoxView::ArrowWidth() const {
    return std::min(static_cast<int>(kArrowTwips * Factor()), field_->height());
}

void ComboBoxView::ShowContent(Changes changes) {
    line_->setGeometry(field_->rect().adjusted(0, 0, 1 - ArrowWidth(), 0));
    line_->Sync(Font(), Factor());
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

bool ComboBoxView::UseKey(QKeyEvent& key) {
    if (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up || key.key() == Qt::Key_F4)
        OpenList();
    else
        QCoreApplication::sendEvent(line_, &key);
    return true;
}

void ComboBoxView::PaintArrow(QPainter& painter) {
    const QRectF box = field_->rect();
    PaintArrowButton(painter, box.adjusted(box.width() - ArrowWidth(), 0, 0, 0), box_.Enabled(), std::max(1.0, 22 * Factor()));
}

std::unique_ptr<ControlWidget> MakeView(ComboBox& box, ViewHost& window, ControlWidget* owner) {
    return std::make_unique<ComboBoxView>(box, window, owner);
}

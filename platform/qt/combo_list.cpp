#include "platform/qt/combo_list.h"

#include <QAbstractListModel>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "platform/qt/look.h"

namespace {
constexpr int kMostShown = 16;

class Items : public QAbstractListModel {
public:
    Items(QObject* parent, const ComboBox& box) : QAbstractListModel(parent), box_(box) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || index.row() >= box_.ListCount()) return {};
        return ToQt(box_.List()[static_cast<std::size_t>(index.row())]);
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
    for (const std::string& item : box_.List()) widest = std::max(widest, metrics.horizontalAdvance(ToQt(item)));
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

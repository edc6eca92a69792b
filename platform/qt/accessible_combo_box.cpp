#include "platform/qt/accessible_combo_box.h"

#include "platform/qt/box_views.h"
#include "platform/qt/look.h"
#include "platform/user.h"

namespace {
class AccessibleLine : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleLine(ComboList& list, int row, WindowWidget& window) : list_(list), row_(row), window_(window) {}

    bool isValid() const override { return row_ < list_.model()->rowCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&list_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? Line().data().toString() : QString(); }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return list_.visualRect(Line()).translated(list_.viewport()->mapToGlobal(QPoint())); }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = state.focusable = true;
        state.invisible = !list_.isVisible();
        state.selected = state.focused = list_.isVisible() && list_.currentIndex().row() == row_;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override {
        if (action == pressAction()) RunForReader(window_, [&list = list_, row = row_] { list.ChooseRow(row); });
    }

    int Row() const { return row_; }

private:
    QModelIndex Line() const { return list_.model()->index(row_, 0); }

    ComboList& list_;
    int row_;
    WindowWidget& window_;
};
}  // namespace

ComboBoxView& AccessibleComboBox::View() const {
    return static_cast<ComboBoxView&>(*Around().Find(box_));
}

QAccessible::State AccessibleComboBox::state() const {
    QAccessible::State state = AccessibleControl::state();
    state.focused = false;  // its editor has it
    state.editable = state.expandable = state.hasPopup = true;
    state.expanded = View().List() && View().List()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QList<QAccessibleInterface*> AccessibleComboBox::Children() const {
    ComboBoxView& view = View();
    QList<QAccessibleInterface*> parts{QAccessible::queryAccessibleInterface(view.FocusWidget())};
    if (ComboList* const list = view.List()) parts.append(QAccessible::queryAccessibleInterface(list));
    return parts;
}

QString AccessibleComboBox::ValueText() const {
    return ToQt(box_.Text());
}

void AccessibleComboBox::doAction(const QString& action) {
    if (action != showMenuAction()) return AccessibleControl::doAction(action);
    RunForReader(Around(), [&view = View(), &box = box_] {
        FocusForReader(box);
        if (CanReach(box)) view.OpenList();
    });
}

AccessibleList::AccessibleList(ComboList& list, WindowWidget& window)
    : QAccessibleWidget(&list, QAccessible::List), list_(list), window_(window) {}

AccessibleList::~AccessibleList() {
    for (const QAccessible::Id line : std::as_const(lines_)) QAccessible::deleteAccessibleInterface(line);
}

int AccessibleList::childCount() const {
    return list_.model()->rowCount();
}

QAccessibleInterface* AccessibleList::child(int row) const {
    if (row < 0 || row >= childCount()) return nullptr;
    if (const auto made = lines_.constFind(row); made != lines_.cend()) return QAccessible::accessibleInterface(*made);
    auto* const line = new AccessibleLine(list_, row, window_);
    lines_.insert(row, QAccessible::registerAccessibleInterface(line));
    return line;
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const line = dynamic_cast<const AccessibleLine*>(child);
    return line ? line->Row() : -1;
}

QString AccessibleList::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? QAccessible::queryAccessibleInterface(list_.parentWidget())->text(kind) : QString();
}

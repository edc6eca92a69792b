#include "platform/qt/accessible_boxes.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

#include "platform/qt/box_views.h"
#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/text_editors.h"
#include "platform/services.h"
#include "platform/text.h"
#include "platform/user.h"

namespace {
// By the widget, as the mouse does it: it tells the program.
void SelectIn(QWidget& editor, int start, int end) {
    if (auto* const line = qobject_cast<QLineEdit*>(&editor)) return line->setSelection(start, end - start);
    auto& area = static_cast<QPlainTextEdit&>(editor);
    QTextCursor cursor = area.textCursor();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    area.setTextCursor(cursor);
}
}  // namespace

AccessibleText::AccessibleText(TextHolder& box, QWidget& editor, WindowWidget& window)
    : AccessibleControl(box, editor, window, QAccessible::EditableText), box_(box) {}

QAccessibleInterface* AccessibleText::parent() const {
    if (box_.kind() == Kind::ComboBox) return QAccessible::queryAccessibleInterface(widget()->parentWidget());
    return AccessibleControl::parent();
}

QAccessible::State AccessibleText::state() const {
    QAccessible::State state = AccessibleControl::state();
    state.editable = true;
    state.readOnly = !CanReach(box_);
    state.multiLine = box_.BreaksLines();
    state.selectableText = true;
    return state;
}

QStringList AccessibleText::actionNames() const {
    return {setFocusAction()};
}

void* AccessibleText::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
    if (type == QAccessible::ValueInterface && box_.kind() == Kind::TextBox && Number())
        return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

const EditedHead& AccessibleText::Held() const {
    return dynamic_cast<const BoxEditor&>(*widget()).Held();
}

QString AccessibleText::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? TipOf(box_, Held()) : AccessibleControl::text(kind);
}

QString AccessibleText::ValueText() const {
    return Held().Text();
}

// A text that is not shown to its end is no number.
std::optional<double> AccessibleText::Number() const {
    return Held().IsAll() ? AsNumber(box_.Text()) : std::nullopt;
}

// ---- Reading ----

QString AccessibleText::text(int start, int end) const {
    return ValueText().mid(start, end - start);
}

int AccessibleText::characterCount() const {
    return static_cast<int>(ValueText().size());
}

int AccessibleText::cursorPosition() const {
    return UnitAfter(ValueText(), box_.SelStart());
}

int AccessibleText::selectionCount() const {
    return box_.SelLength() > 0 ? 1 : 0;
}

void AccessibleText::selection(int index, int* start, int* end) const {
    const bool there_is = index == 0 && selectionCount() > 0;
    const QString shown = ValueText();
    *start = there_is ? UnitAfter(shown, box_.SelStart()) : 0;
    *end = there_is ? UnitAfter(shown, box_.SelStart() + box_.SelLength()) : 0;
}

// The box at rest fits its text in; only the caret of the one with the keyboard has a place of its own.
QRect AccessibleText::characterRect(int offset) const {
    if (!widget()->hasFocus() || offset != cursorPosition()) return rect();
    const QRect caret = widget()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return caret.translated(widget()->mapToGlobal(QPoint()));
}

int AccessibleText::offsetAtPoint(const QPoint& point) const {
    const QPoint at = widget()->mapFromGlobal(point);
    if (!widget()->hasFocus() || !widget()->rect().contains(at)) return -1;
    if (auto* const line = qobject_cast<QLineEdit*>(widget())) return line->cursorPositionAt(at);
    return static_cast<QPlainTextEdit*>(widget())->cursorForPosition(at).position();
}

QString AccessibleText::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

QVariant AccessibleText::currentValue() const {
    return Number().value_or(0);
}

// ---- Editing ----

void AccessibleText::setCurrentValue(const QVariant& value) {
    replaceText(0, characterCount(), ToQt(NumberText(value.toDouble())));
}

void AccessibleText::setCursorPosition(int offset) {
    addSelection(offset, offset);
}

// The editor has the keyboard only after the event that gives it the focus.
void AccessibleText::addSelection(int start, int end) {
    RunForReader(Around(), [&box = box_] { FocusForReader(box); });
    RunForReader(Around(), [editor = QPointer<QWidget>(widget()), start, end] {
        if (editor && editor->hasFocus()) SelectIn(*editor, start, end);
    });
}

void AccessibleText::setSelection(int, int start, int end) {
    addSelection(start, end);
}

void AccessibleText::removeSelection(int) {
    setCursorPosition(cursorPosition());
}

void AccessibleText::scrollToSubstring(int start, int) {
    setCursorPosition(start);
}

void AccessibleText::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void AccessibleText::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

// Into the text as it is when the edit is done, the caret behind what was put in. A double quotation mark would break the row of a sheet,
// and there is no key press here that the guard of the boxes could refuse.
void AccessibleText::replaceText(int start, int end, const QString& text) {
    RunForReader(Around(), [&box = box_, &head = Held(), start, end, text] {
        if (text.contains(u'"')) return services.sounds->Beep();
        FocusForReader(box);
        const QString shown = head.Text();
        const QString edited = shown.left(start) + text + shown.mid(end);
        EnterText(box, head.Whole(edited), CharactersBefore(edited, static_cast<int>(shown.left(start).size() + text.size())));
    });
}

// ---- Combo boxes ----

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
    return View().Held().Text();
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

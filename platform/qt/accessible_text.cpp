#include "platform/qt/accessible_text.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

#include "platform/qt/look.h"
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
    if (type == QAccessible::ValueInterface && box_.kind() == Kind::TextBox && AsNumber(box_.Text()))
        return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

QString AccessibleText::ValueText() const {
    return Shown(box_.Text());
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
    return AsNumber(box_.Text()).value_or(0);
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
// and no key goes down here that the guard of the boxes could watch.
void AccessibleText::replaceText(int start, int end, const QString& text) {
    RunForReader(Around(), [&box = box_, start, end, text] {
        if (text.contains(u'"')) return services.sounds->Beep();
        FocusForReader(box);
        const QString shown = Shown(box.Text());
        const QString edited = shown.left(start) + text + shown.mid(end);
        EnterText(box, Unshown(edited), CharactersBefore(edited, static_cast<int>(shown.left(start).size() + text.size())));
    });
}

// Text boxes and the editor in a combo box, as a screen reader finds them. One that holds a number has it as its value: a reader that
// listens hears each count. Offsets are in the units of the widget, as the toolkit has them.
#pragma once
#include "platform/qt/accessible_control.h"

class AccessibleText : public AccessibleControl,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface,
                       public QAccessibleValueInterface {
public:
    AccessibleText(TextHolder& box, QWidget& editor, WindowWidget& window);

    QAccessibleInterface* parent() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    using AccessibleControl::text;
    QString text(int start, int end) const override;
    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int offset) override;
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void setSelection(int index, int start, int end) override;
    void removeSelection(int index) override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return {}; }
    QVariant minimumValue() const override { return {}; }
    QVariant minimumStepSize() const override { return {}; }

protected:
    QList<QAccessibleInterface*> Children() const override { return {}; }
    QString ValueText() const override;

private:
    TextHolder& box_;
};

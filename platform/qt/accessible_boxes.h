// Text boxes and combo boxes as a screen reader finds them: their editors, the list of a combo box and its lines.
#pragma once
#include <QHash>
#include <optional>

#include "platform/qt/accessible_control.h"
#include "platform/qt/shown_text.h"

// A text box, or the editor in a combo box: of a long text what the editor holds, and in its description that there is more. One that holds
// a number has it as its value: a reader that listens hears each count. Offsets are in the units of the widget, as the toolkit has them.
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

    QString text(QAccessible::Text kind) const override;
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
    const EditedHead& Held() const;
    std::optional<double> Number() const;

    TextHolder& box_;
};

class ComboBoxView;
class ComboList;

// A combo box. Its list is there from its first opening on.
class AccessibleComboBox : public AccessibleControl {
public:
    AccessibleComboBox(ComboBox& box, QWidget& field, WindowWidget& window) : AccessibleControl(box, field, window), box_(box) {}

    QAccessible::State state() const override;
    void doAction(const QString& action) override;

protected:
    QList<QAccessibleInterface*> Children() const override;  // the editor, the list
    QString ValueText() const override;

private:
    ComboBoxView& View() const;

    ComboBox& box_;
};

class AccessibleList : public QAccessibleWidget {
public:
    AccessibleList(ComboList& list, WindowWidget& window);
    ~AccessibleList() override;

    int childCount() const override;
    QAccessibleInterface* child(int row) const override;  // made when it is first asked for: there may be ten thousand
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;

private:
    ComboList& list_;
    WindowWidget& window_;
    mutable QHash<int, QAccessible::Id> lines_;  // [row]
};

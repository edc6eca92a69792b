// A combo box, its list and the lines of that, as a screen reader finds them. The list is there from its first opening on.
#pragma once
#include <QHash>

#include "platform/qt/accessible_control.h"

class ComboBoxView;
class ComboList;

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

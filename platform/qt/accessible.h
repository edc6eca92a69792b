// Screen readers: what they find in the windows. Here are the windows themselves and their menus; the other rooms have the controls.
#pragma once
#include <QAccessible>
#include <QAccessibleObject>
#include <QAction>

#include "platform/controls.h"
#include "platform/qt/accessible_control.h"
#include "platform/qt/window_widget.h"

// A window as a screen reader finds it: its menu bar, and the controls that lie in no other.
class AccessibleWindow : public AccessibleNode {
public:
    explicit AccessibleWindow(WindowWidget& window);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

protected:
    QList<QAccessibleInterface*> Children() const override;
};

// An item of a menu as a screen reader finds it. To press it opens its menu, or clicks it as a user does who opens all menus on the way.
class AccessibleMenuItem : public QAccessibleObject, public QAccessibleActionInterface {
public:
    AccessibleMenuItem(MenuItem& item, QAction& action, WindowWidget& window)
        : QAccessibleObject(&action), item_(item), action_(action), window_(window) {}

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int place) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* inner) const override;
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QRect rect() const override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    QWidget* Place() const;  // the bar or the menu that it stands on

    MenuItem& item_;
    QAction& action_;
    WindowWidget& window_;
};

// From here on readers find the program's windows, controls, tabs, lists and menus as they are meant. Before the first window is made.
void OpenToReaders();

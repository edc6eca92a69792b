#include "platform/qt/accessible_node.h"

#include <QApplication>
#include <QMetaObject>

int AccessibleNode::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(Children().indexOf(const_cast<QAccessibleInterface*>(child)));
}

QList<QAccessibleInterface*> ControlsIn(const WindowWidget& window, const Control* container, int page) {
    QList<QAccessibleInterface*> found;
    for (const Control* control : window.window().Controls()) {
        if (control->container != container || control->page != page) continue;
        if (QWidget* const widget = window.WidgetOf(*control)) found.append(QAccessible::queryAccessibleInterface(widget));
    }
    return found;
}

void RunForReader(WindowWidget& window, std::function<void()> act) {
    QMetaObject::invokeMethod(
        &window,
        [&window, act = std::move(act)] {
            if (QApplication::activeModalWidget()) return;
            while (QWidget* const popup = QApplication::activePopupWidget())
                if (!popup->close()) break;
            window.Events().Run(act);
        },
        Qt::QueuedConnection);
}

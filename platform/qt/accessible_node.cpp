#include "platform/qt/accessible_node.h"

#include <QApplication>
#include <QMetaObject>

#include "platform/qt/control_widget.h"
#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"

int AccessibleNode::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(Children().indexOf(const_cast<QAccessibleInterface*>(child)));
}

QWidget* WidgetOf(const Control& control) {
    const WindowWidget* const window = TheRenderer().WidgetOf(*control.window);
    ControlWidget* const shown = window ? window->Find(control) : nullptr;
    return shown ? shown->Widget() : nullptr;
}

QList<QAccessibleInterface*> ControlsIn(const Window& window, const Control* container, int page) {
    QList<QAccessibleInterface*> found;
    for (const Control* control : window.Controls()) {
        if (control->container != container || control->page != page) continue;
        if (QWidget* const widget = WidgetOf(*control)) found.append(QAccessible::queryAccessibleInterface(widget));
    }
    return found;
}

void RunForReader(std::function<void()> act) {
    QMetaObject::invokeMethod(
        &TheRenderer(),
        [act = std::move(act)] {
            if (QApplication::activeModalWidget()) return;
            while (QWidget* const popup = QApplication::activePopupWidget())
                if (!popup->close()) break;
            TheRenderer().Run(act);
        },
        Qt::QueuedConnection);
}

#include "platform/qt/readers.h"

#include <QAccessible>

namespace {
void Tell(QWidget& widget, QAccessible::Event type) {
    QAccessibleEvent event(&widget, type);
    QAccessible::updateAccessibility(&event);
}
}  // namespace

void TellValue(QWidget& widget) {
    if (!widget.isVisible()) return;
    QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&widget);
    if (!shown->valueInterface()) return;
    QAccessibleValueChangeEvent event(&widget, shown->text(QAccessible::Value));
    QAccessible::updateAccessibility(&event);
}

void TellName(QWidget& widget) {
    if (widget.isVisible()) Tell(widget, QAccessible::NameChanged);
}

void TellSelection(QWidget& widget) {
    Tell(widget, QAccessible::Selection);
}

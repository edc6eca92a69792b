// What screen readers are told of a widget, while it can be seen.
#pragma once
#include <QWidget>

void TellValue(QWidget& widget);  // is another now, if it has one
void TellName(QWidget& widget);
void TellSelection(QWidget& widget);  // it is the one selected of several, whether it can be seen yet or not

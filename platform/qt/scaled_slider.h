// A slider drawn in the size of its window: the groove runs from end to end, the handle is as large as there is room across.
#pragma once
#include <QStyleOptionSlider>

class QPainter;

QRect SliderHandle(const QStyleOptionSlider& slider);
void PaintSlider(QPainter& painter, const QStyleOptionSlider& slider);

// The values of a column, sample by sample.
#pragma once
#include "figure/drawing/column.h"

struct Curve {
    Values values;    // 0 and more; none breaks the curve
    double unit = 1;  // points
    Colour colour;
};

constexpr double kRim = 0.6;  // points: the width of a curve's line

double BarHeight(const SampleAxis& axis);  // of a sample's bar, in points: bars of neighbours do not touch

void DrawCurve(Pen& pen, const ColumnPlace& place, const Curve& curve, CurveStyle style);
void DrawSilhouette(Pen& pen, const ColumnPlace& place, const Curve& curve);   // without a rim
void DrawExaggerated(Pen& pen, const ColumnPlace& place, const Curve& curve);  // the same, cut off at the column's end
void DrawBars(Pen& pen, const ColumnPlace& place, const Curve& curve);
void DrawPresence(Pen& pen, const ColumnPlace& place, const Curve& curve);  // a dot for each value above 0

// The scales below the columns of one page.
#pragma once
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/pen.h"

constexpr double kTick = 3, kShortTick = 1.8;  // points, as along the axis of the samples
constexpr double kHeightOfScales = 12;         // of tick and number

class Scales {
public:
    Scales(Pen& pen, double top) : pen_(pen), top_(top) {}  // `pen` must outlive it

    void Draw(const ColumnScale& scale, double left);  // the line with its ticks
    void WriteNumbers();                               // of all scales drawn, as far as there is room

private:
    struct Number {
        double x, value;
    };

    Pen& pen_;
    double top_;
    std::vector<Number> numbers_;
};

// Where the samples stand from top to bottom: by depth, by age, or at equal distances if their names are no numbers.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "figure/drawing/options.h"
#include "figure/sheet/core.h"

class SampleAxis {
public:
    // From `top` to `bottom`, in points. Raises FigureFault for an age that is no row of Additional info, an age that is missing or no
    // number, and ages that neither rise nor fall.
    SampleAxis(const Core& core, const FigureOptions& options, double top, double bottom);

    double Y(std::size_t sample) const { return YOf(values_[sample]); }
    double Boundary(std::size_t sample) const;  // half-way between the sample and the one above it
    double LeastDistance() const;               // between two samples, in points; those at one place do not count
    double Top() const { return top_; }         // the ends of the axis, in points
    double Bottom() const { return bottom_; }
    bool HasNumbers() const { return has_numbers_; }  // else the samples are written by their names
    const std::string& Title() const { return title_; }

    struct Tick {
        double y;
        std::string number;  // empty: a short tick without one
    };
    std::vector<Tick> Ticks() const;  // from the top down; none without numbers

private:
    double YOf(double value) const { return top_ + (value - from_) / (to_ - from_) * (bottom_ - top_); }
    void TakeUpAges(const Core& core, const std::string& age);
    void TakeUpDepths(const Core& core, const std::string& unit);
    void RoundEnds();

    double top_, bottom_;
    std::vector<double> values_;  // [sample]
    double from_ = 0, to_ = 1;    // the values at the ends
    double step_ = 1;             // between two numbers
    bool has_numbers_ = true;
    std::string title_;
};

// Where the samples stand from top to bottom: by depth or by age.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "figure/drawing/options.h"
#include "figure/sheet/core.h"

class SampleAxis {
public:
    // From `top` to `bottom`, in points. Raises FigureFault for a sample without a depth; with ages, for one that is missing or no number,
    // a row that is not there, and ages that neither rise nor fall.
    SampleAxis(const Core& core, const FigureOptions& options, double top, double bottom);

    double Y(std::size_t sample) const { return YOf(values_[sample]); }
    double Boundary(std::size_t sample) const;  // half-way between the sample and the one above it
    double LeastDistance() const;               // between two samples, in points; those at one place do not count
    double Top() const { return top_; }         // the ends of the axis, in points
    double Bottom() const { return bottom_; }
    const std::string& Title() const { return title_; }

    struct Tick {
        double y;
        std::string number;  // empty: a short tick without one
    };
    std::vector<Tick> Ticks() const;  // from the top down

private:
    double YOf(double value) const { return top_ + (value - from_) / (to_ - from_) * (bottom_ - top_); }
    void TakeUpAges(const Core& core, const std::string& age);
    void TakeUpDepths(const Core& core, const std::string& unit);
    void RoundEnds();

    double top_, bottom_;
    std::vector<double> values_;  // [sample]
    double from_ = 0, to_ = 1;    // the values at the ends
    double step_ = 1;             // between two numbers
    std::string title_;
};

#include "figure/drawing/sample_axis.h"

#include <algorithm>
#include <cmath>

#include "figure/drawing/ticks.h"
#include "figure/results/quantity.h"
#include "figure/sheet/fault.h"

namespace {
constexpr double kPointsPerNumber = 30;  // along the axis, at the least
constexpr int kShortTicks = 5;           // in a step

double DepthOf(const Sample& sample) {
    if (sample.depth) return *sample.depth;
    if (!sample.is_named) throw FigureFault("the first sample has no name yet: name it by its depth, such as 10 or 10.5");
    throw FigureFault("sample \"" + sample.name + "\": a depth is a plain number such as 10 or 10.5");
}
}  // namespace

SampleAxis::SampleAxis(const Core& core, const FigureOptions& options, double top, double bottom) : top_(top), bottom_(bottom) {
    if (options.age.empty())
        TakeUpDepths(core, options.depth_unit);
    else
        TakeUpAges(core, options.age);
    RoundEnds();
}

void SampleAxis::TakeUpAges(const Core& core, const std::string& age) {
    const Quantity ages = QuantityOf(core, age);
    for (std::size_t sample = 0; sample < ages.size(); ++sample) {
        if (!ages[sample]) throw FigureFault("sample " + core.samples[sample].name + " has no number in " + age);
        values_.push_back(*ages[sample]);
    }
    const bool rises = std::is_sorted(values_.begin(), values_.end());
    if (!(rises || std::is_sorted(values_.rbegin(), values_.rend())) || values_.front() == values_.back())
        throw FigureFault("the numbers in " + age + " do not go one way from the top to the bottom");
    title_ = age;
}

void SampleAxis::TakeUpDepths(const Core& core, const std::string& unit) {
    for (const Sample& sample : core.samples) values_.push_back(DepthOf(sample));
    title_ = "Depth (" + unit + ")";
}

// To a short tick beyond the samples.
void SampleAxis::RoundEnds() {
    const double first = values_.front(), last = values_.back();
    step_ = RoundStep(std::abs(last - first), std::max(2, static_cast<int>((bottom_ - top_) / kPointsPerNumber)));
    const double unit = (last > first ? step_ : -step_) / kShortTicks;
    from_ = first == 0 ? 0 : (std::ceil(first / unit) - 1) * unit;
    to_ = (std::floor(last / unit) + 1) * unit;
}

double SampleAxis::Boundary(std::size_t sample) const {
    return (Y(sample - 1) + Y(sample)) / 2;
}

double SampleAxis::LeastDistance() const {
    double least = bottom_ - top_;
    for (std::size_t sample = 1; sample < values_.size(); ++sample)
        if (const double distance = Y(sample) - Y(sample - 1); distance > 0) least = std::min(least, distance);
    return least;
}

std::vector<SampleAxis::Tick> SampleAxis::Ticks() const {
    std::vector<Tick> ticks;
    for (const double value : Multiples(step_ / kShortTicks, std::min(from_, to_), std::max(from_, to_))) {
        const double steps = value / step_;
        const bool is_long = std::abs(steps - std::round(steps)) < 0.5 / kShortTicks;
        ticks.push_back({YOf(value), is_long ? RoundNumberText(value) : ""});
    }
    std::sort(ticks.begin(), ticks.end(), [](const Tick& a, const Tick& b) { return a.y < b.y; });
    return ticks;
}

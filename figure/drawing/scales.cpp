#include "figure/drawing/scales.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "figure/drawing/ticks.h"

namespace {
constexpr Lettering kNumbers{kNumberSize};

struct Span {
    double left, right;
    bool Meets(const Span& other) const { return left < other.right && right > other.left; }
};

// A column that is shorter than a step has the number of its end.
std::vector<double> NumbersOf(const ColumnScale& scale) {
    if (scale.length < scale.number_step) return {0, scale.length};
    return Multiples(scale.number_step, 0, scale.length);
}

bool IsMultiple(double value, double step) {
    constexpr double kSlack = 1e-6;
    return std::abs(value / step - std::round(value / step)) < kSlack;
}
}  // namespace

void Scales::Draw(const ColumnScale& scale, double left) {
    pen_.Line({left, top_}, {left + scale.length * scale.unit, top_});
    for (const double value : Multiples(scale.short_step, 0, scale.length)) {
        const double x = left + value * scale.unit;
        pen_.Line({x, top_}, {x, top_ + (IsMultiple(value, scale.number_step) ? kTick : kShortTick)});
    }
    for (const double value : NumbersOf(scale)) numbers_.push_back({left + value * scale.unit, value});
}

// Where two would touch, the first one stays, but a 0 makes room for numbers that tell more.
void Scales::WriteNumbers() {
    constexpr double kRoom = 2;
    std::stable_partition(numbers_.begin(), numbers_.end(), [](const Number& number) { return number.value != 0; });
    std::vector<Span> taken;
    for (const Number& number : numbers_) {
        const std::string text = RoundNumberText(number.value);
        const double half = pen_.WidthOf(text, kNumbers) / 2;
        const Span with_room{number.x - half - kRoom, number.x + half + kRoom};
        if (std::any_of(taken.begin(), taken.end(), [&](const Span& other) { return with_room.Meets(other); })) continue;
        taken.push_back({number.x - half, number.x + half});
        pen_.Write({{number.x, top_ + kHeightOfScales - 1}, text, kNumbers, PageText::Anchor::Middle});
    }
}

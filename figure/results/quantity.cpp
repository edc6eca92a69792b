#include "figure/results/quantity.h"

#include <algorithm>

#include "figure/sheet/fault.h"
#include "platform/text.h"

namespace {
std::optional<double> ValueIn(const Sample& sample, std::size_t row, const std::string& name) {
    const std::string& value = sample.values[row];
    if (value.find_first_not_of(' ') == std::string::npos || value == kEmpty) return std::nullopt;
    const std::optional<double> number = AsNumber(value);
    if (!number) throw FigureFault("\"" + value + "\" in the row \"" + name + "\" of sample " + sample.name + " is no number");
    return number;
}
}  // namespace

Quantity QuantityOf(const Core& core, const std::string& text) {
    const auto row = std::ranges::find(core.params, text);
    if (row == core.params.end()) {
        const std::optional<double> number = AsNumber(text);
        if (!number) throw FigureFault("\"" + text + "\" is neither a row of Additional info nor a number");
        return Quantity(core.samples.size(), number);
    }
    Quantity values;
    for (const Sample& sample : core.samples) values.push_back(ValueIn(sample, row - core.params.begin(), text));
    return values;
}

#include "figure/results/accumulation.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "figure/sheet/fault.h"

namespace {
double CentimetresIn(const std::string& unit) {
    if (unit == "mm") return 0.1;
    if (unit == "cm") return 1;
    if (unit == "m") return 100;
    throw FigureFault("influx by ages takes depths in mm, cm or m, not in \"" + unit + "\"");
}

struct Dated {
    std::size_t sample;
    double depth, age;
};

std::vector<Dated> DatedSamples(const Core& core, const std::string& age) {
    const Quantity ages = QuantityOf(core, age);
    std::vector<Dated> dated;
    for (std::size_t sample = 0; sample < ages.size(); ++sample) {
        if (!core.samples[sample].depth) throw FigureFault("influx by ages takes depths for names of samples");
        if (ages[sample]) dated.push_back({sample, *core.samples[sample].depth, *ages[sample]});
    }
    if (dated.size() < 2) throw FigureFault("influx by ages takes ages of two samples or more in the row \"" + age + "\"");
    return dated;
}

template <class Order>
bool InOrder(const std::vector<Dated>& dated, double Dated::*what, Order order) {
    const auto out_of_order = [&](const Dated& upper, const Dated& lower) { return !order(upper.*what, lower.*what); };
    return std::ranges::adjacent_find(dated, out_of_order) == dated.end();
}

void RequireOrder(const std::vector<Dated>& dated) {
    if (!InOrder(dated, &Dated::depth, std::less()))
        throw FigureFault("two samples have the same depth, so they have no rate between them");
    if (!InOrder(dated, &Dated::age, std::less()) && !InOrder(dated, &Dated::age, std::greater()))
        throw FigureFault("the ages neither rise nor fall all the way down, so there is no influx");
}

Quantity RatesByAge(const Core& core, const std::string& age, const std::string& depth_unit) {
    const double centimetres = CentimetresIn(depth_unit);
    const std::vector<Dated> dated = DatedSamples(core, age);
    RequireOrder(dated);
    Quantity rates(core.samples.size());
    for (std::size_t i = 0; i < dated.size(); ++i) {
        const Dated &above = dated[i > 0 ? i - 1 : 0], &below = dated[std::min(i + 1, dated.size() - 1)];
        rates[dated[i].sample] = centimetres * (below.depth - above.depth) / std::abs(below.age - above.age);
    }
    return rates;
}

Quantity GivenRates(const Core& core, const std::string& rate) {
    const Quantity rates = QuantityOf(core, rate);
    for (std::size_t sample = 0; sample < rates.size(); ++sample)
        if (rates[sample] && *rates[sample] < 0)
            throw FigureFault("\"" + rate + "\" of sample " + core.samples[sample].name + " is below 0");
    return rates;
}
}  // namespace

Quantity AccumulationRates(const Core& core, const AccumulationOptions& options, const std::string& depth_unit) {
    if (options.age.empty() == options.rate.empty()) throw FigureFault("influx takes either ages or a rate");
    if (options.age.empty()) return GivenRates(core, options.rate);
    return RatesByAge(core, options.age, depth_unit);
}

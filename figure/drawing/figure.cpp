#include "figure/drawing/figure.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "figure/drawing/arrangement.h"
#include "figure/drawing/extra_columns.h"
#include "figure/drawing/groups.h"
#include "figure/drawing/headings.h"
#include "figure/drawing/sample_axis.h"
#include "figure/drawing/scales.h"
#include "figure/drawing/taxon_columns.h"
#include "figure/drawing/ticks.h"
#include "figure/drawing/tree.h"
#include "figure/sheet/fault.h"

namespace {
constexpr double kMargin = 24;  // points, as all of these
constexpr double kTitleSize = 10;
constexpr double kTitleHeight = 18;
constexpr double kLegendBelow = 14;
constexpr double kHeightOfMeasures = 8;
constexpr double kLeastHeight = 60;  // of the columns
constexpr double kGap = 6;
constexpr Lettering kNames{kNameSize};
constexpr Lettering kNumbers{kNumberSize};

// What is drawn, before it has its place.
struct Content {
    std::vector<Column> columns;
    bool has_summary = false;
    std::optional<Stratigraphy> zones;
};

std::optional<Stratigraphy> ZonesOf(const Core& core, const FigureOptions& options) {
    if (!options.has_zones && options.tree != TreeKind::SumOfSquares) return std::nullopt;
    return StratigraphyOf(core, options.zones);
}

Content ContentOf(const Core& core, const FigureOptions& options) {
    Content content{TaxonColumns(core, options), false, ZonesOf(core, options)};
    const auto add = [&](std::vector<Column> columns) {
        content.columns.insert(content.columns.end(), std::make_move_iterator(columns.begin()), std::make_move_iterator(columns.end()));
    };
    if (options.summary) {
        std::vector<Column> summary = SummaryColumns(core, options);
        content.has_summary = !summary.empty();
        add(std::move(summary));
    }
    add(ExtraColumns(core, options));
    add(TreeColumns(core, options, content.zones ? &*content.zones : nullptr));
    if (!options.has_zones) content.zones.reset();
    return content;
}

class Figure {
public:
    Figure(const Core& core, const FigureOptions& options, const FontMetrics& metrics)
        : core_(core), options_(options), metrics_(metrics), content_(ContentOf(core, options)), names_(MeasureNames()) {
        plot_top_ = kMargin + (options.title.empty() ? 0 : kTitleHeight) + HeightOfNames() + kGap;
        plot_bottom_ = options.page_height - kMargin - kHeightOfScales - HeightOfMeasures() - kLegendBelow;
        if (plot_bottom_ - plot_top_ < kLeastHeight) throw FigureFault("the page is not high enough for the names and the samples");
        axis_.emplace(core, options, plot_top_, plot_bottom_);
        columns_left_ = kMargin + AxisWidth();
        const double room = options.page_width - kMargin - columns_left_ - ZonesWidth();
        if (room < kLeastHeight) throw FigureFault("the page is not wide enough");
        arrangement_ = Arrange(content_.columns, names_, room, options.one_page);
    }

    std::vector<Page> Pages() const {
        std::vector<Page> pages;
        for (const auto& columns : arrangement_.pages) {
            Page& page = pages.emplace_back();
            page.width = options_.one_page ? columns_left_ + arrangement_.width + ZonesWidth() + kMargin : options_.page_width;
            page.height = options_.page_height;
            Pen pen(page, metrics_);
            const double legend_right = DrawPage(pen, page.width, columns);
            if (options_.one_page) page.width = std::max(page.width, legend_right + kMargin);
        }
        return pages;
    }

private:
    bool HasHeadings() const { return GroupsStandTogether(content_.columns); }
    Lettering NameLetters(const Column& column) const { return {kNameSize, column.italic}; }

    NameRoom MeasureNames() const {
        NameRoom names{{}, options_.name_angle};
        for (const Column& column : content_.columns) names.widths.push_back(metrics_.WidthOf(column.name, NameLetters(column)));
        return names;
    }

    // The names of taxa have their group's heading above them.
    double HeightOfNames() const { return std::max(names_.Height(), HasHeadings() ? HeightOfTaxa() + kHeightOfHeadings : 0); }

    double HeightOfTaxa() const {
        NameRoom of_taxa{{}, names_.angle};
        for (std::size_t i = 0; i < content_.columns.size(); ++i)
            if (content_.columns[i].group) of_taxa.widths.push_back(names_.widths[i]);
        return of_taxa.Height();
    }

    double HeightOfMeasures() const {
        return AnyColumn([](const Column& column) { return !column.measure.empty(); }) ? kHeightOfMeasures : 0;
    }

    double NumbersWidth() const {
        double widest = 0;
        for (const SampleAxis::Tick& tick : axis_->Ticks()) widest = std::max(widest, metrics_.WidthOf(tick.number, kNumbers));
        return widest;
    }

    double AxisWidth() const { return kNameSize + kGap + NumbersWidth() + kTick + kGap; }

    double ZonesWidth() const {
        double widest = 0;
        if (content_.zones)
            for (const Zone& zone : content_.zones->zones) widest = std::max(widest, metrics_.WidthOf(zone.name, kNames) + kGap);
        return widest;
    }

    // Returns the right end of the legend.
    double DrawPage(Pen& pen, double width, const std::vector<PlacedColumn>& columns) const {
        DrawTitle(pen, width - 2 * kMargin);
        DrawAxis(pen);
        Scales scales(pen, plot_bottom_);
        for (const PlacedColumn& placed : columns) DrawColumn(pen, placed, scales);
        scales.WriteNumbers();
        if (HasHeadings()) DrawHeadings(pen, Headings(columns, width - kMargin), plot_top_ - HeightOfTaxa() - kGap);
        if (content_.zones) DrawZones(pen, columns_left_ + columns.back().left + columns.back().width);
        const double room = options_.one_page ? std::numeric_limits<double>::infinity() : width - kMargin - columns_left_;
        return DrawLegend(pen, Legend(), {columns_left_, plot_bottom_ + kHeightOfScales + HeightOfMeasures() + kLegendBelow - 3}, room);
    }

    // Smaller where the page is not wide enough for it.
    void DrawTitle(Pen& pen, double room) const {
        if (options_.title.empty()) return;
        const double width = pen.WidthOf(options_.title, {kTitleSize, false, true});
        pen.Write({{kMargin, kMargin + kTitleSize}, options_.title, {kTitleSize * std::min(1.0, room / width), false, true}});
    }

    void DrawAxis(Pen& pen) const {
        const double x = columns_left_ - kGap;
        pen.Line({x, plot_top_}, {x, plot_bottom_});
        for (const SampleAxis::Tick& tick : axis_->Ticks()) {
            pen.Line({x - (tick.number.empty() ? kShortTick : kTick), tick.y}, {x, tick.y});
            WriteBesideAxis(pen, tick.y, tick.number, kNumberSize);
        }
        for (std::size_t sample = 0; sample < core_.samples.size(); ++sample)
            pen.Line({x, axis_->Y(sample)}, {x + kShortTick, axis_->Y(sample)});
        pen.Write({{kMargin + kNameSize, (plot_top_ + plot_bottom_) / 2}, axis_->Title(), kNames, PageText::Anchor::Middle, 90});
    }

    void WriteBesideAxis(Pen& pen, double y, const std::string& text, double size) const {
        constexpr double kHalfOfADigit = 0.36;  // of the size of the letters
        pen.Write({{columns_left_ - kGap - kTick - 1, y + kHalfOfADigit * size}, text, {size}, PageText::Anchor::End});
    }

    void DrawColumn(Pen& pen, const PlacedColumn& placed, Scales& scales) const {
        const Column& column = content_.columns[placed.column];
        const ColumnPlace place{*axis_, columns_left_ + placed.left, placed.width, arrangement_.points_per_percent};
        column.draw(pen, place);
        pen.Line({place.left, plot_top_}, {place.left, plot_bottom_});
        WriteName(pen, column, place.left);
        if (column.scale) scales.Draw(column.scale(place), place.left);
        const PagePoint below = {place.left + place.width / 2, plot_bottom_ + kHeightOfScales + kHeightOfMeasures - 1};
        pen.Write({below, column.measure, kNumbers, PageText::Anchor::Middle});
    }

    void WriteName(Pen& pen, const Column& column, double left) const {
        constexpr double kHeightOfLetters = 0.73;  // of their size
        const bool upright = options_.name_angle == 90;
        const PagePoint at{left + (upright ? kHeightOfLetters * kNameSize : kNameSize / 2), plot_top_ - kGap / 2};
        pen.Write({at, column.name, NameLetters(column), PageText::Anchor::Start, options_.name_angle});
    }

    // Names that lean have theirs further to the right. A heading ends where the next one begins or a name stands that is as high, at the
    // latest at `page_end`.
    std::vector<Heading> Headings(const std::vector<PlacedColumn>& columns, double page_end) const {
        const double begin = columns_left_ + (options_.name_angle == 90 ? 0 : HeightOfTaxa());
        std::vector<Heading> headings;
        std::optional<Group> last;
        for (const PlacedColumn& placed : columns) {
            const std::optional<Group> group = content_.columns[placed.column].group;
            const double left = begin + placed.left;
            const bool is_next = group && group != last;
            if (!headings.empty() && (is_next || (!group && IsAsHighAsHeadings(placed.column))))
                headings.back().end = std::min(headings.back().end, left);
            if (is_next) headings.push_back({NameOf(*group), ColourOf(*group), left, left, page_end});
            if (group) headings.back().right = std::min(left + std::max(placed.width, kNameSize), page_end);
            if (group) last = group;
        }
        return headings;
    }

    bool IsAsHighAsHeadings(std::size_t column) const { return NameRoom{{names_.widths[column]}, names_.angle}.Height() > HeightOfTaxa(); }

    std::string NameOf(Group group) const { return GroupName(core_, group, options_.left_out); }

    // Each line, and the names that have room.
    void DrawZones(Pen& pen, double right) const {
        constexpr double kHalfOfALetter = 0.3 * kNameSize;
        double below = 0;
        for (const Zone& zone : content_.zones->zones) {
            const double top = zone.first == 0 ? plot_top_ : axis_->Boundary(zone.first);
            const double bottom = zone.end == core_.samples.size() ? plot_bottom_ : axis_->Boundary(zone.end);
            if (zone.first > 0) pen.DashedLine({columns_left_ - kGap, top}, {right + ZonesWidth(), top});
            const double middle = (top + bottom) / 2;
            if (middle - kNameSize / 2 < below) continue;
            pen.Write({{right + kGap, middle + kHalfOfALetter}, zone.name, kNames});
            below = middle + kNameSize / 2;
        }
    }

    std::string NameOfSum() const {
        if (options_.basis != kBasisAll) return core_.subtotals[options_.basis - kBasisSubtotal1];
        return options_.left_out.empty() ? "all grains" : "all grains, " + options_.left_out + " among them";
    }

    std::vector<LegendEntry> Legend() const {
        std::vector<LegendEntry> entries = {{"% of " + NameOfSum(), {}}};
        if (content_.has_summary && (options_.basis != kBasisAll || !options_.left_out.empty()))
            entries.push_back({"Summary: % of all grains" + (options_.left_out.empty() ? "" : " but " + options_.left_out), {}});
        if (options_.exaggeration > 0) entries.push_back({"pale: × " + RoundNumberText(options_.exaggeration), {}});
        for (const Group group : kGroups)
            if (AnyColumn([group](const Column& column) { return column.group == group; }))
                entries.push_back({NameOf(group), ColourOf(group)});
        return entries;
    }

    template <class Is>
    bool AnyColumn(Is is) const {
        return std::any_of(content_.columns.begin(), content_.columns.end(), is);
    }

    const Core& core_;
    const FigureOptions& options_;
    const FontMetrics& metrics_;
    Content content_;
    NameRoom names_;
    double plot_top_ = 0, plot_bottom_ = 0, columns_left_ = 0;
    std::optional<SampleAxis> axis_;
    Arrangement arrangement_;
};
}  // namespace

std::vector<Page> DrawFigure(const Core& core, const FigureOptions& options, const FontMetrics& metrics) {
    return Figure(core, options, metrics).Pages();
}

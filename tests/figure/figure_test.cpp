// The figure as it is laid out, with letters of a fixed width.
#include "figure/drawing/figure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "figure/drawing/curves.h"
#include "figure/drawing/groups.h"
#include "figure/drawing/pen.h"
#include "figure/drawn_items.h"
#include "figure/fault_of.h"
#include "figure/fixed_metrics.h"
#include "figure/small_core.h"

namespace {
using Names = std::vector<std::string>;

Core TestCore() {
    Core core = SmallCore();
    core.taxa[0].italic = core.taxa[1].italic = true;
    core.trees[kBasisAll] = {{0, 1.0 / 3, 0.1, 1}, {1.0 / 6, 1, 0.5, 2}};
    return core;
}

std::vector<Page> Pages(const Core& core, const FigureOptions& options) {
    return DrawFigure(core, options, FixedMetrics());
}

Page Draw(const FigureOptions& options = {}) {
    return Pages(TestCore(), options).front();
}

Page DrawWith(const std::function<void(FigureOptions&)>& set) {
    FigureOptions options;
    set(options);
    return Draw(options);
}

// All parts of this colour.
std::vector<Outline> AreasOf(const Page& page, Colour colour) {
    std::vector<Outline> parts;
    for (const PageArea& area : Drawn<PageArea>(page))
        if (area.fill == colour) parts.insert(parts.end(), area.parts.begin(), area.parts.end());
    return parts;
}

double Left(const Outline& area) {
    return std::min_element(area.begin(), area.end(), [](auto a, auto b) { return a.x < b.x; })->x;
}
double Right(const Outline& area) {
    return std::max_element(area.begin(), area.end(), [](auto a, auto b) { return a.x < b.x; })->x;
}
double MiddleY(const Outline& area) {
    return (area.front().y + area[2].y) / 2;
}

// Of the percentages: from the numbers 0 and 20 below the first column.
double PointsPerPercent(const Page& page) {
    const PagePoint zero = TextsThatSay(page, "0").front().at;
    double nearest = page.width;
    for (const PageText& twenty : TextsThatSay(page, "20"))
        if (twenty.at.y == zero.y && twenty.at.x > zero.x) nearest = std::min(nearest, twenty.at.x);
    return (nearest - zero.x) / 20;
}

// The texts that are no numbers, from left to right: names and titles above the columns.
Names NamesFromTheLeft(const Page& page) {
    std::vector<PageText> texts;
    for (const PageText& text : Drawn<PageText>(page))
        if (text.angle != 0 && text.text != "Depth (cm)") texts.push_back(text);
    std::sort(texts.begin(), texts.end(), [](const PageText& a, const PageText& b) { return a.at.x < b.at.x; });
    Names names;
    for (const PageText& text : texts) names.push_back(text.text);
    return names;
}

struct Place {
    double left, top, right, bottom;
    bool Meets(const Place& other) const { return left < other.right && right > other.left && top < other.bottom && bottom > other.top; }
};

// Of a text that lies or stands.
Place PlaceOf(const PageText& text) {
    constexpr double kAbove = 0.73;  // the base line, of the size
    const double width = FixedMetrics().WidthOf(text.text, text.letters), height = kAbove * text.letters.size;
    const double before = text.anchor == PageText::Anchor::Start ? 0 : text.anchor == PageText::Anchor::Middle ? width / 2 : width;
    if (text.angle == 90) return {text.at.x - height, text.at.y + before - width, text.at.x, text.at.y + before};
    return {text.at.x - before, text.at.y - height, text.at.x - before + width, text.at.y};
}

// From an axis to a value that stands alone, in points.
std::vector<double> LoneLines(const Page& page, Colour colour) {
    std::vector<double> lengths;
    for (const PageLine& line : Drawn<PageLine>(page))
        if (line.width == kRim && line.points.size() == 2 && line.colour == colour) {
            EXPECT_EQ(line.points[0].y, line.points[1].y);
            lengths.push_back(line.points[1].x - line.points[0].x);
        }
    return lengths;
}

Core CoreWithAnEmptySample() {
    Core core = TestCore();
    core.samples[1].counts.assign(core.taxa.size(), 0);
    core.samples[1].sums.fill(0);
    core.samples[1].shares[kBasisAll].clear();
    return core;
}

// Short names of taxa, a long one of their last group.
Core CoreWithALongHeading() {
    Core core = TestCore();
    core.subtotals[1] = "Herbs of the open land and of the shore";
    core.taxa[1].name = "Bet";
    core.taxa[2].name = "Poa";
    return core;
}

TEST(FigureTest, BarsAreAsLongAsTheirPercentages) {
    const Page page = DrawWith([](FigureOptions& options) { options.summary = false; });
    const std::vector<Outline> trees = AreasOf(page, ColourOf(Group::First));
    ASSERT_EQ(trees.size(), 5u + 1) << "Pinus in two samples, Betula in three, and the square of the legend";
    const double scale = PointsPerPercent(page);
    EXPECT_NEAR(Right(trees[0]) - Left(trees[0]), 30 * scale, 1e-6);
    EXPECT_NEAR(Right(trees[1]) - Left(trees[1]), 100 * 10 / 60.0 * scale, 1e-6);
    EXPECT_NEAR(Right(trees[4]) - Left(trees[4]), 100 * 50 / 75.0 * scale, 1e-6);
    EXPECT_NEAR((MiddleY(trees[4]) - MiddleY(trees[3])) / (MiddleY(trees[3]) - MiddleY(trees[2])), 2, 1e-6) << "depths 10, 20, 40";
    EXPECT_EQ(Left(trees[0]), Left(trees[1]));
}

TEST(FigureTest, PercentagesAreOfTheBasis) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.summary = false;
        options.basis = kBasisSubtotal1;
    });
    const Outline pinus = AreasOf(page, ColourOf(Group::First))[0];
    EXPECT_NEAR(Right(pinus) - Left(pinus), 75 * PointsPerPercent(page), 1e-6);
    EXPECT_TRUE(Says(page, "% of Trees"));
}

TEST(FigureTest, TheLegendTellsWhatTheSummaryIsOf) {
    const auto draw = [](Basis basis, const char* left_out) {
        return DrawWith([&](FigureOptions& options) {
            options.basis = basis;
            options.left_out = left_out;
            options.tree = TreeKind::None;
        });
    };
    EXPECT_TRUE(Says(draw(kBasisSubtotal1, ""), "Summary: % of all grains"));
    EXPECT_TRUE(Says(draw(kBasisAll, "Lycopodium"), "Summary: % of all grains but Lycopodium"));
    EXPECT_FALSE(Says(draw(kBasisAll, ""), "Summary: % of all grains")) << "as all other columns";
}

TEST(FigureTest, ColumnsStandAsInTheSheetWithTheTreeAtTheRight) {
    EXPECT_EQ(NamesFromTheLeft(Draw()), (Names{"Pinus", "Betula", "Poaceae", "Lycopodium", "Summary", "Cluster tree"}));
}

TEST(FigureTest, AnOrderPutsItsTaxaFirst) {
    const Page page = DrawWith([](FigureOptions& options) { options.order = {"Poaceae", "Betula"}; });
    EXPECT_EQ(NamesFromTheLeft(page), (Names{"Poaceae", "Betula", "Pinus", "Lycopodium", "Summary", "Cluster tree"}));
}

TEST(FigureTest, WhatIsLeftOutIsNoColumnAndInNoGroup) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.left_out = "Lycopodium";
        options.tree = TreeKind::None;
    });
    EXPECT_EQ(NamesFromTheLeft(page), (Names{"Pinus", "Betula", "Poaceae", "Summary"}));
    EXPECT_FALSE(Says(page, "Others"));
    EXPECT_TRUE(Says(page, "% of all grains, Lycopodium among them"));
}

TEST(FigureTest, RareTaxaAreLeftOutOrDots) {
    FigureOptions options;
    options.least_percent = 30.5;
    options.summary = false;
    options.tree = TreeKind::None;
    EXPECT_EQ(NamesFromTheLeft(Draw(options)), (Names{"Betula", "Lycopodium"}));
    EXPECT_TRUE(Drawn<PageDot>(Draw(options)).empty());
    options.rare_as_dots = true;
    EXPECT_EQ(NamesFromTheLeft(Draw(options)), (Names{"Pinus", "Betula", "Poaceae", "Lycopodium"}));
    EXPECT_EQ(Drawn<PageDot>(Draw(options)).size(), 3u) << "Pinus in two samples, Poaceae in one";
}

TEST(FigureTest, NamesAreInItalicsByTheRuleOrAsWished) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.upright = {"Betula"};
        options.italic = {"Lycopodium"};
    });
    for (const char* name : {"Pinus", "Lycopodium"}) EXPECT_TRUE(TextsThatSay(page, name)[0].letters.italic) << name;
    for (const char* name : {"Betula", "Poaceae", "Summary"}) EXPECT_FALSE(TextsThatSay(page, name)[0].letters.italic) << name;
}

TEST(FigureTest, NamesRiseByTheirAngle) {
    EXPECT_EQ(TextsThatSay(Draw(), "Pinus")[0].angle, 90);
    EXPECT_EQ(TextsThatSay(DrawWith([](FigureOptions& options) { options.name_angle = 45; }), "Pinus")[0].angle, 45);
}

TEST(FigureTest, ASilhouetteIsFilledFromItsAxis) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.style = CurveStyle::Silhouette;
        options.summary = false;
    });
    const std::vector<Outline> trees = AreasOf(page, ColourOf(Group::First));
    ASSERT_EQ(trees.size(), 2u + 1);
    ASSERT_EQ(trees[0].size(), 5u) << "three samples and two corners";
    EXPECT_EQ(trees[0].front().x, trees[0].back().x);
    EXPECT_NEAR(trees[0][1].x - trees[0][0].x, 30 * PointsPerPercent(page), 1e-6);
}

TEST(FigureTest, DotsMarkWhatIsAboveHalfAPercent) {
    Core core = TestCore();
    core.samples[0].shares[kBasisAll] = {0.3, 0.005, 0.0051, 0.6};
    FigureOptions options;
    options.style = CurveStyle::Dot;
    const Page page = Draw(options);
    const std::vector<PageLine> lines = Drawn<PageLine>(page);
    EXPECT_EQ(Drawn<PageDot>(page).size(), 9u);
    for (const PageDot& dot : Drawn<PageDot>(page)) {
        EXPECT_GE(dot.radius, 2);
        EXPECT_TRUE(std::ranges::any_of(lines, [&](const PageLine& line) { return line.points.back() == dot.centre; })) << "from its axis";
    }
    EXPECT_EQ(Drawn<PageDot>(Pages(core, options)[0]).size(), 8u) << "as in the counter";
}

TEST(FigureTest, ACurveBreaksAtASampleWithoutData) {
    Core core = TestCore();
    core.samples[1].shares[kBasisAll].clear();
    FigureOptions options;
    options.style = CurveStyle::Curve;
    options.summary = false;
    options.tree = TreeKind::None;
    const auto curves = [](const Page& page) {
        const std::vector<PageLine> lines = Drawn<PageLine>(page);
        return std::count_if(lines.begin(), lines.end(), [](const PageLine& line) { return line.points.size() == 3; });
    };
    EXPECT_EQ(curves(Draw(options)), 4);
    EXPECT_EQ(curves(Pages(core, options)[0]), 0);
}

TEST(FigureTest, AValueWithoutNeighboursHasALine) {
    FigureOptions options;
    options.summary = false;
    options.tree = TreeKind::None;
    for (const CurveStyle style : {CurveStyle::Curve, CurveStyle::Silhouette}) {
        options.style = style;
        const Page page = Pages(CoreWithAnEmptySample(), options)[0];
        const double scale = PointsPerPercent(page);
        const std::vector<double> trees = LoneLines(page, style == CurveStyle::Silhouette ? ColourOf(Group::First) : Colour{0, 94, 69});
        ASSERT_EQ(trees.size(), 3u) << "Pinus has none of length 0";
        EXPECT_NEAR(trees[0], 30 * scale, 1e-6);
        EXPECT_NEAR(trees[1], 10 * scale, 1e-6);
        EXPECT_NEAR(trees[2], 200 / 3.0 * scale, 1e-6);
    }
    options.exaggeration = 2;
    const Page page = Pages(CoreWithAnEmptySample(), options)[0];
    const std::vector<double> pale = LoneLines(page, PaleColourOf(Group::First));
    ASSERT_EQ(pale.size(), 3u);
    EXPECT_NEAR(pale[0], 30 * PointsPerPercent(page), 1e-6) << "Pinus, as far as its column goes";
    EXPECT_NEAR(pale[1], 20 * PointsPerPercent(page), 1e-6);
    EXPECT_NEAR(pale[2], 70 * PointsPerPercent(page), 1e-6);
}

TEST(FigureTest, ASampleWithoutNeighboursIsInTheSummary) {
    FigureOptions options;
    options.tree = TreeKind::None;
    const Page page = Pages(CoreWithAnEmptySample(), options)[0];
    const double scale = PointsPerPercent(page);
    const std::vector<double> trees = LoneLines(page, ColourOf(Group::First)), herbs = LoneLines(page, ColourOf(Group::Second));
    ASSERT_EQ(trees.size(), 2u);
    EXPECT_NEAR(trees[0], 40 * scale, 1e-6);
    EXPECT_NEAR(trees[1], 200 / 3.0 * scale, 1e-6);
    ASSERT_EQ(herbs.size(), 1u);
    EXPECT_NEAR(herbs[0], 10 * scale, 1e-6);
}

TEST(FigureTest, AnExaggeratedCurveLiesBehindAndEndsWithItsColumn) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.exaggeration = 2;
        options.summary = false;
    });
    const auto pale = AreasOf(page, PaleColourOf(Group::First));
    const auto bars = AreasOf(page, ColourOf(Group::First));
    ASSERT_EQ(pale.size(), 2u);
    EXPECT_NEAR(pale[0][1].x - Left(pale[0]), 30 * PointsPerPercent(page), 1e-6) << "of twice 30, as far as the column goes";
    EXPECT_NEAR(Right(pale[0]), Right(bars[0]), 1e-6);
    EXPECT_TRUE(Says(page, "pale: × 2"));
    const auto first = [&](Colour colour) {
        return std::find_if(page.items.begin(), page.items.end(), [colour](const PageItem& item) {
            const PageArea* const area = std::get_if<PageArea>(&item);
            return area && area->fill == colour;
        });
    };
    EXPECT_LT(first(PaleColourOf(Group::First)) - page.items.begin(), first(ColourOf(Group::First)) - page.items.begin());
}

TEST(FigureTest, TheSummaryAddsUpToTheWhole) {
    const Page page = DrawWith([](FigureOptions& options) { options.left_out = "Lycopodium"; });
    const Outline herbs = AreasOf(page, ColourOf(Group::Second)).at(1);  // after the bar of Poaceae
    const Outline trees = AreasOf(page, ColourOf(Group::First)).at(5);
    const double scale = PointsPerPercent(page);
    EXPECT_NEAR(Right(herbs) - Left(trees), 100 * scale, 1e-6);
    EXPECT_NEAR(trees[3 + 2].x - Left(trees), 80 * scale, 1e-6) << "the uppermost sample has 40 trees and 10 herbs";
}

TEST(FigureTest, OneGroupHasNoSummary) {
    Core core = TestCore();
    for (Taxon& taxon : core.taxa) taxon.in_subtotal[0] = true;
    EXPECT_FALSE(Says(Pages(core, {})[0], "Summary"));
}

TEST(FigureTest, TheTreeJoinsTheSamplesWhereTheyStand) {
    const Page page = DrawWith([](FigureOptions& options) { options.summary = false; });
    std::vector<PageLine> brackets = Drawn<PageLine>(page);
    std::erase_if(brackets, [](const PageLine& line) { return line.points.size() != 4; });
    ASSERT_EQ(brackets.size(), 2u);
    const auto bars = AreasOf(page, ColourOf(Group::First));  // Betula's are in all samples
    EXPECT_NEAR(brackets[0].points[0].y, MiddleY(bars[2]), 1e-6);
    EXPECT_NEAR(brackets[0].points[3].y, MiddleY(bars[3]), 1e-6);
    EXPECT_NEAR(brackets[1].points[0].y, (MiddleY(bars[2]) + MiddleY(bars[3])) / 2, 1e-6);
    EXPECT_NEAR(brackets[1].points[3].y, MiddleY(bars[4]), 1e-6);
    const double left = brackets[0].points[0].x;
    EXPECT_NEAR((brackets[0].points[1].x - left) / (brackets[1].points[1].x - left), 0.1 / 0.5, 1e-6);
}

TEST(FigureTest, TheTreesAxisTellsItsMeasure) {
    for (const auto& [kind, measure] :
         {std::pair(TreeKind::Counter, "Sum of squared differences"), std::pair(TreeKind::SumOfSquares, "Total sum of squares")}) {
        const Page page = DrawWith([kind](FigureOptions& options) { options.tree = kind; });
        const std::vector<PageText> said = TextsThatSay(page, measure);
        ASSERT_EQ(said.size(), 1u) << measure;
        EXPECT_GT(PlaceOf(said[0]).top, PlaceOf(TextsThatSay(page, "0").front()).bottom) << "below the numbers";
        EXPECT_GT(said[0].at.x, TextsThatSay(page, "Cluster tree").at(0).at.x);
    }
}

TEST(FigureTest, ZonesGoAcrossWithTheirNames) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.has_zones = true;
        options.zones.zones = 2;
        options.summary = false;
    });
    std::vector<PageLine> dashed = Drawn<PageLine>(page);
    std::erase_if(dashed, [](const PageLine& line) { return !line.dashed; });
    ASSERT_EQ(dashed.size(), 1u);
    const auto bars = AreasOf(page, ColourOf(Group::First));
    EXPECT_NEAR(dashed[0].points[0].y, (MiddleY(bars[2]) + MiddleY(bars[3])) / 2, 1e-6) << "half-way between two samples";
    ASSERT_TRUE(Says(page, "LPAZ-1") && Says(page, "LPAZ-2"));
    EXPECT_GT(TextsThatSay(page, "LPAZ-1")[0].at.y, dashed[0].points[0].y);
    EXPECT_LT(TextsThatSay(page, "LPAZ-2")[0].at.y, dashed[0].points[0].y);
}

TEST(FigureTest, NamesOfThinZonesDoNotTouch) {
    Core core = TestCore();
    for (int i = 0; i < 3; ++i) core.samples.push_back(SmallSample(40.01 + i / 100.0, {i, 50, 0, 25 + i}, {}, core.taxa));
    FigureOptions options;
    options.has_zones = true;
    options.zones.zones = 6;
    options.tree = TreeKind::None;
    double below = 0;
    for (const PageText& text : Drawn<PageText>(Pages(core, options)[0])) {
        if (!text.text.starts_with("LPAZ-")) continue;
        EXPECT_GE(PlaceOf(text).top, below);
        below = PlaceOf(text).bottom;
    }
    EXPECT_GT(below, 0);
}

TEST(FigureTest, TheTreeOfTheSumOfSquaresTakesNoZones) {
    const Page page = DrawWith([](FigureOptions& options) { options.tree = TreeKind::SumOfSquares; });
    EXPECT_TRUE(Says(page, "Cluster tree"));
    EXPECT_FALSE(Says(page, "LPAZ-1"));
}

TEST(FigureTest, FurtherColumnsComeWhenAskedFor) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.left_out = "Lycopodium";
        options.sums = options.taxa = options.richness = true;
        options.concentration = MarkerOptions{"Lycopodium", "Tablets*1000", "1", ""};
        options.tree = TreeKind::None;
    });
    EXPECT_EQ(NamesFromTheLeft(page), (Names{"Pinus", "Betula", "Poaceae", "Summary", "Total concentration (grains/cm³)", "Sum (grains)",
                                             "Taxa found", "Taxa in 40 grains"}));
    const auto bars = AreasOf(page, kGrey);
    ASSERT_EQ(bars.size(), 12u);
    EXPECT_NEAR((Right(bars[3]) - Left(bars[3])) / (Right(bars[4]) - Left(bars[4])), 100.0 / 60, 1e-6) << "of the sums";
}

TEST(FigureTest, FurtherColumnsNameTheSubtotalTheyAreOf) {
    const auto draw = [](Basis basis) {
        return DrawWith([basis](FigureOptions& options) {
            options.basis = basis;
            options.left_out = "Lycopodium";
            options.sums = options.taxa = options.richness = true;
            options.concentration = MarkerOptions{"Lycopodium", "Tablets*1000", "1", ""};
            options.tree = TreeKind::None;
        });
    };
    const Page page = draw(kBasisSubtotal1);
    EXPECT_EQ(NamesFromTheLeft(page), (Names{"Pinus", "Betula", "Poaceae", "Summary", "Total concentration (grains/cm³)",
                                             "Sum of Trees (grains)", "Taxa found in Trees", "Taxa in 40 grains of Trees"}));
    const auto bars = AreasOf(page, kGrey), of_all = AreasOf(draw(kBasisAll), kGrey);
    ASSERT_EQ(bars.size(), 12u);
    EXPECT_NEAR((Right(bars[0]) - Left(bars[0])) / (Right(bars[1]) - Left(bars[1])), 0.5, 1e-6) << "50 / 50 and 40 / 20, herbs among them";
    for (int sample = 0; sample < 3; ++sample)
        EXPECT_NEAR(Right(bars[sample]) - Left(bars[sample]), Right(of_all[sample]) - Left(of_all[sample]), 1e-6);
}

TEST(FigureTest, LargeNumbersAreThousands) {
    const Page page = DrawWith([](FigureOptions& options) {
        options.left_out = "Lycopodium";
        options.concentration = MarkerOptions{"Lycopodium", "Tablets*20000", "1", ""};
    });
    EXPECT_TRUE(Says(page, "Total concentration (10³ grains/cm³)"));
}

TEST(FigureTest, NoNumberOrNameTouchesAnotherOrThePagesEdge) {
    for (const double width : {300.0, 400.0, 842.0, 2000.0})
        for (const Page& page : Pages(TestCore(), [&] {
                 FigureOptions options;
                 options.page_width = width;
                 options.title = "A core with a title that is far too long for a narrow page, as some are";
                 options.has_zones = options.sums = options.taxa = options.richness = true;
                 options.zones.zones = 2;
                 return options;
             }())) {
            const std::vector<PageText> texts = Drawn<PageText>(page);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                const Place place = PlaceOf(texts[i]);
                EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= page.width && place.bottom <= page.height) << texts[i].text;
                for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(place.Meets(PlaceOf(texts[j]))) << texts[i].text << ", " << texts[j].text;
            }
        }
}

TEST(FigureTest, ManyTaxaTakePagesOrOneThatIsWide) {
    Core core = TestCore();
    for (int i = 0; i < 130; ++i) {
        core.taxa.push_back(SmallTaxon("Herb", false, true));
        for (Sample& sample : core.samples) {
            sample.counts.push_back(1);
            sample.shares[kBasisAll].push_back(0.01);
        }
    }
    const std::vector<Page> pages = Pages(core, {});
    ASSERT_GT(pages.size(), 1u);
    for (const Page& page : pages) {
        EXPECT_EQ(page.width, 842);
        EXPECT_TRUE(Says(page, "Depth (cm)")) << "each can be read alone";
    }
    FigureOptions wide;
    wide.one_page = true;
    const std::vector<Page> one = Pages(core, wide);
    ASSERT_EQ(one.size(), 1u);
    EXPECT_GT(one[0].width, 842);
    EXPECT_EQ(TextsThatSay(one[0], "Herb").size(), 130u);
}

TEST(FigureTest, AWidePageIsAsWideAsItsLegend) {
    Core core = TestCore();
    for (Sample& sample : core.samples) sample.shares[kBasisAll] = {0.01, 0.01, 0.01, 0.01};
    FigureOptions options;
    options.one_page = true;
    options.summary = false;
    options.tree = TreeKind::None;
    options.left_out = "Lycopodium";
    const Page page = Pages(core, options)[0];
    for (const PageText& text : Drawn<PageText>(page)) EXPECT_LE(PlaceOf(text).right, page.width) << text.text;
}

TEST(FigureTest, GroupsThatStandTogetherHaveHeadings) {
    const auto bold = [](const Page& page) {
        Names names;
        for (const PageText& text : Drawn<PageText>(page))
            if (text.letters.bold) names.push_back(text.text);
        return names;
    };
    EXPECT_EQ(bold(Draw()), (Names{"Trees", "Herbs", "Others"}));
    EXPECT_TRUE(bold(DrawWith([](FigureOptions& options) { options.order = {"Pinus", "Poaceae"}; })).empty());
}

TEST(FigureTest, ASecondSubtotalThatLostTaxaToTheFirstIsNamedSo) {
    Core core = TestCore();
    core.taxa[1].in_subtotal[1] = true;
    FigureOptions options;
    options.page_width = 1500;
    const Page page = Pages(core, options)[0];
    EXPECT_EQ(TextsThatSay(page, "Other Herbs").size(), 2u) << "above its columns and in the legend";
    EXPECT_FALSE(Says(page, "Herbs"));
    options.left_out = "Betula";
    EXPECT_TRUE(Says(Pages(core, options)[0], "Herbs")) << "no other taxon is in both";
}

TEST(FigureTest, ALongHeadingEndsBeforeTheNextNameAndThePage) {
    for (const bool summary : {true, false}) {
        FigureOptions options;
        options.left_out = "Lycopodium";
        options.summary = summary;
        options.tree = TreeKind::None;
        options.page_width = 400;
        const Page page = Pages(CoreWithALongHeading(), options)[0];
        const std::vector<PageText> texts = Drawn<PageText>(page);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            EXPECT_LE(PlaceOf(texts[i]).right, page.width) << texts[i].text;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(PlaceOf(texts[i]).Meets(PlaceOf(texts[j]))) << texts[i].text << ", " << texts[j].text;
        }
    }
}

TEST(FigureTest, ALongHeadingStandsWhereItHasRoom) {
    FigureOptions options;
    options.left_out = "Lycopodium";
    options.tree = TreeKind::None;
    options.summary = false;
    options.page_width = 1000;
    const Core core = CoreWithALongHeading();
    EXPECT_EQ(TextsThatSay(Pages(core, options)[0], core.subtotals[1]).size(), 2u);
}

TEST(FigureTest, WhatTheCoreDoesNotHaveIsTold) {
    const auto fault = [](const std::function<void(FigureOptions&)>& set) { return FaultOf([&] { DrawWith(set); }); };
    EXPECT_EQ(fault([](FigureOptions& options) { options.left_out = "Lykopodium"; }),
              "no taxon named \"Lykopodium\" was counted: there is no such marker");
    EXPECT_NE(fault([](FigureOptions& options) { options.order = {"Abies"}; }), "");
    EXPECT_NE(fault([](FigureOptions& options) { options.upright = {"Abies"}; }), "");
    EXPECT_NE(fault([](FigureOptions& options) { options.italic = {"Abies"}; }), "");
    EXPECT_EQ(fault([](FigureOptions& options) { options.least_percent = 95.5; }), "no taxon reaches 95.5 %");
    EXPECT_EQ(fault([](FigureOptions& options) { options.page_height = 150; }),
              "the page is not high enough for the names and the samples");
    EXPECT_EQ(fault([](FigureOptions& options) { options.page_width = 120; }), "the page is not wide enough");
    Core core = TestCore();
    for (Sample& sample : core.samples) sample.sums[kBasisSubtotal2] = 0;
    FigureOptions options;
    options.basis = kBasisSubtotal2;
    EXPECT_EQ(FaultOf([&] { Pages(core, options); }), "no grain belongs to Herbs, which is to be 100 %");
}
}  // namespace

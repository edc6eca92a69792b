#include "program/figure_arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "platform/text.h"
#include "program/figure_jobs.h"
#include "program/figure_shell.h"

namespace {
constexpr int kBadInput = 2;
constexpr double kPointsPerMillimetre = 72 / 25.4;

constexpr const char* kExamples = R"(Examples:
  marlbrook-figure core.csv
      core.svg and core.pdf, and core_tables/ with the numbers, beside the sheet
  marlbrook-figure core.csv --style silhouette --exaggerate 10 --zones auto --basis subtotal-1 --min 1 --png 600
  marlbrook-figure core.csv --marker Lycopodium --added 'Tablets*18583' --volume 'Volume (cm3)' --concentration
  marlbrook-figure *.csv --output figures --no-tables)";

template <class T>
using Words = std::map<std::string, T>;

const Words<CurveStyle> kStyles = {{"bar", CurveStyle::Bar},
                                   {"curve", CurveStyle::Curve},
                                   {"silhouette", CurveStyle::Silhouette},
                                   {"dot", CurveStyle::Dot},
                                   {"bar-and-curve", CurveStyle::BarAndCurve}};
const Words<Basis> kBasesByWord = {
    {kBasisWords[kBasisAll], kBasisAll}, {kBasisWords[kBasisSubtotal1], kBasisSubtotal1}, {kBasisWords[kBasisSubtotal2], kBasisSubtotal2}};
const Words<TreeKind> kTrees = {{"counter", TreeKind::Counter}, {"grimm", TreeKind::SumOfSquares}, {"none", TreeKind::None}};

// What the command line says in words of its own, before it is made into options.
struct Raw {
    std::string style = "bar", basis = "all", tree = "counter", rare = "none";
    std::string zones, zone_names, page = "A4";
    std::vector<std::string> order, upright, italic;  // lists of names
    MarkerOptions marker;
    AccumulationOptions accumulation;
    bool concentration = false, proportions = false, no_summary = false, no_tables = false;
};

template <class T>
void AddWord(CLI::App& app, const std::string& name, std::string& word, const Words<T>& words, const std::string& text) {
    std::string list;
    for (const auto& entry : words) list += (list.empty() ? "" : "|") + entry.first;
    app.add_option(name, word, text + " (" + word + ")")->check(CLI::IsMember(words))->option_text(list)->take_last();
}

// The library's own check of a range lets NaN through.
CLI::Validator Between(double least, double most) {
    return CLI::Validator(
        [least, most](const std::string& text) {
            const std::optional<double> number = AsNumber(text);
            if (number && *number >= least && *number <= most) return std::string();
            return "takes a number from " + NumberText(least) + " to " + NumberText(most) + ", not " + text;
        },
        "");
}

void AddNumber(CLI::App& app, const std::string& name, double& number, CLI::Validator range, const std::string& kind,
               const std::string& text) {
    app.add_option(name, number, text)->check(std::move(range))->option_text(kind);
}

void AddNames(CLI::App& app, const std::string& name, std::vector<std::string>& lists, const std::string& text) {
    app.add_option(name, lists, text)->allow_extra_args(false)->option_text("NAME,...");
}

void AddText(CLI::App& app, const std::string& name, std::string& value, const std::string& kind, const std::string& text) {
    app.add_option(name, value, text)->option_text(kind)->take_last();
}

void AddDrawing(CLI::App& app, FigureArguments& arguments, Raw& raw) {
    FigureOptions& figure = arguments.figure;
    AddWord(app, "--style", raw.style, kStyles, "how percentages are drawn");
    AddNumber(app, "--exaggerate", figure.exaggeration, Between(1, 1000), "TIMES", "a pale curve behind, so many times as wide");
    AddNames(app, "--order", raw.order, "the taxa that come first; a comma in a name is \\,");
    AddNumber(app, "--min", figure.least_percent, Between(0, 100), "PERCENT", "leave out the taxa that never reach it");
    app.add_option("--rare", raw.rare, "draw those as dots")->check(CLI::IsMember({"dots", "none"}))->option_text("dots");
    AddNames(app, "--upright", raw.upright, "names not to be set in italics");
    AddNames(app, "--italic", raw.italic, "names to be set in italics");
    app.add_option("--names", figure.name_angle, "degrees by which names rise (90)")->check(CLI::IsMember({45, 90}))->option_text("45|90");
    app.add_flag("--no-summary", raw.no_summary, "without the column of the groups");
    AddText(app, "--title", figure.title, "TEXT", "above the figure");
    AddText(app, "--page", raw.page, "SIZE", "of the PDF: A4, A4-upright or millimetres, 297x210 (A4)");
    app.add_flag("--wide", figure.one_page, "PDF: one page, as wide as it takes, in place of several");
    AddText(app, "--font", arguments.font, "NAME", std::string("of the letters (") + kUsualFont + ")");
    app.add_option("--png", arguments.png, "a picture too, of so many dots per inch")->check(CLI::Range(20, 2400))->option_text("DPI");
}

void AddSamples(CLI::App& app, FigureArguments& arguments, Raw& raw) {
    FigureOptions& figure = arguments.figure;
    AddWord(app, "--basis", raw.basis, kBasesByWord, "what is 100 %");
    AddText(app, "--age", figure.age, "ROW", "of Additional info: the axis shows ages in place of depths");
    AddText(app, "--depth-unit", figure.depth_unit, "UNIT", "of the names of the samples (cm)");
    AddWord(app, "--tree", raw.tree, kTrees, "the counter's tree, one by the incremental sum of squares, or none");
    AddText(app, "--zones", raw.zones, "N|auto", "zones by the incremental sum of squares: so many, or as many as the broken stick leaves");
    AddText(app, "--zone-names", raw.zone_names, "TEXT", "before their numbers (LPAZ-)");
    app.add_flag("--proportions", raw.proportions, "zones by the proportions, not by their square roots");
}

void AddColumns(CLI::App& app, FigureArguments& arguments, Raw& raw) {
    FigureOptions& figure = arguments.figure;
    app.add_flag("--sums", figure.sums, "a column of the grains in the sum");
    app.add_flag("--taxa", figure.taxa, "a column of the taxa found");
    app.add_flag("--richness", figure.richness, "a column of the taxa in as many grains as the smallest sum has");
    app.add_flag("--concentration", raw.concentration, "a column of the concentration of all taxa; takes --marker");
    AddText(app, "--marker", raw.marker.taxon, "NAME", "the taxon that was added to the samples: no column of its own");
    AddText(app, "--added", raw.marker.added, "TABLETS*MARKERS", "a row or a number each; 2*18583±370 with their deviation");
    AddText(app, "--volume", raw.marker.volume, "ROW", "of Additional info, or a number: cm3 of a sample");
    AddText(app, "--weight", raw.marker.weight, "ROW", "the same in g");
    AddText(app, "--rate", raw.accumulation.rate, "ROW", "cm/yr, or g/(cm2 yr) with --weight: influx in the tables, which --age gives too");
}

void AddFiles(CLI::App& app, FigureArguments& arguments, Raw& raw) {
    app.add_option("SHEET", arguments.sheets, "sheets of counts, .csv")->required()->option_text("...");
    AddText(app, "--output", arguments.folder, "FOLDER", "where the files go (beside the sheet)");
    app.add_flag("--no-tables", raw.no_tables, "the figure alone");
    app.add_flag("--r", arguments.tables.scripts.r, "an R script too that draws from the tables");
    app.add_flag("--python", arguments.tables.scripts.python, "the same in Python");
}

// Of "Pinus\, Haploxylon, Betula": a comma parts two names unless it has the mark of one that belongs to its name.
void AddNamesOf(const std::string& list, std::vector<std::string>& names) {
    std::string name;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool is_marked = list[i] == '\\' && i + 1 < list.size() && list[i + 1] == ',';
        if (is_marked) ++i;
        if (list[i] == ',' && !is_marked)
            names.push_back(std::exchange(name, ""));
        else
            name += list[i];
    }
    names.push_back(name);
}

std::vector<std::string> NamesOf(const std::vector<std::string>& lists) {
    std::vector<std::string> names;
    for (const std::string& list : lists) AddNamesOf(list, names);
    for (std::string& name : names) CLI::detail::trim(name);
    return names;
}

std::optional<std::size_t> NumberOfZones(const std::string& text) {
    if (text == "auto") return std::nullopt;
    std::size_t zones = 0;
    const char* const end = text.data() + text.size();
    const auto [read, error] = std::from_chars(text.data(), end, zones);
    if (error != std::errc() || read != end || zones == 0) throw CLI::ValidationError("--zones", "takes a number of zones or auto");
    return zones;
}

void ReadPage(const std::string& text, FigureOptions& figure) {
    if (text == "A4") return;
    if (text == "A4-upright") {
        std::swap(figure.page_width, figure.page_height);
        return;
    }
    constexpr double kLeast = 50, kMost = 5000;  // millimetres
    const std::size_t cross = std::min(text.find('x'), text.size());
    const std::optional<double> width = AsNumber(text.substr(0, cross)), height = AsNumber(text.substr(std::min(cross + 1, text.size())));
    if (!width || !height || std::min(*width, *height) < kLeast || std::max(*width, *height) > kMost)
        throw CLI::ValidationError("--page", "takes A4, A4-upright or millimetres such as 297x210, 50 to 5000 each");
    figure.page_width = *width * kPointsPerMillimetre;
    figure.page_height = *height * kPointsPerMillimetre;
}

// What the marker's amounts alone make use of.
void RefuseWithoutAmounts(const Raw& raw) {
    const std::pair<const char*, bool> given[] = {{"--concentration", raw.concentration},
                                                  {"--volume", !raw.marker.volume.empty()},
                                                  {"--weight", !raw.marker.weight.empty()},
                                                  {"--rate", !raw.accumulation.rate.empty()}};
    for (const auto& [option, is_given] : given)
        if (is_given) throw CLI::ValidationError(option, "takes --marker and --added");
}

void TakeUpMarker(const Raw& raw, FigureArguments& arguments) {
    const bool has_amounts = !raw.marker.added.empty();
    if (has_amounts && raw.marker.taxon.empty()) throw CLI::ValidationError("--added", "takes --marker");
    if (!has_amounts) RefuseWithoutAmounts(raw);
    arguments.figure.left_out = raw.marker.taxon;
    if (!has_amounts) return;
    arguments.tables.marker = raw.marker;
    if (raw.concentration) arguments.figure.concentration = raw.marker;
    AccumulationOptions accumulation = raw.accumulation;
    if (accumulation.rate.empty()) accumulation.age = arguments.figure.age;
    if (!accumulation.rate.empty() || !accumulation.age.empty()) arguments.tables.accumulation = accumulation;
}

void TakeUpZones(const Raw& raw, FigureArguments& arguments) {
    ZoneOptions zones;
    zones.basis = arguments.figure.basis;
    zones.left_out = arguments.figure.left_out;
    zones.square_roots = !raw.proportions;
    if (!raw.zone_names.empty()) zones.prefix = raw.zone_names;
    if (!raw.zones.empty()) zones.zones = NumberOfZones(raw.zones);
    arguments.tables.zones = zones;
    arguments.figure.zones = zones;
    arguments.figure.has_zones = !raw.zones.empty();
}

void TakeUpTables(const Raw& raw, FigureArguments& arguments) {
    const FigureOptions& figure = arguments.figure;
    TableOptions& tables = arguments.tables;
    arguments.has_tables = !raw.no_tables;
    if (raw.no_tables && (tables.scripts.r || tables.scripts.python))
        throw CLI::ValidationError(tables.scripts.r ? "--r" : "--python", "draws from the tables, so it does not go with --no-tables");
    tables.basis = figure.basis;
    tables.age = figure.age;
    tables.depth_unit = figure.depth_unit;
    tables.scripts.by_age = !figure.age.empty();
    tables.scripts.title = figure.title;
    tables.scripts.style = raw.style;
    tables.scripts.exaggerate = figure.exaggeration;
    tables.scripts.tree = raw.tree;
    tables.scripts.zones = figure.has_zones;
}

void TakeUp(const Raw& raw, FigureArguments& arguments) {
    ReadPage(raw.page, arguments.figure);
    arguments.figure.style = kStyles.at(raw.style);
    arguments.figure.basis = kBasesByWord.at(raw.basis);
    arguments.figure.tree = kTrees.at(raw.tree);
    arguments.figure.rare_as_dots = raw.rare == "dots";
    arguments.figure.summary = !raw.no_summary;
    arguments.figure.order = NamesOf(raw.order);
    arguments.figure.upright = NamesOf(raw.upright);
    arguments.figure.italic = NamesOf(raw.italic);
    TakeUpMarker(raw, arguments);
    TakeUpZones(raw, arguments);
    TakeUpTables(raw, arguments);
}
}  // namespace

std::optional<FigureArguments> ReadFigureArguments(std::vector<std::string> words, int& status) {
    CLI::App app("The figure and the tables of a counted core, from the sheet of the counter.", "marlbrook-figure");
    FigureArguments arguments;
    Raw raw;
    app.footer(kExamples);
    app.allow_windows_style_options(false);  // options are written alike on every system
    app.set_version_flag("--version", "marlbrook-figure " MARLBROOK_VERSION);
    AddFiles(app, arguments, raw);
    AddDrawing(app, arguments, raw);
    AddSamples(app, arguments, raw);
    AddColumns(app, arguments, raw);
    try {
        std::ranges::reverse(words);  // as the library wants them
        app.parse(words);
        arguments.sheets = FilesOf(arguments.sheets);
        TakeUp(raw, arguments);
        return arguments;
    } catch (const CLI::Success& done) {
        status = app.exit(done);
    } catch (const CLI::Error& fault) {
        TellFault(std::string(fault.what()) + " (--help tells what there is)");
        status = kBadInput;
    }
    return std::nullopt;
}

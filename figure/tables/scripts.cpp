#include "figure/tables/scripts.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

#include "figure/sheet/fault.h"
#include "figure/tables/sample_cells.h"
#include "platform/encoding.h"
#include "platform/text.h"

namespace {
std::string InCode(char32_t letter) {
    if (letter == 0) return "";
    if (letter == '"' || letter == '\\') return {'\\', static_cast<char>(letter)};
    if (letter >= ' ' && letter < 0x7F) return {static_cast<char>(letter)};
    char code[16];
    std::snprintf(code, sizeof code, letter > 0xFFFF ? "\\U%08X" : "\\u%04X", static_cast<unsigned>(letter));
    return code;
}

std::vector<std::string> DrawnTaxa(const Core& core, const TableOptions& options) {
    std::vector<std::string> names = options.scripts.taxa;
    if (names.empty()) std::ranges::transform(core.taxa, std::back_inserter(names), &Taxon::name);
    for (const std::string& name : names)
        if (std::ranges::count(core.taxa, name, &Taxon::name) > 1)
            throw FigureFault("a script knows the taxa by their names, and more than one is named \"" + name + "\"");
    return names;
}

// "Pinus", "Betula": several to a line.
std::string CodeList(const std::vector<std::string>& names) {
    constexpr std::size_t kWidth = 100;
    std::string list, line;
    for (const std::string& name : names) {
        if (!line.empty()) line += ", ";
        if (line.size() > kWidth) {
            list += line + "\n";
            line.clear();
        }
        line += CodeText(name);
    }
    return list + line;
}

// How a language writes what the two scripts are told alike.
struct Language {
    const char *assign, *yes, *no;
    const char *list, *list_end;
    const char *pairs, *of, *pairs_end;  // lists by a text each
};
constexpr Language kPython = {" = ", "True", "False", "[", "]", "{", ": ", "}"};
constexpr Language kR = {" <- ", "TRUE", "FALSE", "c(", ")", "list(", " = ", ")"};

std::string InCode(Colour colour) {
    char code[16];
    std::snprintf(code, sizeof code, "\"#%02x%02x%02x\"", colour.red, colour.green, colour.blue);
    return code;
}

std::string InCode(const std::vector<ScriptGroup>& groups, const Language& language) {
    std::string code = language.pairs;
    for (const ScriptGroup& group : groups) {
        if (&group != &groups.front()) code += ",\n";
        code += InCode(group.colour) + language.of + language.list + CodeList(group.taxa) + language.list_end;
    }
    return code + language.pairs_end;
}

// The table of the tree that is drawn; "" for none.
std::string TreeFile(const std::string& tree) {
    return tree == "counter" ? "counter_tree.csv" : tree == "grimm" ? "merges.csv" : "";
}

std::string Settings(const Core& core, const TableOptions& options, const Language& language) {
    const ScriptOptions& scripts = options.scripts;
    const auto list = [&](const std::vector<std::string>& names) { return language.list + CodeList(names) + language.list_end; };
    const std::pair<const char*, std::string> settings[] = {
        {"TITLE", CodeText(scripts.title)},
        {"BASIS", CodeText(kBasisWords[options.basis])},
        {"AXIS", CodeText(scripts.by_age ? options.age : DepthHead(options))},
        {"TAXA", list(DrawnTaxa(core, options))},
        {"ITALIC", list(scripts.italic)},
        {"COLOURS", InCode(scripts.groups, language)},
        {"STYLE", CodeText(scripts.style)},
        {"EXAGGERATE", NumberText(scripts.exaggerate)},
        {"TREE", CodeText(TreeFile(scripts.tree))},
        {"ZONES", scripts.zones ? language.yes : language.no},
    };
    std::string text;
    for (const auto& [name, value] : settings) text += name + std::string(language.assign) + value + "\n";
    return text;
}

constexpr std::string_view kPythonHead = R"py("""Draws the pollen diagram from the tables beside this script:

    python3 figure.py [FILE]        figure_python.pdf, or FILE: .pdf, .svg or .png

Needs matplotlib.
"""

import csv
import math
import sys
from pathlib import Path

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
from matplotlib.colors import to_rgb

)py";

constexpr std::string_view kPythonBody = R"py(
HERE = Path(__file__).resolve().parent


def read(name):
    with open(HERE / name, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


rows = read(f"percentages_{BASIS}.csv")
samples = read("counts.csv")
taxa_of_a_sample = len(rows) // len(samples)
percentages = {rows[i]["Taxon"]: [float(row["Percentage (%)"] or 0) for row in rows[i::taxa_of_a_sample]] for i in range(taxa_of_a_sample)}
y = [float(sample[AXIS]) for sample in samples]
thickness = 0.5 * min([abs(b - a) for a, b in zip(y, y[1:]) if a != b], default=1)


# Ten percent are as wide in every column.
widths = [10 * math.ceil(max(1, *percentages[taxon]) / 10) for taxon in TAXA]


def draw(axes, taxon, width):
    values = percentages[taxon]
    colour = next((colour for colour, taxa in COLOURS.items() if taxon in taxa), "black")
    dark = [0.6 * part for part in to_rgb(colour)]
    if EXAGGERATE:
        wide = [min(EXAGGERATE * value, width) for value in values]
        axes.fill_betweenx(y, 0, wide, color=colour, alpha=0.3, linewidth=0.6)
    if STYLE in ("bar", "bar-and-curve"):
        axes.barh(y, values, thickness, color=colour)
    if STYLE == "silhouette":
        axes.fill_betweenx(y, 0, values, color=colour, linewidth=0)
    if STYLE in ("curve", "silhouette", "bar-and-curve"):
        axes.plot(values, y, color=dark, linewidth=0.6)
    if STYLE == "dot":
        shown = [(value, place) for value, place in zip(values, y) if value > 0.5]
        axes.hlines([place for _, place in shown], 0, [value for value, _ in shown], color=dark, linewidth=0.3)
        axes.scatter([value for value, _ in shown], [place for _, place in shown], 8, color=[dark])


figure, columns = plt.subplots(1, len(TAXA) + bool(TREE), sharey=True, squeeze=False,
                               figsize=(2.5 + sum(widths) / 25 + 0.12 * len(TAXA), 8),
                               gridspec_kw={"width_ratios": widths + [60] * bool(TREE), "wspace": 0.12})
columns = columns[0]
for axes, taxon, width in zip(columns, TAXA, widths):
    draw(axes, taxon, width)
    axes.set_xlim(0, width)
    axes.set_xticks(range(0, width + 1, 10 if width < 40 else 20))
    axes.set_title(taxon, rotation=60, ha="left", va="bottom", x=0, style="italic" if taxon in ITALIC else "normal", fontsize=9)
for axes in columns:
    axes.tick_params(labelsize=6)

if TREE:  # each merge joins the two clusters that meet above its split
    tree = columns[-1]
    merges = [merge for merge in read(TREE) if merge.get("Basis", BASIS) == BASIS]
    measure = next(name for name in merges[0] if name.startswith(("Height", "Sum of squares within")))
    clusters = {i: (y[i], 0) for i in range(len(y))}  # by the first sample: where it stands, and its height
    for merge in merges:
        upper, lower = int(merge["First row"]) - 1, int(merge["Row of the split"]) - 1
        (upper_y, upper_x), (lower_y, lower_x) = clusters[upper], clusters.pop(lower)
        height = float(merge[measure])
        tree.plot([upper_x, height, height, lower_x], [upper_y, upper_y, lower_y, lower_y], color="black", linewidth=0.8)
        clusters[upper] = ((upper_y + lower_y) / 2, height)
    tree.set_xlim(0)
    tree.set_title(measure.split(" (")[0], fontsize=8)

below = 0
for zone in read("zones.csv") if ZONES else []:
    first, below = below, below + int(zone["Samples"])
    columns[-1].text(1.02, (y[first] + y[below - 1]) / 2, zone["Zone"], transform=columns[-1].get_yaxis_transform(), va="center", fontsize=8)
    if below < len(y):
        for axes in columns:
            axes.axhline((y[below - 1] + y[below]) / 2, color="black", linewidth=0.6, linestyle="--")

margin = math.copysign(0.02 * abs(y[-1] - y[0]) + thickness / 2, y[-1] - y[0])
columns[0].set_ylim(y[-1] + margin, y[0] - margin)  # downwards, as in the sediment
columns[0].set_ylabel(AXIS)
if TITLE:
    figure.suptitle(TITLE, x=0.02, ha="left")
figure.savefig(sys.argv[1] if len(sys.argv) > 1 else HERE / "figure_python.pdf", bbox_inches="tight")
)py";

constexpr std::string_view kRHead = R"r(# Draws the pollen diagram from the tables beside this script:
#     Rscript figure.R [FILE]        figure_r.pdf, or FILE
# With R alone. Where the package riojaPlot is installed, it draws the same percentages to figure_riojaplot.pdf.

)r";

constexpr std::string_view kRBody = R"r(
script <- sub("^--file=", "", grep("^--file=", commandArgs(FALSE), value = TRUE))
here <- if (length(script)) dirname(normalizePath(script)) else getwd()
table <- function(name, ...) read.csv(file.path(here, name), check.names = FALSE, encoding = "UTF-8", ...)

rows <- table(paste0("percentages_", BASIS, ".csv"), na.strings = "", colClasses = c(Sample = "character"))
samples <- table("counts.csv", na.strings = "", colClasses = c(Sample = "character"))
taxa <- rows$Taxon[seq_len(nrow(rows) / nrow(samples))]
percentages <- matrix(rows[["Percentage (%)"]], nrow = nrow(samples), byrow = TRUE, dimnames = list(NULL, taxa))[, TAXA, drop = FALSE]
percentages[is.na(percentages)] <- 0
y <- samples[[AXIS]]

file <- c(commandArgs(TRUE), file.path(here, "figure_r.pdf"))[1]
# Ten percent are as wide in every column.
gap <- 6
widths <- 10 * ceiling(pmax(apply(percentages, 2, max), 1) / 10)
inches <- 2.5 + sum(widths + gap) / 25
if (capabilities("cairo")) cairo_pdf(file, inches, 8) else pdf(file, inches, 8)
panels <- c(25, widths + gap, if (TREE != "") 60, if (ZONES) 30)
layout(matrix(seq_along(panels), 1), widths = panels)
length_down <- y[length(y)] - y[1]
downwards <- c(y[length(y)] + 0.03 * length_down, y[1] - 0.03 * length_down)  # as in the sediment
space <- function(right = 0) par(mar = c(3, 0, 8, right), mgp = c(1.8, 0.6, 0), cex = 0.7, xpd = FALSE, yaxs = "i")
frame <- function(width) plot(NULL, xlim = c(0, width), ylim = downwards, xaxs = "i", axes = FALSE, ann = FALSE)
zones <- if (ZONES) table("zones.csv")
boundaries <- head(cumsum(zones$Samples), -1)
lines_across <- function() if (length(boundaries)) abline(h = (y[boundaries] + y[boundaries + 1]) / 2, lty = 2)
silhouette <- function(values, colour) {  # one for each stretch without a gap
    for (stretch in split(seq_along(values), cumsum(is.na(values)))) {
        stretch <- stretch[!is.na(values[stretch])]
        if (length(stretch)) polygon(c(0, values[stretch], 0), y[stretch[c(1, seq_along(stretch), length(stretch))]], col = colour, border = colour)
    }
}
draw <- function(values, width, colour) {
    dark <- rgb(t(0.6 * col2rgb(colour)), maxColorValue = 255)
    if (EXAGGERATE > 0) silhouette(pmin(EXAGGERATE * values, width), adjustcolor(colour, 0.3))
    if (STYLE %in% c("bar", "bar-and-curve")) segments(0, y, values, y, lwd = 4, lend = "butt", col = colour)
    if (STYLE == "silhouette") silhouette(values, colour)
    if (STYLE %in% c("curve", "silhouette", "bar-and-curve")) lines(values, y, col = dark)
    if (STYLE == "dot") {
        shown <- values > 0.5
        segments(0 * y[shown], y[shown], values[shown], y[shown], lwd = 0.5, col = dark)
        points(values[shown], y[shown], pch = 19, cex = 0.6, col = dark)
    }
}

space()
frame(1)
axis(2, pos = 1, las = 1, xpd = NA)
mtext(AXIS, 2, line = -1, cex = 0.7)
mtext(TITLE, 3, line = 6, adj = 0, cex = 0.8)
for (taxon in seq_along(TAXA)) {
    space()
    frame(widths[taxon] + gap)
    draw(percentages[, taxon], widths[taxon], c(names(COLOURS)[vapply(COLOURS, function(taxa) TAXA[taxon] %in% taxa, TRUE)], "black")[1])
    axis(1, seq(0, widths[taxon], if (widths[taxon] < 40) 10 else 20), cex.axis = 0.7)
    segments(0, par("usr")[3], 0, par("usr")[4])
    lines_across()
    text(0, par("usr")[4], TAXA[taxon], srt = 60, adj = c(-0.05, -0.2), font = if (TAXA[taxon] %in% ITALIC) 3 else 1, xpd = NA)
}

if (TREE != "") {  # each merge joins the two clusters that meet above its split
    merges <- table(TREE)
    if ("Basis" %in% names(merges)) merges <- merges[merges$Basis == BASIS, ]
    measure <- grep("^(Height|Sum of squares within)", names(merges), value = TRUE)
    height <- merges[[measure]]
    space(1)
    frame(max(1.05 * height, 1e-9))
    place <- y
    reach <- 0 * y
    for (step in seq_len(nrow(merges))) {
        upper <- merges[["First row"]][step]
        lower <- merges[["Row of the split"]][step]
        lines(c(reach[upper], height[step], height[step], reach[lower]), rep(place[c(upper, lower)], each = 2))
        place[upper] <- (place[upper] + place[lower]) / 2
        reach[upper] <- height[step]
    }
    axis(1, cex.axis = 0.7)
    mtext(sub(" \\(.*", "", measure), 3, cex = 0.6)
    lines_across()
}
if (ZONES) {
    space()
    frame(1)
    ends <- cumsum(zones$Samples)
    text(0, (y[ends - zones$Samples + 1] + y[ends]) / 2, zones$Zone, adj = 0, xpd = NA)
}
invisible(dev.off())

if (requireNamespace("riojaPlot", quietly = TRUE)) {
    pdf(file.path(here, "figure_riojaplot.pdf"), inches, 8)
    riojaPlot::riojaPlot(as.data.frame(percentages, check.names = FALSE), setNames(data.frame(y), AXIS), scale.percent = TRUE)
    invisible(dev.off())
} else {
    message("riojaPlot is not installed: figure_riojaplot.pdf is left out")
}
)r";
}  // namespace

std::string CodeText(std::string_view utf8) {
    std::string code = "\"";
    while (!utf8.empty()) {
        const char32_t letter = TakeCharacter(utf8);
        if (letter == kMalformed)
            utf8.remove_prefix(1);
        else
            code += InCode(letter);
    }
    return code + '"';
}

std::string PythonScript(const Core& core, const TableOptions& options) {
    return std::string(kPythonHead) + Settings(core, options, kPython) + std::string(kPythonBody);
}

std::string RScript(const Core& core, const TableOptions& options) {
    return std::string(kRHead) + Settings(core, options, kR) + std::string(kRBody);
}

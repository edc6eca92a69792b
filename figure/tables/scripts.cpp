#include "figure/tables/scripts.h"

#include <cstdio>

#include "figure/tables/count_tables.h"
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
    if (!options.scripts.taxa.empty()) return options.scripts.taxa;
    std::vector<std::string> names;
    for (const Taxon& taxon : core.taxa) names.push_back(taxon.name);
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

struct Setting {
    const char* name;
    std::string value;
};

// What the two scripts are told alike; `list` is how the language opens a list.
std::vector<Setting> SettingsOf(const Core& core, const TableOptions& options, const char* list, const char* list_end, const char* yes,
                                const char* no) {
    return {{"TITLE", CodeText(core.title)},
            {"PERCENTAGES", CodeText(PercentageFile(options.basis))},
            {"AXIS", CodeText(options.scripts.by_age ? options.age : DepthHead(options))},
            {"TAXA", list + CodeList(DrawnTaxa(core, options)) + list_end},
            {"ITALIC", list + CodeList(options.scripts.italic) + list_end},
            {"BARS", options.scripts.bars ? yes : no},
            {"EXAGGERATE", NumberText(options.scripts.exaggerate)}};
}

std::string Script(std::string_view head, const std::vector<Setting>& settings, const char* assign, std::string_view body) {
    std::string script(head);
    for (const Setting& setting : settings) script += setting.name + std::string(assign) + setting.value + "\n";
    script += body;
    return script;
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

)py";

constexpr std::string_view kPythonBody = R"py(
HERE = Path(__file__).resolve().parent
INK, SHADE, FAINT = "#1b4f72", "#5d8aa8", "#d6e4ee"


def read(name):
    with open(HERE / name, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


rows = read(PERCENTAGES)
samples = read("counts.csv")
taxa_of_a_sample = len(rows) // len(samples)
percentages = {rows[i]["Taxon"]: [float(row["Percentage (%)"] or 0) for row in rows[i::taxa_of_a_sample]] for i in range(taxa_of_a_sample)}
y = [float(sample[AXIS]) for sample in samples]

# Ten percent are as wide in every column.
widths = [10 * math.ceil(max(1, *percentages[taxon]) / 10) for taxon in TAXA]
figure, columns = plt.subplots(1, len(TAXA) + 1, sharey=True, squeeze=False, figsize=(2.5 + sum(widths) / 25 + 0.12 * len(TAXA), 8),
                               gridspec_kw={"width_ratios": [*widths, 60], "wspace": 0.12})
columns = columns[0]
thickness = 0.5 * min([abs(b - a) for a, b in zip(y, y[1:]) if a != b], default=1)

for axes, taxon, width in zip(columns, TAXA, widths):
    values = percentages[taxon]
    if BARS:
        axes.barh(y, values, thickness, color=INK)
    else:
        if EXAGGERATE:
            axes.fill_betweenx(y, 0, [min(EXAGGERATE * value, width) for value in values], color=FAINT, linewidth=0)
        axes.fill_betweenx(y, 0, values, color=SHADE, edgecolor=INK, linewidth=0.8)
    axes.set_xlim(0, width)
    axes.set_xticks(range(0, width + 1, 10 if width < 40 else 20))
    axes.tick_params(labelsize=6)
    axes.set_title(taxon, rotation=60, ha="left", va="bottom", x=0, style="italic" if taxon in ITALIC else "normal", fontsize=9)

# The tree: each merge joins the two clusters that meet above its split.
tree = columns[-1]
clusters = {i: (y[i], 0) for i in range(len(y))}  # by the first sample: where it stands, and its height
for merge in read("merges.csv"):
    upper, lower = int(merge["First row"]) - 1, int(merge["Row of the split"]) - 1
    (upper_y, upper_x), (lower_y, lower_x) = clusters[upper], clusters.pop(lower)
    height = next(float(value) for name, value in merge.items() if name.startswith("Sum of squares within"))
    tree.plot([upper_x, height, height, lower_x], [upper_y, upper_y, lower_y, lower_y], color="black", linewidth=0.8)
    clusters[upper] = ((upper_y + lower_y) / 2, height)
tree.set_xlim(0)
tree.set_title("Sum of squares", fontsize=8)
tree.tick_params(labelsize=6)

below = 0
for zone in read("zones.csv"):
    first, below = below, below + int(zone["Samples"])
    tree.text(1.02, (y[first] + y[below - 1]) / 2, zone["Zone"], transform=tree.get_yaxis_transform(), va="center", fontsize=8)
    if below < len(y):
        for axes in columns:
            axes.axhline((y[below - 1] + y[below]) / 2, color="black", linewidth=0.6, linestyle="--")

margin = math.copysign(0.02 * abs(y[-1] - y[0]) + thickness / 2, y[-1] - y[0])
columns[0].set_ylim(y[-1] + margin, y[0] - margin)  # downwards, as in the sediment
columns[0].set_ylabel(AXIS)
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
table <- function(name) {
    read.csv(file.path(here, name), check.names = FALSE, na.strings = "", encoding = "UTF-8", colClasses = c(Sample = "character"))
}

rows <- table(PERCENTAGES)
samples <- table("counts.csv")
zones <- read.csv(file.path(here, "zones.csv"), check.names = FALSE, encoding = "UTF-8")
merges <- read.csv(file.path(here, "merges.csv"), check.names = FALSE, encoding = "UTF-8")
names <- rows$Taxon[seq_len(nrow(rows) / nrow(samples))]
percentages <- matrix(rows[["Percentage (%)"]], nrow = nrow(samples), byrow = TRUE, dimnames = list(NULL, names))[, TAXA, drop = FALSE]
percentages[is.na(percentages)] <- 0
y <- samples[[AXIS]]

file <- c(commandArgs(TRUE), file.path(here, "figure_r.pdf"))[1]
# Ten percent are as wide in every column.
gap <- 6
widths <- 10 * ceiling(apply(percentages, 2, max, 1) / 10)
inches <- 2.5 + sum(widths + gap) / 25
if (capabilities("cairo")) cairo_pdf(file, inches, 8) else pdf(file, inches, 8)
layout(matrix(seq_len(length(TAXA) + 2), 1), widths = c(25, widths + gap, 60))
length_down <- y[length(y)] - y[1]
downwards <- c(y[length(y)] + 0.03 * length_down, y[1] - 0.03 * length_down)  # as in the sediment
space <- function(right) par(mar = c(3, 0, 8, right), mgp = c(1.8, 0.6, 0), cex = 0.7, xpd = FALSE, yaxs = "i")
frame <- function(width) plot(NULL, xlim = c(0, width), ylim = downwards, xaxs = "i", axes = FALSE, ann = FALSE)
boundaries <- head(cumsum(zones$Samples), -1)
lines_across <- function() if (length(boundaries)) abline(h = (y[boundaries] + y[boundaries + 1]) / 2, lty = 2)

space(0)
frame(1)
axis(2, pos = 1, las = 1, xpd = NA)
mtext(AXIS, 2, line = -1, cex = 0.7)
mtext(TITLE, 3, line = 6, adj = 0, cex = 0.8)
for (taxon in seq_along(TAXA)) {
    values <- percentages[, taxon]
    space(0)
    frame(widths[taxon] + gap)
    silhouette <- function(values, fill, line) polygon(c(0, values, 0), c(y[1], y, y[length(y)]), col = fill, border = line)
    if (BARS) {
        segments(0, y, values, y, lwd = 4, lend = "butt", col = "#1b4f72")
    } else {
        if (EXAGGERATE > 0) silhouette(pmin(EXAGGERATE * values, widths[taxon]), "#d6e4ee", NA)
        silhouette(values, "#5d8aa8", "#1b4f72")
    }
    axis(1, seq(0, widths[taxon], if (widths[taxon] < 40) 10 else 20), cex.axis = 0.7)
    segments(0, par("usr")[3], 0, par("usr")[4])
    lines_across()
    text(0, par("usr")[4], TAXA[taxon], srt = 60, adj = c(-0.05, -0.2), font = if (TAXA[taxon] %in% ITALIC) 3 else 1, xpd = NA)
}

# The tree: each merge joins the two clusters that meet above its split.
height <- merges[[grep("^Sum of squares within", names(merges))]]
space(4)
frame(max(height, 1e-9))
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
mtext("Sum of squares", 3, cex = 0.6)
lines_across()
ends <- cumsum(zones$Samples)
mtext(zones$Zone, 4, at = (y[ends - zones$Samples + 1] + y[ends]) / 2, las = 1, line = 0.3, cex = 0.6)
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
    return Script(kPythonHead, SettingsOf(core, options, "[", "]", "True", "False"), " = ", kPythonBody);
}

std::string RScript(const Core& core, const TableOptions& options) {
    return Script(kRHead, SettingsOf(core, options, "c(", ")", "TRUE", "FALSE"), " <- ", kRBody);
}

// The command line of marlbrook-figure.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/drawing/options.h"
#include "figure/tables/tables.h"

#ifdef _WIN32
inline constexpr const char* kUsualFont = "Arial";
#else
inline constexpr const char* kUsualFont = "DejaVu Sans";
#endif

struct FigureArguments {
    std::vector<std::string> sheets;
    std::string folder;  // where the files go; empty: beside each sheet
    FigureOptions figure;
    TableOptions tables;
    std::optional<int> png;  // dots per inch
    std::string font = kUsualFont;
    bool has_tables = true;
};

// `words`: without the program. Nothing if there is nothing left to do: help, the version or a fault has been written. `status` is then
// that of the program.
std::optional<FigureArguments> ReadFigureArguments(std::vector<std::string> words, int& status);

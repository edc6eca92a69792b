// The command line of marlbrook-figure.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/drawing/options.h"
#include "figure/tables/tables.h"

struct FigureArguments {
    std::vector<std::string> sheets;
    std::string folder;  // where the files go; empty: beside each sheet
    FigureOptions figure;
    TableOptions tables;
    std::optional<int> png;  // dots per inch
    std::string font = "DejaVu Sans";
    bool has_tables = true;
};

// Nothing if there is nothing left to do: help, the version or a fault has been written. `status` is then that of the program.
std::optional<FigureArguments> ReadFigureArguments(int argc, char** argv, int& status);

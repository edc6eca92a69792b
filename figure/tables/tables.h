// The tables of a core, each as the text of its file: comma-separated UTF-8 with a head that names the units, a period in numbers whatever
// the locale, and CR LF at the end of a row.
#pragma once
#include <string>
#include <vector>

#include "figure/sheet/core.h"
#include "figure/tables/options.h"

struct NamedText {
    std::string name;  // of the file, without a folder
    std::string text;
};

struct Tables {
    std::vector<NamedText> files;
    std::vector<std::string> remarks;  // what is left out and why, as lines for the user
};

// Writes nothing itself. Raises FigureFault as the results do, and for an accumulation without a marker. Ages that give no influx are
// remarked on: they may have been meant for the axis alone.
Tables TablesOf(const Core& core, const TableOptions& options);

// Scripts that draw the figure from the tables beside them, for those who want to go on in R or Python.
#pragma once
#include <string>
#include <string_view>

#include "figure/tables/options.h"

// They know the taxa by their names: raise FigureFault where a name that is drawn belongs to more than one.
std::string RScript(const Core& core, const TableOptions& options);
std::string PythonScript(const Core& core, const TableOptions& options);

// A text as R and Python write it, in quotes: nothing that stands in a sheet can end it. All but ASCII is escaped, so that the script says
// the same in every locale; what no text of R can hold, the character 0, is left out.
std::string CodeText(std::string_view utf8);

// Reads a sheet as the counter opens one: by its reader of files, percentages and clusters, so that figure, tables and window agree.
#pragma once
#include <string>

#include "figure/sheet/core.h"

// `path`: UTF-8, a file of services.files. What the counter's session shares holds this sheet afterwards. Raises FigureFault for what
// cannot be read to its end, a template, a percentage table, a sheet with one sample, a key index that stands twice, a flag that is neither
// 0 nor 1, a count below zero, and for depths that are all the same.
Core ReadCore(const std::string& path);

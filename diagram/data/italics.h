// Which names of the diagram are in italics: families, which end in "ae" or "AE", stand upright, all else in italics; a list without any
// family is upright.
#pragma once
#include <array>
#include <string>

#include "sheet/sizes.h"

using Italics = std::array<bool, kSlots + 1>;  // [sheet row]; [0] unused

bool IsFamily(const std::string& name);
Italics ItalicRows();  // of DiagramNames

#pragma once
#include <string>

// The name of a file without its folder and its ending: "core 12" of "/home/ann/core 12.csv". Raises "Invalid procedure call" for a
// path without a period or without a folder.
std::string SheetBaseName(const std::string& path);

// The memory of this process.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

std::size_t BytesInUse();                                    // of the heap
std::size_t BytesOf(const std::vector<std::string>& lines);  // what they take of it, to a few bytes a line

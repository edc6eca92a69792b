// Files that appear whole and together: each is written in a folder of its own beside its place, and only when all are written they
// take their places.
#pragma once
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

// What cannot be written, as one line for the user.
struct WriteFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using FileTexts = std::map<std::string, std::string>;  // path, in UTF-8: bytes

// Makes the folders that are not there. Those of `outdated` that are files go in the same moment. Raises WriteFault, and leaves everything
// as it was.
void WriteTogether(const FileTexts& files, const std::vector<std::string>& outdated);

// Files that appear whole and together: each is written beside its place, and only when all are on the disk they take their names.
#pragma once
#include <map>
#include <stdexcept>
#include <string>

// What cannot be written, as one line for the user.
struct WriteFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using FileTexts = std::map<std::string, std::string>;  // path, in UTF-8: bytes

// Makes the folders that are not there. Raises WriteFault, and leaves nothing of its own behind.
void WriteTogether(const FileTexts& files);

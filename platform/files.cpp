#include "platform/files.h"

std::string Files::ReadAll(const std::string& path) {
    std::string bytes = ReadHead(path, kLargestFile + 1);
    if (bytes.size() > kLargestFile) throw Failure(kFileError);
    return bytes;
}

#include "files/format/sheet_base_name.h"

#include "platform/failure.h"

std::string SheetBaseName(const std::string& path) {
    // Neither a period at the very end nor a separator right before the period leaves a name.
    const std::size_t period = path.size() < 2 ? std::string::npos : path.rfind('.', path.size() - 2);
    if (period == std::string::npos || period == 0) throw Failure(kInvalidProcedureCall);
    const std::size_t separator = path.find_last_of("/\\", period - 1);
    if (separator == std::string::npos) throw Failure(kInvalidProcedureCall);
    return path.substr(separator + 1, period - separator - 1);
}

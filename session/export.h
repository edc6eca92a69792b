#pragma once
#include <functional>

#include "files/format/cells.h"

// A file for use outside the session. Asks where to, then writes what `write` has to say. Returns false if the user cancelled or the
// disk would not take it; both are silent.
bool Export(const std::function<void(CellWriter&)>& write);

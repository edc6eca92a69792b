#include "diagram/data/italics.h"

#include <algorithm>

#include "diagram/data/percentages.h"
#include "platform/text.h"

bool IsFamily(const std::string& name) {
    const std::string ending = Right(name, 2);
    return ending == "ae" || ending == "AE";
}

Italics ItalicRows() {
    Italics italic{};
    for (int row = 1; row <= kSlots; ++row) italic[row] = !IsFamily(DiagramNames[row]);
    if (std::count(italic.begin(), italic.end(), true) == kSlots) italic.fill(false);
    return italic;
}

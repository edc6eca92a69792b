// The groups of the taxa: the members of the first subtotal, those of the second alone, and the rest.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "figure/sheet/core.h"
#include "platform/control.h"

enum class Group { First, Second, Rest };
constexpr Group kGroups[] = {Group::First, Group::Second, Group::Rest};

Group GroupOf(const Taxon& taxon);

// "Other Herbs" of a second subtotal that shares taxa with the first one, which has them. A taxon `left_out` does not count; it may be "".
std::string GroupName(const Core& core, Group group, const std::string& left_out);

// Of the palette of M. Okabe and K. Ito, whose colours the colour-blind tell apart; as greys they differ too.
Colour ColourOf(Group group);
Colour PaleColourOf(Group group);  // for what lies behind

// The shares of the groups in the sum of all taxa but `left_out`, from 0 to 1, as they add up: [group]. Empty of an empty sample.
std::vector<double> GroupShares(const Core& core, std::size_t sample, const std::string& left_out);

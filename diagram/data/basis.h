// The percent basis: all taxa, or the members of a subtotal. frmMain.BasisOptions holds the choice, the menu of the diagram shows it.
#pragma once
#include <array>

#include "session/state/sheet_state.h"

using BasisWeights = std::array<double, kSlots + 1>;  // [slot]: how often a grain counts in the basis; [0] is 0

BasisWeights WeightsOfBasis();
void ShowBasisInMenu();  // the check marks of the diagram's menu

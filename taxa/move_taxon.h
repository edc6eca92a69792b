// In Modify mode a taxon moves to a slot without counts, in any bank, with its counts, flags and name.
#pragma once
#include <cstdint>

#include "platform/controls.h"

void SelectSlot(int slot);  // its number was clicked: it is the one to be moved
void OfferMove(int slot);   // the right button went down in one of its boxes

// One of the three submenus opens, on the tab of its bank; items[i], of kKeys, moves to the (i+1)th slot of the bank.
void OpenBankMenu(int bank, MenuItem* items);

void TransferTaxa(std::int16_t target);  // from SelectedSlot; onto itself its name is lost: docs/quirks.md

// In Modify mode a taxon moves to a slot without counts, in any bank, with its counts, flags and name.
#pragma once
#include <cstdint>

void SelectSlot(int slot);               // its number was clicked: it is the one to be moved
void OfferMove(int slot);                // the right button went down in one of its boxes
void OpenBankMenu(int bank);             // one of the three submenus opens, on the tab of its bank
void TransferTaxa(std::int16_t target);  // from SelectedSlot; onto itself its name is lost

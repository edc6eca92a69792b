// The sheet counts as changed while it can be saved: while the Save button is on.
#pragma once

// After an edit that the file would hold: the button and mnuSave come on. In Modify mode they wait for its end, which brings them anyway.
void OfferSaving();

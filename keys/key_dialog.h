// frmKeyCode, "Key settings": opening it, moving its maps about, and leaving it without a change. What is pressed in it is told in
// key_dialog_capture, its OK in key_dialog_ok.
#pragma once

void FillKeyDialog();  // it loads: the boxes take what KeySettings hold, and a copy of the rows is kept for Cancel

// The boxes of the row have a tool tip with what the key of their code types on the keyboard in use, for a definition may be another
// keyboard's: "on this keyboard: ö". None where the system does not tell.
void ShowCharacter(int row);

// Lays the maps of definitions and codes out by the key numbers: the boxes of key k stand where the number k stands in the third map. A
// number that no key has moves nothing.
void LayOutMaps();

void MirrorMaps(int side);   // +1: left handed was chosen, -1: right handed. Save and Undo change sides; no key changes
void OfferDefault();         // another tab is in front: "Default" belongs to that of the key numbers
void NumberPlacesInOrder();  // "Default": 1..45, in KeySettings at once
void ClearOpenMap();         // "All clear"; KeySettings stay as they are
void CancelKeySettings();    // Cancel, or the frame: KeySettings as they were at opening

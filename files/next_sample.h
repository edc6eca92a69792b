// frmNext: the start face of the program, and the sample that is added to the sheet.
#pragma once
void LoadNextWindow();  // chooses the face; at the start of the program this loads the main window
void BringNextToFront();
void ShowSampleFields();  // "Create new data file" on the start face
void NextFile();          // shows the window; at 250 samples a message instead
void NextFromButton();    // Command5[1] of the main window
void NextFromMenu();

// Takes name, note and Additional info from frmNext as a new sample, or as the first one while that has no name of its own; then
// frmNext is gone. Numeric names are kept in order. A name that is there already gives a message, and the window stays.
void AddSample();

void AcceptSample();  // OK
void CancelSample();
void CloseNextByFrame();

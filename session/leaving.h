// Three ways out of a counting run: Reset goes back to the last saved state and stays, Quit leaves without saving, closing the window
// leaves after asking.
#pragma once

bool MayAbortData();  // asks whether the data on the screen may go
void AbortCount();    // Reset
void QuitProgram();
void CloseMainWindow();  // by its frame
void UnloadAll();        // every other window

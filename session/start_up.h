// The load of the main window and the fresh sheet.
#pragma once
#include "windows/main_window.h"

void LoadMainWindow(MainWindow& window);

// The fresh sheet with one sample, named "-9999". Reads the key settings and the eight waves anew and plays the opening chime. Serves
// at the start, at "New data sheet" and when an open fails on a doubled key index. A missing key settings file or wave gives one
// message each, and the program goes on: without settings by the built-in keys, without a wave silently.
void InitialiseSheet();

void SayIfWaveIsBroken();  // on the start face, of the first of the eight waves that is of no kind that is played

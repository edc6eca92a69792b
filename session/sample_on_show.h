// The boxes that tell which sample is on show, and the list that brings up another.
#pragma once
#include "platform/controls.h"

void ShowSerial();         // Label4: Serial No. of CurrentSample, "/", MaxSerial
void ShowSampleName();     // Text1[0] and Combo2 take the name of CurrentSample; this renames nothing
void ShowNoteAndParams();  // Text4 and Text5 take the note and the Additional info of CurrentSample

// Another sample has come to CurrentSample and the cells: totals, history, Serial No. and notes follow.
void TellChangeOfSample();

// Brings up the sample whose name `list`, Combo2, shows; of several with that name the last. The old-sample question is asked again at the
// next counting key, and the taxa curve begins anew.
void BringUpChosenSample(const ComboBox& list);

// The boxes that tell which sample is on show.
#pragma once

void ShowSerial();         // Label4: Serial No. of CurrentSample, "/", MaxSerial
void ShowSampleName();     // Text1[0] and Combo2 take the name of CurrentSample; this renames nothing
void ShowNoteAndParams();  // Text4 and Text5 take the note and the Additional info of CurrentSample

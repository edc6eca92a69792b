// Modify mode: the keys do not count, and names, counts, the note and the Additional info can be edited. The whole key area turns red,
// so that nobody takes it for counting.
#pragma once
#include <cstdint>

void EnterModifyMode();               // Command3[0], mnuStartAmend
void LeaveModifyMode();               // Command3[1], mnuFinishAmend
void LeaveModifyModeByDoubleClick();  // the same, and the names of the Additional info are off until the mode is entered again

// 0 enters, anything else leaves (docs/quirks.md). The boxes of note and Additional info are the caller's.
void AmendingOnOff(std::int16_t mode);

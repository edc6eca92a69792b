// The history: one line for every count and every event of a session. Combo1 lists the lines and shows the newest; HistoryLog holds
// them for "Save history".
#pragma once
#include <string>

void AddHistoryLine(const std::string& line);  // raises "Overflow" past 32767 lines
void LogShownLineAgain();           // the line that Combo1 shows goes into HistoryLog once more, not into the list: docs/quirks.md
std::string SlotAndName(int slot);  // "12: Pinus", as the cells say at this moment

// The date and time texts that notes, files and the history carry.
std::string NoteStamp();  // "14/11/2026 (10:11:12)"
std::string FileStamp();  // "14/11/2026_(10:11:12)"
std::string FreshNote();  // "Created: 14/11/2026 (10:11:12)", and a line "Note: " to go on from

// The date and time texts that notes, files and the history carry.
#pragma once
#include <string>

std::string NoteStamp();  // "14/11/2026 (10:11:12)"
std::string FileStamp();  // "14/11/2026_(10:11:12)"
std::string FreshNote();  // "Created: 14/11/2026 (10:11:12)", and a line "Note: " to go on from

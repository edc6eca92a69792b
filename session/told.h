// What counting tells the rest of the program, which lies above it. Each event has one listener, joined in events/program.cpp; those of the
// sheet as a whole have the Rescue.
#pragma once
#include <string>

#include "platform/event.h"

extern Event<> SaveAsked;                     // by the save key, or at the end of the program
extern Event<> HundredReached;                // the alarm has sounded
extern Event<> CountsChanged;                 // by a key or a reset: an open diagram is out of date
extern Event<> TotalChanged;                  // Text3[0] shows another total of all taxa
extern Event<const std::string&> SaveBegins;  // to this path, whatever is to be written there
extern Event<> SheetSaved;                    // by a plain save, or a copy over its file: a file holds all of it
extern Event<> SaveFailed;                    // a plain one; the user has been told
extern Event<> SheetCopied;                   // a file besides its own holds all of it
extern Event<bool> SheetGivenUp;              // its user lets go what no save has; it is all there still. Whether the program has asked
extern Event<> SheetCleared;                  // of what was given up, before a dialog asks for another one
extern Event<> SheetReplaced;                 // another one is on show, opened or begun anew
extern Event<> SheetReset;                    // its user has given up what was counted since the snapshot
extern Event<> BasisChosen;                   // Option1: the total that the alarm and all percentages go by

// Where the program keeps its own files.
//
// It is the folder of the running program if that holds References and can be written. Otherwise (a system-wide installation) it is one
// of the user's own, marlbrook below $XDG_DATA_HOME or what the system has in its place, laid down from the installed tree at the first
// start: a file that is there already is never written over.
#pragma once
#include <QString>

QString FindProgramFolder();  // without a separator at its end

// Where the program keeps its own files.
//
// It is the folder of the running program if that holds References and can be written. Otherwise (a system-wide installation) it is one
// of the user's own, marlbrook below $XDG_DATA_HOME or what the system has in its place. What it lacks of the installed tree is laid
// down at each start, for the first one may have met a full disk.
#pragma once
#include <QString>

QString FindProgramFolder();  // without a separator at its end

// Copies the files and folders below `from` that are not below `to`: what is there is never written over. A file appears there whole or
// not at all; one that cannot be copied is left out.
void LayDownMissing(const QString& from, const QString& to);

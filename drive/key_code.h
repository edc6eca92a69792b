// The CODE of a script: "81", "Q", "@12", "@shift1".
#pragma once
#include <string>

namespace drive {

// A decimal virtual-key number; one upper-case letter for its own code; "@N" for the key of counter key N, "@shift1", "@shift2",
// "@undo" and "@save" for those keys, as the key settings that the program holds have them. ScriptFault for any other word and for
// a key that the settings do not hold.
int KeyCode(const std::string& word);

}  // namespace drive

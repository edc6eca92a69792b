// Opening replaces the session's sheet by a data sheet, a back-up, an older sheet or a template. There is no staging copy: a file that
// fails halfway leaves what was read. Anything but a good open ends in silence, with the sheet marked clean.
#pragma once
#include <string>

void OpenSheet();                             // asks first if the sheet has changed; then shows the file dialog
void OpenSheetFromButton();                   // Command4[0]
void OpenSheetFile(const std::string& path);  // the same for a file that is chosen already: without the dialog

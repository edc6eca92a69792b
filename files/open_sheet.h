// Opening replaces the session's sheet by a data sheet, a back-up, an older sheet or a template. There is no staging copy: a file that
// fails halfway leaves what was read. Anything but a good open ends in silence, with the sheet marked clean.
#pragma once

void OpenSheet();            // asks first if the sheet has changed; then shows the file dialog
void OpenSheetFromButton();  // Command4[0]

// The style and the palette of everything that is shown, whatever the desktop's own: words stand out from their ground in a dark theme too.
#pragma once

class QApplication;

void ApplyLook(QApplication& application);

#include "windows/busy.h"

#include "platform/services.h"
#include "windows/main_window.h"

Busy::Busy(int maximum) {
    MousePointer = kPointerBusy;
    frmMain.ProgressBar1.SetValue(0);
    frmMain.ProgressBar1.SetRange(0, maximum);
    frmMain.ProgressBar1.SetVisible(true);
}

Busy::~Busy() {
    MousePointer = kPointerDefault;
    frmMain.ProgressBar1.SetVisible(false);
    frmMain.ProgressBar1.SetValue(0);
}

void Busy::Reach(int value) const {
    frmMain.ProgressBar1.SetValue(value);
}

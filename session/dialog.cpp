#include "session/dialog.h"

#include "windows/main_window.h"

void OpenDialog(Window& dialog) {
    frmMain.SetEnabled(false);
    dialog.Show();
}

void CloseDialog(Window& dialog) {
    dialog.Unload();
    GiveMainWindowBack();
}

void GiveMainWindowBack() {
    frmMain.SetEnabled(true);
    frmMain.Show();
}

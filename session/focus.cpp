#include "session/focus.h"

#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void RestFocus() {
    frmMain.FocusRest.SetFocus();
}

void ReturnFocus() {
    if (!AmendMode) RestFocus();
}

void ReturnFocusOnMove() {
    if (!DiagramOpen) ReturnFocus();
}

void EnterBox(Mouse) {
    const bool counting = !AmendMode && !DiagramOpen;
    MousePointer = counting ? kPointerArrow : kPointerIBeam;
    if (counting) RestFocus();
}

void EnterCountCell(Mouse mouse) {
    if (mouse.button == MouseButton::Right)
        MousePointer = kPointerIBeam;
    else
        EnterBox(mouse);
}

void HoldTab() {
    HeldTab = frmMain.BankTabs.Tab();
}

void ReturnTab() {
    if (!AmendMode) frmMain.BankTabs.SetTab(HeldTab);
    RestFocus();
}

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

#include "session/focus_rule.h"

#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void ReturnFocus() {
    if (!AmendMode) frmMain.FocusRest.SetFocus();
}

void ReturnFocusOnMove() {
    if (!DiagramOpen) ReturnFocus();
}

void EnterBox(Mouse) {
    const bool counting = !AmendMode && !DiagramOpen;
    MousePointer = counting ? kPointerArrow : kPointerIBeam;
    if (counting) frmMain.FocusRest.SetFocus();
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
    frmMain.FocusRest.SetFocus();
}

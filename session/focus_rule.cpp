#include "session/focus_rule.h"

#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
int held_tab = 0;
}

void ReturnFocus() {
    if (!AmendMode) frmMain.Text99.SetFocus();
}

void ReturnFocusOnMove() {
    if (!DiagramOpen) ReturnFocus();
}

void EnterBox(Mouse) {
    const bool counting = !AmendMode && !DiagramOpen;
    MousePointer = counting ? kPointerArrow : kPointerIBeam;
    if (counting) frmMain.Text99.SetFocus();
}

void EnterCountCell(Mouse mouse) {
    if (mouse.button == MouseButton::Right)
        MousePointer = kPointerIBeam;
    else
        EnterBox(mouse);
}

void HoldTab() {
    held_tab = frmMain.SSTab1.Tab();
}

void ReturnTab() {
    if (!AmendMode) frmMain.SSTab1.SetTab(held_tab);
    frmMain.Text99.SetFocus();
}

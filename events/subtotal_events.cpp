#include "events/boxes.h"
#include "events/join.h"
#include "taxa/quotation_guard.h"
#include "taxa/subtotals.h"
#include "windows/subtotal_window.h"

void JoinSubtotalEvents() {
    frmSubtotal.Loaded.Calls(FillSubtotalWindow);
    frmSubtotal.FrameClosed.Calls(CancelSubtotals);
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal) {
        TextBox& name = frmSubtotal.Text1[subtotal];
        name.GotFocus.Calls(EnterGuardedBox);
        JoinGuardedKeys(name);
        name.Change.Calls([subtotal] { TakeSubtotalName(subtotal); });
        frmSubtotal.Option1[subtotal].Click.Calls(ShowChosenSubtotal);
    }
    for (int slot = 1; slot <= kSlots; ++slot) frmSubtotal.Check1[slot].Click.Calls([slot] { TakeSubtotalFlag(slot); });
    for (const int flag : {0, 1}) frmSubtotal.Command2[flag].Click.Calls([flag] { SetAllFlags(flag); });
    frmSubtotal.Command1.Click.Calls(AcceptSubtotals);
    frmSubtotal.Command3.Click.Calls(CancelSubtotals);
}

#include "events/boxes.h"
#include "events/join.h"
#include "taxa/dialogs.h"
#include "taxa/quotation_guard.h"
#include "windows/subtotal_window.h"

void JoinSubtotalEvents() {
    frmSubtotal.Loaded.Calls(FillSubtotalWindow);
    frmSubtotal.FrameClosed.Calls(CancelSubtotals);
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal) {
        TextBox& name = frmSubtotal.SubtotalNames[subtotal];
        name.GotFocus.Calls(EnterGuardedBox);
        JoinGuardedKeys(name);
        name.Change.Calls([subtotal] { TakeSubtotalName(subtotal); });
        frmSubtotal.SubtotalOptions[subtotal].Click.Calls(ShowChosenSubtotal);
    }
    for (int slot = 1; slot <= kSlots; ++slot) frmSubtotal.Members[slot].Click.Calls([slot] { TakeSubtotalFlag(slot); });
    for (const int flag : {0, 1}) frmSubtotal.FlagButtons[flag].Click.Calls([flag] { SetAllFlags(flag); });
    frmSubtotal.OkButton.Click.Calls(AcceptSubtotals);
    frmSubtotal.CancelButton.Click.Calls(CancelSubtotals);
}

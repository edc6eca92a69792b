// frmSubtotal: which taxa belong to each of the two subtotals, and how these are called.
#pragma once
#include <string>

#include "platform/any.h"
#include "platform/controls.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct SubtotalWindow : Window {
    SubtotalWindow();

    OptionButton Option1[kSubtotals + 1];  // [0] unused, so below: the subtotal that the boxes show
    TextBox Text1[kSubtotals + 1];         // its name
    Frame Frame1[3];                       // a bank each
    CheckBox Check1[kSlots + 1];           // [slot]: member of the subtotal on show
    Button Command4[kSlots + 1];           // where a box can stand, in the arrangement of the pad; never seen
    Button Command2[2];                    // Clear, Select all
    Button Command1;                       // OK
    Button Command3;                       // Cancel

    bool Filling = false;  // the window itself is setting boxes: their clicks do nothing
    Any FlagsAtOpening[kSlots + 1][kSubtotals];

private:
    void LaySlot(int slot);
    void ForgetMembers() override { Filling = false; }
};

extern SubtotalWindow frmSubtotal;

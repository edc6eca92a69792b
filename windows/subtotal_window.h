// frmSubtotal: which taxa belong to each of the two subtotals, and how these are called.
#pragma once
#include <string>

#include "platform/any.h"
#include "platform/controls.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct SubtotalWindow : Window {
    SubtotalWindow();

    OptionButton Option1[kSubtotals + 1];                       // [0] unused, so below
    OptionButton (&SubtotalOptions)[kSubtotals + 1] = Option1;  // the subtotal that the boxes show
    OptionButton& Subtotal1Option = Option1[1];
    OptionButton& Subtotal2Option = Option1[2];
    TextBox Text1[kSubtotals + 1];
    TextBox (&SubtotalNames)[kSubtotals + 1] = Text1;
    Frame Frame1[3];  // a bank each
    CheckBox Check1[kSlots + 1];
    CheckBox (&Members)[kSlots + 1] = Check1;  // [slot]: of the subtotal on show
    Button Command4[kSlots + 1];
    Button (&MemberPlaces)[kSlots + 1] = Command4;  // where a box can stand, in the arrangement of the pad; never seen
    Button Command2[2];
    Button (&FlagButtons)[2] = Command2;  // [flag]: gives it to all taxa
    Button& ClearButton = Command2[0];
    Button& SelectAllButton = Command2[1];
    Button Command1;
    Button& OkButton = Command1;
    Button Command3;
    Button& CancelButton = Command3;

    bool Filling = false;  // the window itself is setting boxes: their clicks do nothing
    Any FlagsAtOpening[kSlots + 1][kSubtotals];

private:
    void LaySlot(int slot);
    void ForgetMembers() override;
};

extern SubtotalWindow frmSubtotal;

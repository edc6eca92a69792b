#include "session/subtotal_names.h"

#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void ShowSubtotalNames() {
    frmMain.Subtotal1Caption.SetCaption(SheetHeader[12].Text() + ":");
    frmMain.Subtotal2Caption.SetCaption(SheetHeader[13].Text() + ":");
    frmMain.mnuPercentSub1.SetCaption("% by " + SheetHeader[12].Text());
    frmMain.mnuPercentSub2.SetCaption("% by " + SheetHeader[13].Text());
    frmMain.mnuPercentAll.SetCaption("% by " + WithoutTrailingColon(frmMain.AllTotalCaption.Caption()));
}

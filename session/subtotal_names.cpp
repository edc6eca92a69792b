#include "session/subtotal_names.h"

#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void ShowSubtotalNames() {
    frmMain.Label2[1].SetCaption(SheetHeader[12].Text() + ":");
    frmMain.Label2[2].SetCaption(SheetHeader[13].Text() + ":");
    frmMain.mnuPercentSub1.SetCaption("% by " + SheetHeader[12].Text());
    frmMain.mnuPercentSub2.SetCaption("% by " + SheetHeader[13].Text());
    frmMain.mnuPercentAll.SetCaption("% by " + WithoutTrailingColon(frmMain.Label2[0].Caption()));
}

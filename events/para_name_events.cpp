#include "events/boxes.h"
#include "events/join.h"
#include "taxa/dialogs.h"
#include "taxa/quotation_guard.h"
#include "windows/para_name_window.h"

void JoinParaNameEvents() {
    TextBox& name = frmParaName.NewName;
    name.GotFocus.Calls(EnterGuardedBox);
    JoinGuardedKeys(name);
    name.Change.Calls([] { RefuseQuotationMark(frmParaName.NewName); });
    frmParaName.FrameClosed.Calls(CancelParamName);
    frmParaName.OkButton.Click.Calls(AcceptParamName);
    frmParaName.CancelButton.Click.Calls(CancelParamName);
}

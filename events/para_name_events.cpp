#include "events/boxes.h"
#include "events/join.h"
#include "taxa/param_names.h"
#include "taxa/quotation_guard.h"
#include "windows/para_name_window.h"

void JoinParaNameEvents() {
    TextBox& name = frmParaName.Text1;
    name.GotFocus.Calls(EnterGuardedBox);
    JoinGuardedKeys(name);
    name.Change.Calls([] { RefuseQuotationMark(frmParaName.Text1); });
    frmParaName.FrameClosed.Calls(CancelParamName);
    frmParaName.Command1.Click.Calls(AcceptParamName);
    frmParaName.Command2.Click.Calls(CancelParamName);
}

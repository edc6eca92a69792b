#include "taxa/param_names.h"

#include <string>

#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/para_name_window.h"

namespace {
Window& Caller() {
    if (frmParaName.Label4.Caption() == frmNext.name) return frmNext;
    return frmMain;
}

// The window that asks waits, and so does the main window, whoever asks.
void Ask(Window& caller, int p, const std::string& caption) {
    frmMain.SetEnabled(false);
    caller.SetEnabled(false);
    frmParaName.Show();
    frmParaName.Slider1.SetValue(p);
    const std::string name = WithoutTrailingColon(caption);
    frmParaName.Label2.SetCaption(name);
    frmParaName.Text1.SetText(name);
    frmParaName.Label4.SetCaption(caller.name);
    frmParaName.Text1.SetFocus();
    frmParaName.Text1.SelectAll();
}

void GiveBack(Window& caller) {
    frmParaName.Hide();
    caller.SetEnabled(true);
    caller.Show();
}
}  // namespace

void RenameParamOfSheet(int p) {
    Ask(frmMain, p, frmMain.Label10[p].Caption());
}

void RenameParamOfNextSample(int p) {
    Ask(frmNext, p, frmNext.Label3[p].Caption());
}

void AcceptParamName() {
    const int p = frmParaName.Slider1.Value();
    const std::string& name = frmParaName.Text1.Text();
    if (&Caller() == &frmNext) {
        frmNext.Label3[p].SetCaption(name);
    } else {
        ParamHeader[p][4] = name;
        frmMain.Label10[p].SetCaption(name + ":");
    }
    GiveBack(Caller());
}

void CancelParamName() {
    GiveBack(Caller());
}

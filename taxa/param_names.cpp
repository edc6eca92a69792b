#include "taxa/param_names.h"

#include <string>

#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

namespace {
Window& Caller() {
    if (frmParaName.Caller.Caption() == frmNext.name) return frmNext;
    return frmMain;
}

// The window that asks waits, and so does the main window, whoever asks.
void Ask(Window& caller, int p, const std::string& caption) {
    frmMain.SetEnabled(false);
    caller.SetEnabled(false);
    frmParaName.Show();
    frmParaName.Param.SetValue(p);
    const std::string name = WithoutTrailingColon(caption);
    frmParaName.OldName.SetCaption(name);
    frmParaName.NewName.SetText(name);
    frmParaName.Caller.SetCaption(caller.name);
    frmParaName.NewName.SetFocus();
    frmParaName.NewName.SelectAll();
}

void GiveBack(Window& caller) {
    frmParaName.Hide();
    caller.SetEnabled(true);
    caller.Show();
}
}  // namespace

void RenameParamOfSheet(int p) {
    Ask(frmMain, p, frmMain.ParamNames[p].Caption());
}

void RenameParamOfNextSample(int p) {
    Ask(frmNext, p, frmNext.ParamNames[p].Caption());
}

void AcceptParamName() {
    const int p = frmParaName.Param.Value();
    const std::string& name = frmParaName.NewName.Text();
    if (&Caller() == &frmNext) {
        frmNext.ParamNames[p].SetCaption(name);
    } else {
        ParamHeader[p][4] = name;
        frmMain.ParamNames[p].SetCaption(name + ":");
    }
    GiveBack(Caller());
}

void CancelParamName() {
    GiveBack(Caller());
}

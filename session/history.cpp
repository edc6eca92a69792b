#include "session/history.h"

#include "platform/number.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void AddHistoryLine(const std::string& line) {
    frmMain.Combo1.AddItem(line);
    frmMain.Combo1.SetText(line);
    LogShownLineAgain();
}

void LogShownLineAgain() {
    HistoryCount = ToInteger(HistoryCount + 1);
    HistoryLog.push_back(frmMain.Combo1.Text());
}

std::string SlotAndName(int slot) {
    return frmMain.Label1[slot].Caption() + ": " + frmMain.Text1[slot].Text();
}

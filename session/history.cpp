#include "session/history.h"

#include "platform/number.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void AddHistoryLine(const std::string& line) {
    frmMain.History.AddItem(line);
    frmMain.History.SetText(line);
    LogShownLineAgain();
}

void LogShownLineAgain() {
    HistoryCount = ToInteger(HistoryCount + 1);
    HistoryLog.push_back(frmMain.History.Text());
}

std::string SlotAndName(int slot) {
    return frmMain.SlotNumbers[slot].Caption() + ": " + frmMain.TaxonNames[slot].Text();
}

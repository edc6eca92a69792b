#include "session/history.h"

#include "platform/number.h"
#include "platform/services.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
std::string TimeInBrackets() {
    return "(" + Right(services.clock->TimeText(), 8) + ")";
}

// Date and time of one moment: midnight may come between the two.
std::string Stamp(const char* between) {
    const std::string date = services.clock->DateText(), time = TimeInBrackets(), date_after = services.clock->DateText();
    return date_after + between + (date_after == date ? time : TimeInBrackets());
}
}  // namespace

void AddHistoryLine(const std::string& line) {
    frmMain.History.AddItem(line);
    frmMain.History.SetText(line);
    LogShownLineAgain();
}

void LogShownLineAgain() {
    HistoryCount = ToInt16(HistoryCount + 1);
    HistoryLog.push_back(frmMain.History.Text());
}

std::string SlotAndName(int slot) {
    return frmMain.SlotNumbers[slot].Caption() + ": " + frmMain.TaxonNames[slot].Text();
}

std::string NoteStamp() {
    return Stamp(" ");
}

std::string FileStamp() {
    return Stamp("_");
}

std::string FreshNote() {
    return "Created: " + NoteStamp() + "\r\nNote: ";
}

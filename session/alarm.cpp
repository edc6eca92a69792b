#include "session/alarm.h"

#include <cmath>

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
bool IsFullHundred(double total) {
    return std::fmod(total, 100) == 0;
}
}  // namespace

bool AlarmDueAfterCount() {
    bool due = false;
    for (int i = 0; i < 3; ++i) {
        const double total = frmMain.Totals[i].Number();
        if (!frmMain.BasisOptions[i].Value() || total == 0) continue;
        if (IsFullHundred(total))
            due = true;
        else if (IsFullHundred(total + 1))
            AlarmArmed = true;
    }
    return due;
}

bool AlarmDueAfterUndo() {
    bool due = false;
    for (int i = 0; i < 3; ++i)
        if (IsFullHundred(frmMain.Totals[i].Number() - 1) && frmMain.BasisOptions[i].Value()) due = true;
    return due;
}

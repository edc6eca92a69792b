#include "session/sound.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "session/state/sheet_state.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
void SaySilent() {
    if (frmNext.IsLoaded()) frmNext.TellOnStartFace(StartNews::NoSoundDevice, "No sound device: keys count without a sound");
}

// Those whose "Set alarm" is chosen.
std::vector<double> AlarmTotals() {
    std::vector<double> totals;
    for (int i = 0; i < 3; ++i)
        if (frmMain.BasisOptions[i].Value()) totals.push_back(frmMain.Totals[i].Number());
    return totals;
}

bool IsFullHundred(double total) {
    return std::fmod(total, 100) == 0;
}
}  // namespace

void PlayIfOn(const Wave& wave) {
    if (SoundOn) services.sounds->Play(wave);
}

void SayIfSilent() {
    services.sounds->IfSilent(SaySilent);
}

bool AlarmDueAfterCount() {
    bool due = false;
    for (const double total : AlarmTotals()) {
        if (total == 0) continue;
        if (IsFullHundred(total))
            due = true;
        else if (IsFullHundred(total + 1))
            AlarmArmed = true;
    }
    return due;
}

bool AlarmDueAfterUndo() {
    return std::ranges::any_of(AlarmTotals(), [](double total) { return IsFullHundred(total - 1); });
}

#include "session/sound.h"

#include <cmath>

#include "session/state/sheet_state.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr Colour kWarning{176, 48, 32};

void SaySilent() {
    if (!frmNext.IsLoaded()) return;
    frmNext.StartLine.SetCaption("No sound device: keys count without a sound");
    frmNext.StartLine.SetForeColor(kWarning);
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

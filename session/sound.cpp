#include "session/sound.h"

#include "session/state/sheet_state.h"
#include "windows/next_window.h"

namespace {
constexpr Colour kWarning{176, 48, 32};

void SaySilent() {
    if (!frmNext.IsLoaded()) return;
    frmNext.StartLine.SetCaption("No sound device: keys count without a sound");
    frmNext.StartLine.SetForeColor(kWarning);
}
}  // namespace

void PlayIfOn(const Wave& wave) {
    if (SoundOn) services.sounds->Play(wave);
}

void SayIfSilent() {
    services.sounds->IfSilent(SaySilent);
}

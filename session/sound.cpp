#include "session/sound.h"

#include "session/state/sheet_state.h"
#include "windows/next_window.h"

namespace {
void SaySilent() {
    if (!frmNext.IsLoaded() || frmNext.TellsOnStartFace()) return;  // of something graver
    frmNext.TellOnStartFace("No sound device: keys count without a sound");
}
}  // namespace

void PlayIfOn(const Wave& wave) {
    if (SoundOn) services.sounds->Play(wave);
}

void SayIfSilent() {
    services.sounds->IfSilent(SaySilent);
}

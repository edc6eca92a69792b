#include "session/sound.h"

#include "session/sheet_state.h"

void PlayIfOn(const Wave& wave) {
    if (SoundOn) services.sounds->Play(wave);
}

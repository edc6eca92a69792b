#pragma once
#include "platform/services.h"

void PlayIfOn(const Wave& wave);  // silent while SoundOn is False
void SayIfSilent();               // on the start face, once it is known that there is no sound device

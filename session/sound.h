#pragma once
#include "platform/services.h"

void PlayIfOn(const Wave& wave);  // silent while SoundOn is False

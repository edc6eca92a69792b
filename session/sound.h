// Sounds while counting, and when the alarm is one of them.
#pragma once
#include "platform/services.h"

void PlayIfOn(const Wave& wave);  // silent while SoundOn is false
void SayIfSilent();               // on the start face, once it is known that there is no sound device

// The alarm marks each full hundred on the chosen total.
bool AlarmDueAfterCount();  // on the fresh totals; arms the alarm one below a hundred
bool AlarmDueAfterUndo();   // on the totals as they stand before the count is taken back

// The alarm marks each full hundred on the chosen total.
#pragma once

bool AlarmDueAfterCount();  // on the fresh totals; arms the alarm one below a hundred
bool AlarmDueAfterUndo();   // on the totals as they stand before the count is taken back

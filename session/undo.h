#pragma once

// Takes back the newest entry of UndoList, a count or a reverse count, going back to its sample first if that is not on show. With
// nothing to undo it only recounts and arms the alarm.
void Undo();

#include "session/undo.h"

#include <cstdlib>
#include <cstring>

#include "platform/number.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
void GoToSampleOf(std::int16_t sample) {
    if (sample == CurrentSample) return;
    CurrentSample = sample;
    ShowSampleName();
    ShowCountsOfSample();
    TellChangeOfSample();
}

void TakeBack(int slot, int direction) {
    ShowCountOf(slot, ShownCount(slot) - direction);
    Counts[slot][CurrentSample] = ToInt32(ShownCount(slot));
}

void PopUndoList() {
    std::memmove(&UndoList[0], &UndoList[1], sizeof(UndoList[0]) * kUndoDepth);
    UndoList[kUndoDepth][kUndoSample] = UndoList[kUndoDepth][kUndoSlot] = 0;
}

void UndoNewest() {
    const int slot = std::abs(UndoList[0][kUndoSlot]);
    const int direction = UndoList[0][kUndoSlot] < 0 ? -1 : 1;
    GoToSampleOf(UndoList[0][kUndoSample]);
    const bool alarm_due = AlarmDueAfterUndo();
    TakeBack(slot, direction);
    PlayIfOn(alarm_due ? WaveAlarm : WaveUndo);
    MoveHighlight(slot, kPaleHighlight);
    PopUndoList();
    AddHistoryLine((direction < 0 ? "(Undo-amend) " : "(Undo) ") + SlotAndName(slot));
}
}  // namespace

void Undo() {
    if (!frmMain.KeysEnabled) return;  // the cells show percentages
    if (UndoList[0][kUndoSlot] != 0) UndoNewest();
    RecountTotals(CurrentSample);
    if (UndoList[0][kUndoSlot] == 0) frmMain.mnuUndo.SetEnabled(false);
    AlarmArmed = true;
}

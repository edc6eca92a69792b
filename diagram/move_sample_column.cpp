#include "diagram/move_sample_column.h"

#include <algorithm>

#include "diagram/cluster_tree.h"
#include "diagram/data/percentages.h"
#include "diagram/open_diagram.h"
#include "diagram/sample_selector.h"
#include "platform/number.h"
#include "session/saved_state.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
// Turns the columns MoveFrom..MoveTo of one row by one place.
template <class T>
void MoveInRow(T* row) {
    if (MoveFrom < MoveTo)
        std::rotate(row + MoveFrom, row + MoveFrom + 1, row + MoveTo + 1);
    else
        std::rotate(row + MoveTo, row + MoveFrom, row + MoveFrom + 1);
}

// The moved count passes through a float: past 16,777,216 grains it loses digits (docs/quirks.md).
void MoveCounts(int slot) {
    Counts[slot][MoveFrom] = ToInt32(static_cast<float>(Counts[slot][MoveFrom]));
    MoveInRow(Counts[slot]);
}

// Where a column stands after the move.
std::int16_t MovedPlace(std::int16_t column) {
    if (column == MoveFrom) return MoveTo;
    if (MoveFrom < column && column <= MoveTo) return static_cast<std::int16_t>(column - 1);
    if (MoveTo <= column && column < MoveFrom) return static_cast<std::int16_t>(column + 1);
    return column;
}

// The sample on show stays on show, what is undone later is taken back where it was counted, and a reset finds each sample's own state.
void FollowSamples() {
    if (static_cast<int>(CountsAtOpen.size()) > SampleCount) MoveInRow(CountsAtOpen.data());
    for (int p = 1; p <= kParams; ++p) MoveInRow(ParamValuesAtOpen[p]);
    CurrentSample = MovedPlace(CurrentSample);
    for (auto& entry : UndoList)
        if (entry[kUndoSlot] != 0) entry[kUndoSample] = MovedPlace(entry[kUndoSample]);
}

void RefillSampleList() {
    ComboBox& list = frmMain.SampleList;
    const std::string shown = CurrentSample == MoveTo ? SampleTable[kSampleName][MoveTo].Text() : list.Text();
    list.Clear();
    for (int sample = 1; sample <= SampleCount; ++sample) list.AddItem(SampleTable[kSampleName][sample].Text());
    list.SetText(shown);
}
}  // namespace

void MoveSampleColumnUnseen() {
    if (MoveFrom == MoveTo) return;
    for (const int row : {kSampleSerial, kSampleName}) MoveInRow(SampleTable[row]);
    for (int slot = 1; slot <= kSlots; ++slot) {
        MoveCounts(slot);
        MoveInRow(SamplePercent[slot]);
    }
    for (int p = 1; p <= kParams; ++p) MoveInRow(ParamValues[p]);
    MoveInRow(SampleNotes);
    FollowSamples();
    OfferSaving();
    RefillSampleList();
}

void MoveSampleColumn() {
    MoveSampleColumnUnseen();
    if (MoveFrom == MoveTo || !DiagramOpen) return;
    FillSampleList();
    RedrawDiagram();
    ClusterAgain();
}

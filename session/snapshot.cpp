#include "session/snapshot.h"

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void SnapshotSheet() {
    if (SampleCount == 0) return;
    CountsAtOpen.resize(SampleCount + 1);
    for (int sample = 0; sample <= SampleCount; ++sample)
        for (int slot = 0; slot <= kSlots; ++slot) CountsAtOpen[sample][slot] = Counts[slot][sample];
    for (int slot = 0; slot <= kSlots; ++slot)
        for (int field = 1; field <= 4; ++field) TaxonTableAtOpen[slot][field] = TaxonTable[slot][field];
    SnapshotParams();
}

void SnapshotParams() {
    SnapshotParamNames();
    for (int p = 1; p <= kParams; ++p)
        for (int sample = 1; sample <= SampleCount; ++sample) ParamValuesAtOpen[p][sample] = ParamValues[p][sample];
}

void SnapshotParamNames() {
    for (int p = 1; p <= kParams; ++p) ParamValuesAtOpen[p][0] = frmMain.ParamNames[p].Caption();
}

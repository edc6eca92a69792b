#include "diagram/merge_list.h"

#include "diagram/data/coniss.h"
#include "platform/text.h"
#include "session/export.h"
#include "session/sound.h"
#include "windows/main_window.h"

namespace {
// As the shortest text of the Single, which is shorter than that of the double it would become.
Any SingleCell(float number) {
    return Val(SingleText(number));
}

void WriteMerges(CellWriter& cells) {
    for (const char* heading : {"Depth from", "Depth to", "Sum square"}) cells.Write(heading);
    cells.EndRow();
    for (int step = SampleCount - 1; step >= 1; --step) {
        frmMain.Progress.SetValue(SampleCount - step);
        for (const float number : {MergeUpper[step], MergeLower[step], MergeHeight[step]}) cells.Write(SingleCell(number));
        cells.EndRow();
    }
}
}  // namespace

void SaveMergeList() {
    const Busy busy(kSlots);
    if (Export(WriteMerges)) PlayIfOn(WaveSave);
}

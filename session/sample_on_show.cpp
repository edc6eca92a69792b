#include "session/sample_on_show.h"

#include <algorithm>
#include <string>

#include "session/focus.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
void ForgetCurve() {
    for (std::size_t n = 1; n < DiversityCurve.size(); ++n) DiversityCurve[n] = 0;
}

void FindChosenSample(const std::string& chosen) {
    for (std::int16_t sample = 1; sample <= SampleCount; ++sample)
        if (SampleTable[kSampleName][sample] == std::string_view(chosen)) CurrentSample = sample;
}
}  // namespace

void ShowSerial() {
    frmMain.SerialNumber.SetCaption(SampleTable[kSampleSerial][CurrentSample].Text() + "/" + std::to_string(MaxSerial));
}

void ShowSampleName() {
    const std::string name = SampleTable[kSampleName][CurrentSample].Text();
    frmMain.SampleName.SetText(name);
    frmMain.SampleList.SetText(name);
}

void ShowNoteAndParams() {
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    for (int p = 1; p <= kParams; ++p) frmMain.ParamBoxes[p].SetText(ParamValues[p][CurrentSample].Text());
}

void TellChangeOfSample() {
    RecountTotals(CurrentSample);
    AddHistoryLine("(Change sample: " + frmMain.SampleList.Text() + ")");
    ShowSerial();
    ShowNoteAndParams();  // a save stamps the note that is on show
}

void BringUpChosenSample(const ComboBox& list) {
    ForgetCurve();
    FindChosenSample(list.Text());
    frmMain.ChangingSample = true;
    WarnOldSample = true;
    ShowCountsOfSample();
    frmMain.ChangingSample = false;
    ShowSampleName();
    TellChangeOfSample();
    if (AmendMode)
        frmMain.SampleNote.SetFocus();
    else
        RestFocus();
}

#include "session/sample_on_show.h"

#include <string>

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void ShowSerial() {
    frmMain.SerialNumber.SetCaption(SampleTable[1][CurrentSample].Text() + "/" + std::to_string(MaxSerial));
}

void ShowSampleName() {
    const std::string name = SampleTable[2][CurrentSample].Text();
    frmMain.SampleName.SetText(name);
    frmMain.SampleList.SetText(name);
}

void ShowNoteAndParams() {
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    for (int p = 1; p <= kParams; ++p) frmMain.ParamBoxes[p].SetText(ParamValues[p][CurrentSample].Text());
}

#include "session/sample_on_show.h"

#include <string>

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void ShowSerial() {
    frmMain.Label4.SetCaption(SampleTable[1][CurrentSample].Text() + "/" + std::to_string(MaxSerial));
}

void ShowSampleName() {
    const std::string name = SampleTable[2][CurrentSample].Text();
    frmMain.Text1[0].SetText(name);
    frmMain.Combo2.SetText(name);
}

void ShowNoteAndParams() {
    frmMain.Text4.SetText(SampleNotes[CurrentSample]);
    for (int p = 1; p <= kParams; ++p) frmMain.Text5[p].SetText(ParamValues[p][CurrentSample].Text());
}

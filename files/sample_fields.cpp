#include "files/sample_fields.h"

#include "windows/main_window.h"

void TakeSampleFields(std::int16_t sample, const TextBox& note, const Label (&names)[kParams + 1], const TextBox (&values)[kParams + 1]) {
    SampleNotes[sample] = note.Text();
    frmMain.SampleNote.SetText(SampleNotes[sample]);
    for (int p = 1; p <= kParams; ++p) {
        frmMain.ParamNames[p].SetCaption(names[p].Caption());
        const std::string& value = values[p].Text();
        frmMain.ParamBoxes[p].SetText(value.empty() ? kEmpty : value);
        ParamValues[p][sample] = frmMain.ParamBoxes[p].Text();
    }
}

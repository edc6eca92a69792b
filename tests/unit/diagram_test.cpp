#include "unit/diagram_test.h"

#include "drive/drawn.h"
#include "platform/user.h"
#include "session/sample_on_show.h"
#include "windows/main_window.h"

DiagramTest::DiagramTest() {
    Begin("10");
}

void DiagramTest::Sheet(const Texts& names, const std::vector<std::vector<int>>& counts) {
    SampleCount = CurrentSample = MaxSerial = static_cast<std::int16_t>(names.size());
    frmMain.Combo2.Clear();
    for (int sample = 1; sample <= SampleCount; ++sample) {
        SampleTable[kSampleSerial][sample] = sample;
        SampleTable[kSampleName][sample] = names[sample - 1];
        frmMain.Combo2.AddItem(names[sample - 1]);
        for (int slot = 1; slot <= kSlots; ++slot) Counts[slot][sample] = 0;
        for (std::size_t i = 0; i < counts[sample - 1].size(); ++i) Counts[i + 1][sample] = counts[sample - 1][i];
    }
    ShowSampleName();
    ShowSerial();  // two samples make a diagram
}

void DiagramTest::Open(MenuItem& style) {
    ClickControl(style);
}

int DiagramTest::Drawn(const PictureBox& picture, const std::string& operation) {
    return drive::CountDrawn(picture, operation);
}

ThreeDepthsTest::ThreeDepthsTest() {
    Sheet({"10", "20", "40"}, {{40, 50, 10}, {1, 2, 1}, {0, 3, 1}});
    TaxonTable[1][kTaxonSubtotal1] = 1;
    TaxonTable[3][kTaxonSubtotal1] = 1;
    TaxonTable[2][kTaxonSubtotal2] = 1;
}

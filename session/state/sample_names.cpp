#include "session/state/sample_names.h"

#include "platform/text.h"
#include "session/state/sheet_state.h"

void CheckSampleNames() {
    SampleNamesAreText = false;
    for (int sample = 1; sample <= SampleCount && !SampleNamesAreText; ++sample)
        SampleNamesAreText = !IsPlainNumber(SampleTable[kSampleName][sample].Text());
}

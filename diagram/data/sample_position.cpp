#include "diagram/data/sample_position.h"

#include "platform/failure.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"

namespace {
double Depth(int sample) {
    return SampleTable[kSampleNameDrawn][sample].Number();
}

// Named samples that were given numbers while the window is open have no depths before its next load.
bool TookUpDepths() {
    return IsPlainNumber(SampleTable[kSampleNameDrawn][1].Text()) && IsPlainNumber(SampleTable[kSampleNameDrawn][SampleCount].Text());
}
}  // namespace

SamplePositions::SamplePositions() {
    if (SampleNamesAreText) return;
    span_ = Depth(SampleCount) - Depth(1);
    if (span_ == 0 && TookUpDepths()) throw Failure(kDivisionByZero);
    by_depth_ = span_ != 0;
    if (!by_depth_) return;
    depths_.resize(SampleCount + 1);
    for (int sample = 1; sample <= SampleCount; ++sample) depths_[sample] = Depth(sample);
}

double SamplePositions::Share(int sample) const {
    const double depth = depths_[sample];
    return depths_[SampleCount] - depth + SampleCount * (depth - depths_[1]);
}

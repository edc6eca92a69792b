// How far down a sample stands, in the diagram as in the tree. Named samples stand in rows of 10 units, in sheet order. Depths stand
// between the rows of the first and the last sample, in proportion; they are the names that the diagram took up when its window was
// loaded, in row kSampleNameDrawn of SampleTable, and those are in sheet order: on a sheet whose columns are not in depth order the k-th
// smallest depth stands where the name of column k belongs.
#pragma once
#include <vector>

class SamplePositions {
public:
    SamplePositions();  // of the samples 1..SampleCount, as they are now. Raises "Division by zero" if both ends have the same depth

    double Row(int sample) const { return by_depth_ ? Share(sample) / span_ : sample; }  // 1 at the first sample, SampleCount at the last
    float Y(int sample) const { return static_cast<float>(by_depth_ ? 10 * Share(sample) / span_ : 10.0 * sample); }

private:
    double Share(int sample) const;  // the row, times the span

    bool by_depth_ = false;
    std::vector<double> depths_;  // [sample]; [0] unused
    double span_ = 0;             // from the first depth to the last; negative if they rise
};

#include "diagram/data/coniss.h"

#include <algorithm>
#include <limits>

#include "diagram/data/percentages.h"
#include "diagram/data/sample_position.h"
#include "windows/main_window.h"

namespace {
// The vectors of the samples and of all means, none of which is ever overwritten, and which of them a cluster has now. A merge then
// moves a few numbers where it would have to move the vectors of all clusters below.
struct Clusters {
    std::vector<ClusterVector> vectors;
    std::vector<int> vector_of;  // [cluster]
    const ClusterVector& operator[](int cluster) const { return vectors[vector_of[cluster]]; }
};

Clusters SamplesAsClusters() {
    ShowDiagramShares();
    const BasisWeights weights = WeightsOfBasis();
    Clusters clusters{std::vector<ClusterVector>(2 * static_cast<std::size_t>(SampleCount)), std::vector<int>(SampleCount + 1)};
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int place = 1; place <= SampleCount; ++place)
            clusters.vectors[place][slot] = static_cast<float>(weights[slot] * DiagramShares[RowOfSlot[slot]][place]);
    for (int cluster = 1; cluster <= SampleCount; ++cluster) clusters.vector_of[cluster] = cluster;
    return clusters;
}

void PlaceSamples() {
    const SamplePositions positions;
    for (int place = 1; place <= SampleCount; ++place) ConissPosition[place] = positions.Y(place);
}

Clusters Prepare() {
    const std::size_t size = static_cast<std::size_t>(SampleCount) + 1;
    ConissSkip = 0;
    ConissDistance.assign(size, 0);
    ConissPosition.assign(size, 0);
    ConissHeight.assign(size, 0);
    MergeUpper.assign(size, 0);
    MergeLower.assign(size, 0);
    MergeHeight.assign(size, 0);
    Clusters clusters = SamplesAsClusters();
    PlaceSamples();
    return clusters;
}

double SquaredDistance(const ClusterVector& a, const ClusterVector& b) {
    double sum = 0;
    for (int slot = 1; slot <= kSlots; ++slot) {
        const double difference = static_cast<double>(a[slot]) - b[slot];
        sum += difference * difference;
    }
    return sum;
}

// The upper cluster of the nearest pair among 1..last; of equal pairs the uppermost.
int NearestPair(int last) {
    float best = std::numeric_limits<float>::infinity();
    int nearest = 1;
    for (int cluster = 1; cluster <= last; ++cluster) {
        const auto distance = static_cast<float>(ConissDistance[cluster]);
        if (distance < best) {
            best = distance;
            nearest = cluster;
        }
    }
    return nearest;
}

void RecordMerge(int step, int upper) {
    const auto distance = static_cast<float>(ConissDistance[upper]);
    MergeUpper[step] = ConissPosition[upper];
    MergeLower[step] = ConissPosition[upper + 1];
    MergeHeight[step] = static_cast<float>(distance + ConissHeight[upper] + ConissHeight[upper + 1]);
}

float Mean(float a, float b) {
    return static_cast<float>((static_cast<double>(a) + b) / 2);
}

void JoinPair(Clusters& clusters, int step, int upper) {
    const ClusterVector& a = clusters[upper];
    const ClusterVector& b = clusters[upper + 1];
    const int place = SampleCount + step;
    ClusterVector& mean = clusters.vectors[place];
    for (int slot = 1; slot <= kSlots; ++slot) mean[slot] = Mean(a[slot], b[slot]);
    clusters.vector_of[upper] = place;
    ConissPosition[upper] = Mean(ConissPosition[upper], ConissPosition[upper + 1]);
    ConissHeight[upper] = MergeHeight[step];
}

// Only the distances of the new cluster to its two neighbours have changed.
void MeasureAgain(const Clusters& clusters, int upper, int last) {
    if (upper != 1) ConissDistance[upper - 1] = SquaredDistance(clusters[upper - 1], clusters[upper]);
    if (upper != last) ConissDistance[upper] = SquaredDistance(clusters[upper], clusters[upper + 2]);
}

template <class T>
void CloseGap(std::vector<T>& of_clusters, int upper, int last) {
    std::copy(of_clusters.begin() + upper + 2, of_clusters.begin() + last + 2, of_clusters.begin() + upper + 1);
}

void Merge(Clusters& clusters, int step, int last) {
    const int upper = NearestPair(last);
    RecordMerge(step, upper);
    JoinPair(clusters, step, upper);
    MeasureAgain(clusters, upper, last);
    CloseGap(clusters.vector_of, upper, last);
    CloseGap(ConissPosition, upper, last);
    CloseGap(ConissDistance, upper, last);
    CloseGap(ConissHeight, upper, last);
}

void KeepVectors(const Clusters& clusters) {
    ConissData.resize(static_cast<std::size_t>(SampleCount) + 1);
    for (int cluster = 1; cluster <= SampleCount; ++cluster) ConissData[cluster] = clusters[cluster];
}
}  // namespace

int LastMerge() {
    return SampleCount - 1 - ConissSkip;
}

void ComputeConiss() {
    const Busy busy(SampleCount);
    Clusters clusters = Prepare();
    for (int cluster = 1; cluster <= LastMerge(); ++cluster)
        ConissDistance[cluster] = SquaredDistance(clusters[cluster], clusters[cluster + 1]);
    for (int step = 1; step <= LastMerge(); ++step) {
        frmMain.Progress.SetValue(step);
        Merge(clusters, step, SampleCount - step - ConissSkip);
    }
    KeepVectors(clusters);
}

// What the diagram of the largest sheet takes before it is painted, and the clustering by the number of samples.
#include <benchmark/benchmark.h>

#include "bench/growing.h"
#include "bench/headless_program.h"
#include "diagram/cluster_tree.h"
#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "diagram/open_diagram.h"
#include "diagram/sample_selector.h"
#include "diagram/taxon_names.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
void OpenDiagram(int samples) {
    TheProgram().Open(SheetOf(samples));
    ClickControl(frmMain.mnuCurve);  // bar and curve: the style with the most lines
}

void DiagramData(benchmark::State& state) {
    OpenDiagram(Samples(state));
    for (auto _ : state) ComputeDiagramData();
}

void Coniss(benchmark::State& state) {
    OpenDiagram(Samples(state));
    for (auto _ : state) ComputeConiss();
}

// The display list of the columns in view; at the smallest horizontal scale these are the most.
void Draw(benchmark::State& state) {
    OpenDiagram(kSampleLimit);
    frmDiagram.Slider2.SetValue(static_cast<int>(state.range(0)));
    for (auto _ : state) DrawDiagram();
}

void Names(benchmark::State& state) {
    OpenDiagram(kSampleLimit);
    for (auto _ : state) DrawTaxonNames();
}

void Tree(benchmark::State& state) {
    OpenDiagram(kSampleLimit);
    ComputeConiss();
    for (auto _ : state) DrawClusterTree();
}

void Marker(benchmark::State& state) {
    OpenDiagram(kSampleLimit);
    for (auto _ : state) DrawSampleMarker();
}

// All that a counting key does to an open diagram.
void Redraw(benchmark::State& state) {
    OpenDiagram(kSampleLimit);
    for (auto _ : state) RedrawDiagram();
}

BENCHMARK(DiagramData)->Apply(Growing);
BENCHMARK(Coniss)->Apply(Growing);
BENCHMARK(Draw)->Arg(1)->Arg(5)->Arg(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(Names)->Unit(benchmark::kMicrosecond);
BENCHMARK(Tree)->Unit(benchmark::kMicrosecond);
BENCHMARK(Marker)->Unit(benchmark::kMicrosecond);
BENCHMARK(Redraw)->Unit(benchmark::kMicrosecond);
}  // namespace

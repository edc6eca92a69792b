#include "diagram/open_diagram.h"

#include "diagram/cluster_tree.h"
#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "diagram/layout.h"
#include "diagram/sample_selector.h"
#include "diagram/taxon_names.h"
#include "platform/services.h"
#include "platform/text.h"
#include "session/state/sample_names.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
void KeepSize() {
    frmDiagram.DiagramFormWidth = frmDiagram.Width();
    frmDiagram.DiagramFormHeight = frmDiagram.Height();
}

void NameBasisItems() {
    MenuItem* const items[] = {&frmDiagram.mnuAll, &frmDiagram.mnuSub1, &frmDiagram.mnuSub2};
    for (int i = 0; i <= kSubtotals; ++i) items[i]->SetCaption(WithoutTrailingColon(frmMain.TotalCaptions[i].Caption()));
    ShowBasisInMenu();
}

// The heights of the samples go by the names as they are now; a later rename waits for the next load.
void TakeUpNames() {
    for (int sample = 1; sample <= SampleCount; ++sample) SampleTable[kSampleNameDrawn][sample] = SampleTable[kSampleName][sample];
}

void TakeUpSamples() {
    SetDiagramScale();
    TakeUpNames();
    frmDiagram.SelectedSample = CurrentSample;
    frmDiagram.SampleSlider.SetRange(1, SampleCount == 1 ? 2 : SampleCount);
    frmDiagram.SampleSlider.SetValue(CurrentSample);
    FillSampleList();
}
}  // namespace

void LaunchDiagram() {
    if (SampleCount < 2) return;
    if (frmDiagram.IsLoaded() || frmDiagram.DiagramFormHeight == 0) KeepSize();
    frmDiagram.Load();
    frmDiagram.ColumnScroll.SetRange(0, 0);  // back to the first column, without an event that would draw
    ComputeDiagramData();
    frmDiagram.TakeSize(frmDiagram.DiagramFormWidth, frmDiagram.DiagramFormHeight);  // lays out and draws, whatever the size was
    frmDiagram.Show();
    DiagramOpen = true;
}

void LaunchInStyle(const DiagramStyle& style) {
    CheckSampleNames();
    CheckStyle(style);
    LaunchDiagram();
}

void DrawInStyle(const DiagramStyle& style) {
    CheckStyle(style);
    DrawDiagram();
}

void LoadDiagramWindow() {
    NameBasisItems();
    FitNameStrip();
    MeasureMargins();
    TakeUpSamples();
}

void EndDiagram() {
    KeepSize();
    DiagramOpen = false;
    if (MousePointer == kPointerSize) MousePointer = kPointerDefault;  // it was on the sample line, and only a picture takes it back
}

void CloseDiagram() {
    frmDiagram.Unload();
    DiagramOpen = false;
}

void RebuildDiagram() {
    if (!DiagramOpen) return;
    ComputeDiagramData();
    TakeUpSamples();
    DrawDiagram();
    DrawTaxonNames();
    PlaceSampleSelector();
    ClusterAgain();
}

void RedrawDiagram() {
    if (!DiagramOpen) return;
    ComputeDiagramData();
    DrawDiagram();
    DrawTaxonNames();
}

void FollowBasis() {
    if (!DiagramOpen) return;
    ShowBasisInMenu();
    RedrawDiagram();
    ClusterAgain();
}

void ChooseBasisItem(int option) {
    OptionButton& basis = frmMain.BasisOptions[option];
    if (!basis.Value()) {
        basis.SetValue(true);  // its click draws everything
        return;
    }
    RedrawDiagram();
    if (frmDiagram.ClusterTree.Visible()) DrawClusterTree();
    AlarmArmed = true;
}

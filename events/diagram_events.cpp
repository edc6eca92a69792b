#include "diagram/cluster_tree.h"
#include "diagram/draw_diagram.h"
#include "diagram/layout.h"
#include "diagram/mouse_tools.h"
#include "diagram/open_diagram.h"
#include "diagram/sample_selector.h"
#include "diagram/taxon_names.h"
#include "events/join.h"
#include "platform/services.h"
#include "platform/user.h"
#include "windows/diagram_window.h"

namespace {
void JoinWindow() {
    frmDiagram.Loaded.Calls(LoadDiagramWindow);
    frmDiagram.Unloading.Calls(EndDiagram);
    frmDiagram.Resized.Calls(ResizeDiagram);
}

void JoinMenus() {
    frmDiagram.mnuAll.Click.Calls([] { ChooseBasisItem(0); });
    frmDiagram.mnuSub1.Click.Calls([] { ChooseBasisItem(1); });
    frmDiagram.mnuSub2.Click.Calls([] { ChooseBasisItem(2); });
    for (const DiagramStyle& style : kDiagramStyles) {
        (frmDiagram.*style.item).Click.Calls([&style] { TakeStyle(style); });
        (frmMain.*style.main_item).Click.Calls([&style] { LaunchInStyle(style); });
    }
    for (MenuItem* item : {&frmDiagram.mnuVertical, &frmDiagram.mnuVertical1, &frmDiagram.mnuVertical2})
        item->Click.Calls(ToggleVerticalLine);
    for (MenuItem* item : {&frmDiagram.mnuHorizontal, &frmDiagram.mnuHorizontal1, &frmDiagram.mnuHorizontal2})
        item->Click.Calls(ToggleHorizontalLine);
    frmDiagram.mnuTaxaName.Click.Calls([] { frmDiagram.mnuTaxaName.SetChecked(!frmDiagram.mnuTaxaName.Checked()); });
    frmDiagram.nmuConiss.Click.Calls(ToggleTree);
    frmDiagram.mnuCopyDiagram.Click.Calls([] { services.clipboard->PutImage(frmDiagram.Diagram); });
    frmDiagram.mnuCopyConiss.Click.Calls([] { services.clipboard->PutImage(frmDiagram.ClusterTree); });
    frmDiagram.mnuCopyTaxaName.Click.Calls(CopyTaxonNames);
    frmDiagram.mnuSaveConiss.Click.Calls(SaveMergeList);
    frmDiagram.mnuSaveEOF.Click.Calls([] { frmDiagram.SaveEOF(); });
    frmDiagram.mnuSaveAllEOF.Click.Calls([] { frmDiagram.SaveAllEOF(); });
}

// 0 is no scale: the slider goes on to 1, and the change to that draws.
void TakeHorizontalScale() {
    if (frmDiagram.HorizontalScale.Value() < 1) {
        frmDiagram.HorizontalScale.SetValue(1);
        return;
    }
    RedrawDiagram();
    frmDiagram.SampleSlider.SetFocus();
}

void TakeScroll() {
    DrawTaxonNames();
    DrawDiagram();
    frmDiagram.SampleSlider.SetFocus();
}

void JoinSliders() {
    frmDiagram.HorizontalScale.Change.Calls(TakeHorizontalScale);
    frmDiagram.ColumnScroll.Change.Calls(TakeScroll);
    frmDiagram.SampleSlider.Change.Calls(TakeSelectedSample);
    frmDiagram.SampleSlider.KeyUp.Calls([](int) { TakeSelectedSample(); });
}

void JoinSelector() {
    frmDiagram.SampleList.Click.Calls(SelectChosenSample);
    frmDiagram.SampleArrows.UpClick.Calls(SelectNextSample);
    frmDiagram.SampleArrows.DownClick.Calls(SelectPreviousSample);
    frmDiagram.SampleLine.Click.Calls(DrawSampleMarker);
    frmDiagram.LastMoveButton.Click.Calls(ShowMoveReadOuts);
}

void JoinPicture(PictureBox& picture, int source) {
    picture.MouseMove.Calls([source](Mouse mouse) { MoveOverPicture(mouse, source); });
    picture.MouseDown.Calls([source](Mouse mouse) { PressOnPicture(mouse, source); });
    picture.MouseUp.Calls([](Mouse) { ReleaseOnPicture(); });
}

void JoinSurroundings() {
    const auto leave_and_mark = [](Mouse) {
        DrawSampleMarker();
        LeavePictures();
    };
    frmDiagram.MouseMove.Calls(leave_and_mark);
    frmDiagram.NameStrip.MouseMove.Calls(leave_and_mark);
    frmDiagram.Selector.MouseMove.Calls([](Mouse) { LeavePictures(); });
    frmDiagram.SampleArrows.MouseMove.Calls([](Mouse) { LeavePictures(); });
    frmDiagram.NameStrip.MouseDown.Calls([](Mouse mouse) {
        if (mouse.button == MouseButton::Right) OpenPopup(frmDiagram.RB3);
    });
}
}  // namespace

void JoinDiagramEvents() {
    JoinWindow();
    JoinMenus();
    JoinSliders();
    JoinSelector();
    JoinPicture(frmDiagram.Diagram, kOverDiagram);
    JoinPicture(frmDiagram.ClusterTree, kOverTree);
    JoinSurroundings();
}

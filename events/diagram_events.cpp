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

namespace {
void JoinWindow(DiagramWindow& window) {
    window.Loaded.Calls(LoadDiagramWindow);
    window.Unloading.Calls(EndDiagram);
    window.Resized.Calls(ResizeDiagram);
}

void JoinMenus(DiagramWindow& window) {
    window.mnuAll.Click.Calls([] { ChooseBasisItem(0); });
    window.mnuSub1.Click.Calls([] { ChooseBasisItem(1); });
    window.mnuSub2.Click.Calls([] { ChooseBasisItem(2); });
    for (const DiagramStyle& style : kDiagramStyles) {
        (frmDiagram.*style.item).Click.Calls([&style] { DrawInStyle(style); });
        (frmMain.*style.main_item).Click.Calls([&style] { LaunchInStyle(style); });
    }
    for (MenuItem* item : {&window.mnuVertical, &window.mnuVertical1, &window.mnuVertical2}) item->Click.Calls(ToggleVerticalLine);
    for (MenuItem* item : {&window.mnuHorizontal, &window.mnuHorizontal1, &window.mnuHorizontal2}) item->Click.Calls(ToggleHorizontalLine);
    window.mnuTaxaName.Click.Calls([&window] { window.mnuTaxaName.SetChecked(!window.mnuTaxaName.Checked()); });
    window.nmuConiss.Click.Calls(ToggleTree);
    window.mnuCopyDiagram.Click.Calls([&window] { services.clipboard->PutImage(window.Diagram); });
    window.mnuCopyConiss.Click.Calls([&window] { services.clipboard->PutImage(window.ClusterTree); });
    window.mnuCopyTaxaName.Click.Calls(CopyTaxonNames);
    window.mnuSaveConiss.Click.Calls(SaveMergeList);
    window.mnuSaveEOF.Click.Calls([&window] { window.SaveEOF(); });
    window.mnuSaveAllEOF.Click.Calls([&window] { window.SaveAllEOF(); });
}

// 0 is no scale: the slider goes on to 1, and the change to that draws.
void ApplyHorizontalScale(DiagramWindow& window) {
    if (window.HorizontalScale.Value() < 1) {
        window.HorizontalScale.SetValue(1);
        return;
    }
    RedrawDiagram();
    window.SampleSlider.SetFocus();
}

void ScrollColumns(DiagramWindow& window) {
    DrawTaxonNames();
    DrawDiagram();
    window.SampleSlider.SetFocus();
}

void JoinSliders(DiagramWindow& window) {
    window.HorizontalScale.Change.Calls([&window] { ApplyHorizontalScale(window); });
    window.ColumnScroll.Change.Calls([&window] { ScrollColumns(window); });
    window.SampleSlider.Change.Calls(FollowSampleSlider);
    window.SampleSlider.KeyUp.Calls([](int) { FollowSampleSlider(); });
}

void JoinSelector(DiagramWindow& window) {
    window.SampleList.Click.Calls(SelectChosenSample);
    window.SampleArrows.UpClick.Calls(SelectNextSample);
    window.SampleArrows.DownClick.Calls(SelectPreviousSample);
    window.SampleLine.Click.Calls(DrawSampleMarker);
    window.LastMoveButton.Click.Calls(ShowMoveReadOuts);
}

void JoinPicture(PictureBox& picture, int source) {
    picture.MouseMove.Calls([source](Mouse mouse) { MoveOverPicture(mouse, source); });
    picture.MouseDown.Calls([source](Mouse mouse) { PressOnPicture(mouse, source); });
    picture.MouseUp.Calls([](Mouse) { ReleaseOnPicture(); });
}

void JoinSurroundings(DiagramWindow& window) {
    const auto leave_and_mark = [](Mouse) {
        DrawSampleMarker();
        LeavePictures();
    };
    window.MouseMove.Calls(leave_and_mark);
    window.NameStrip.MouseMove.Calls(leave_and_mark);
    window.Selector.MouseMove.Calls([](Mouse) { LeavePictures(); });
    window.SampleArrows.MouseMove.Calls([](Mouse) { LeavePictures(); });
    window.NameStrip.MouseDown.Calls([&window](Mouse mouse) {
        if (mouse.button == MouseButton::Right) OpenPopup(window.RB3);
    });
}
}  // namespace

void JoinDiagramEvents(DiagramWindow& window) {
    JoinWindow(window);
    JoinMenus(window);
    JoinSliders(window);
    JoinSelector(window);
    JoinPicture(window.Diagram, kOverDiagram);
    JoinPicture(window.ClusterTree, kOverTree);
    JoinSurroundings(window);
}

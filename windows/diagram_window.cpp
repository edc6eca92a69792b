#include "windows/diagram_window.h"

#include "platform/window_table.h"

DiagramWindow frmDiagram;

namespace {
constexpr int kTreeWidth = 2000;
constexpr int kTreeLeft = kDiagramWidth - kDiagramRightEdge - kTreeWidth;
constexpr int kSelectorWidth = 1080;
constexpr int kSelectorLeft = kDiagramWidth - kDiagramRightEdge - kSelectorWidth;
constexpr int kArrowsWidth = 240;
constexpr int kArrowsLeft = kSelectorLeft - kArrowsWidth;
constexpr int kPictureLeft = 420;
constexpr int kPictureWidth = kArrowsLeft - 30 - kPictureLeft;
constexpr int kNamesTop = 350;
constexpr int kPictureTop = kNamesTop + kNamesHeight;
constexpr int kPictureHeight = 4560;
constexpr int kBelow = kPictureTop + kPictureHeight;
constexpr int kStatusHeight = 180;
constexpr int kSampleNames = 1;  // a size group

constexpr Style kDrawn{.tab_stop = false};
constexpr Style kDrawnOnGround{.back = kFormColour, .tab_stop = false};
constexpr Style kHiddenPicture{.visible = false, .tab_stop = false};
}  // namespace

DiagramWindow::DiagramWindow() : Window("frmDiagram", "Diagram", kDiagramWidth, kDiagramHeight) {
    resizable = true;
    LayControls();
    LayMenuBar();
    LayPopups();
    FirstFocus(Slider1);
    ForgetMembers();
    KeepDesign();
}

void DiagramWindow::LayControls() {
    // The list and the arrows are centred on the line of the sample, 420 below the frame's top.
    Lay({
        {Label1, "Label1", nullptr, {kPictureLeft, 55, 1440, 240}, "Horizontal scale"},
        {Slider2, "Slider2", nullptr, {1920, 10, 1860, 330}, "", kPlain, "Horizontal scale"},
        {Command1, "Command1", nullptr, {kDiagramWidth - kDiagramRightEdge - 960, 25, 960, 300}, "Last move"},
        {Text1, "Text1", nullptr, {kDiagramWidth - kDiagramRightEdge - 2040, 25, 480, 300}, "", kHidden, "Moved from"},
        {Text2, "Text2", nullptr, {kDiagramWidth - kDiagramRightEdge - 1500, 25, 480, 300}, "", kHidden, "Moved to"},

        {Picture4, "Picture4", nullptr, {kPictureLeft, kNamesTop, kPictureWidth, kNamesHeight}, "", kDrawnOnGround, "Taxa names"},
        {Picture1, "Picture1", nullptr, {kPictureLeft, kPictureTop, kPictureWidth, kPictureHeight}, "", kDrawn, "Diagram"},
        {Picture2, "Picture2", nullptr, {kTreeLeft, kPictureTop, kTreeWidth, kPictureHeight}, "", kHiddenPicture, "Cluster tree"},
        {HScroll1, "HScroll1", nullptr, {kPictureLeft, kBelow + 20, kPictureWidth, 240}, "", kPlain, "Columns in view"},
        {Picture3, "Picture3", nullptr, {0, kBelow + 270, kDiagramWidth, 70}, "", kDrawnOnGround, "Band below the diagram"},
        {StatusBar1, "StatusBar1", nullptr, {0, kDiagramHeight - kStatusHeight, kDiagramWidth, kStatusHeight}, "", kPlain, "Status"},

        {Slider1, "Slider1", nullptr, {60, kPictureTop, 330, kPictureHeight}, "", kPlain, "Selected sample"},
        {UpDown1, "UpDown1", nullptr, {kArrowsLeft, kPictureTop + 240, kArrowsWidth, 360}, "", kPlain, "Next or previous sample"},
        {Frame3, "Frame3", nullptr, {kSelectorLeft, kPictureTop, kSelectorWidth, 600}, "", kPlain, "Beside the selected sample"},
        {Check1, "Check1", &Frame3, {30, 0, kSelectorWidth - 30, 240}, "", kPlain, "Line of the selected sample stays"},
        {Combo2, "Combo2", &Frame3, {0, 255, kSelectorWidth, 330}, "", kPlain, "Selected sample"},
    });
    Check1.size_group = Combo2.size_group = kSampleNames;
    Slider2.SetRange(0, 10);
    Slider2.SetSteps(1, 1);
    Slider2.SetValue(5);
    Text1.centred = Text2.centred = true;
    HScroll1.SetRange(0, 0);
    Slider1.vertical = true;
    Slider1.SetRange(1, 2);
    Slider1.SetSteps(1, 5);
    Slider1.SetValue(1);
    Frame3.SetBorder(false);
}

void DiagramWindow::LayMenuBar() {
    LayMenus({
        {mnuBasis, "mnuBasis", nullptr, "% &Basis"},
        {mnuSub1, "mnuSub1", &mnuBasis, "Subtotal-1"},
        {mnuSub2, "mnuSub2", &mnuBasis, "Subtotal-2"},
        {mnuAll, "mnuAll", &mnuBasis, "All total"},

        {mnuDrawMode, "mnuDrawMode", nullptr, "&Style"},
        {mnuBar, "mnuBar", &mnuDrawMode, "&Bar"},
        {mnuArea, "mnuArea", &mnuDrawMode, "&Curve"},
        {mnuDot, "mnuDot", &mnuDrawMode, "&Dot (>0.5% only)"},
        {Break10, "Break10", &mnuDrawMode, "-"},
        {mnuCurve, "mnuCurve", &mnuDrawMode, "Bar and curve"},
        {mnuDotCurve, "mnuDotCurve", &mnuDrawMode, "Dot and curve"},

        {nmuTools, "nmuTools", nullptr, "&Tools"},
        {mnuVertical, "mnuVertical", &nmuTools, "Vertical line"},
        {mnuHorizontal, "mnuHorizontal", &nmuTools, "Horizontal line"},
        {mnuTaxaName, "mnuTaxaName", &nmuTools, "Taxa name"},
        {break3, "break3", &nmuTools, "-"},
        {nmuConiss, "nmuConiss", &nmuTools, "&CONISS"},
        {brake1, "brake1", &nmuTools, "-"},
        {mnuECC, "mnuECC", &nmuTools, "&EOF-Climate correlation"},
    });
    mnuAll.SetChecked(true);
    mnuBar.SetChecked(true);
}

void DiagramWindow::LayPopups() {
    LayMenus({
        {RB1, "RB1", nullptr, "RightButton1", kHidden},
        {mnuCopyDiagram, "mnuCopyDiagram", &RB1, "&Copy"},
        {break21, "break21", &RB1, "-"},
        {mnuVertical1, "mnuVertical1", &RB1, "Vertical line"},
        {mnuHorizontal1, "mnuHorizontal1", &RB1, "Horizontal line"},

        {RB2, "RB2", nullptr, "RightButton2", kHidden},
        {mnuCopyEOF, "mnuCopyEOF", &RB2, "&Copy"},
        {mnuSaveEOF, "mnuSaveEOF", &RB2, "&Save This EOF Only"},
        {mnuSaveAllEOF, "mnuSaveAllEOF", &RB2, "Save &All EOF"},

        {RB3, "RB3", nullptr, "RightButton3", kHidden},
        {mnuCopyTaxaName, "mnuCopyTaxaName", &RB3, "&Copy"},

        {RBConiss, "RBConiss", nullptr, "RightButton4", kHidden},
        {mnuCopyConiss, "mnuCopyConiss", &RBConiss, "&Copy"},
        {break22, "break22", &RBConiss, "-"},
        {mnuSaveConiss, "mnuSaveConiss", &RBConiss, "Save matrix"},
        {Break20, "Break20", &RBConiss, "-"},
        {mnuVertical2, "mnuVertical2", &RBConiss, "Vertical line"},
        {mnuHorizontal2, "mnuHorizontal2", &RBConiss, "Horizontal line"},
    });
}

void DiagramWindow::ForgetMembers() {
    Picture1.SetScaleWidth(kUnitsAcross);
    DiagramResizeGuard = SliderDragging = MovingSample = ConissDrawn = false;
}

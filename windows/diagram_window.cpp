#include "windows/diagram_window.h"

DiagramWindow frmDiagram;

namespace {
constexpr int kPictureLeft = 420;
constexpr int kPictureWidth = 7425;  // names stand 0.99 pixels a unit: 495 pixels bring them over their columns
constexpr int kNamesTop = 350;
constexpr int kNamesHeight = 2105;  // room for 25 letters
constexpr int kPictureTop = kNamesTop + kNamesHeight;
constexpr int kPictureHeight = 4560;
constexpr int kTreeWidth = 2000;
constexpr int kSelectorLeft = 8115;
constexpr int kSelectorWidth = kDiagramWidth - kDiagramRightEdge - kSelectorLeft;
constexpr int kArrowsWidth = 240;
constexpr int kStatusHeight = 180;
}  // namespace

DiagramWindow::DiagramWindow() : Window("frmDiagram", "Diagram", kDiagramWidth, kDiagramHeight) {
    resizable = true;
    PlaceTopRow();
    PlacePictures();
    PlaceSelector();
    PlaceMenuBar();
    PlacePopups();
    FirstFocus(Slider1);
    ForgetMembers();
    KeepDesign();
}

void DiagramWindow::PlaceTopRow() {
    Add(Slider2, "Slider2", -1, nullptr, {kPictureLeft, 10, 2400, 330});
    Slider2.SetRange(0, 10);
    Slider2.SetSteps(1, 1);
    Slider2.SetValue(5);
    Slider2.SetToolTip("Horizontal scale");
    Slider2.accessible_name = "Horizontal scale";
    Add(Command1, "Command1", -1, nullptr, {2940, 25, 960, 300});
    Command1.SetCaption("Last move");
    Add(Text1, "Text1", -1, nullptr, {3960, 25, 480, 300});
    Text1.accessible_name = "Moved from";
    Add(Text2, "Text2", -1, nullptr, {4500, 25, 480, 300});
    Text2.accessible_name = "Moved to";
    for (TextBox* box : {&Text1, &Text2}) {
        box->centred = true;
        box->SetVisible(false);
    }
}

void DiagramWindow::PlacePictures() {
    Add(Picture4, "Picture4", -1, nullptr, {kPictureLeft, kNamesTop, kPictureWidth, kNamesHeight});
    Picture4.SetBackColor(kFormColour);
    Picture4.accessible_name = "Taxa names";
    Add(Picture1, "Picture1", -1, nullptr, {kPictureLeft, kPictureTop, kPictureWidth, kPictureHeight});
    Picture1.accessible_name = "Diagram";
    Add(Picture2, "Picture2", -1, nullptr, {kDiagramWidth - kDiagramRightEdge - kTreeWidth, kPictureTop, kTreeWidth, kPictureHeight});
    Picture2.SetVisible(false);
    Picture2.accessible_name = "Cluster tree";
    const int below = kPictureTop + kPictureHeight;
    Add(HScroll1, "HScroll1", -1, nullptr, {kPictureLeft, below + 20, kPictureWidth, 240});
    HScroll1.SetRange(0, 0);
    HScroll1.accessible_name = "Columns in view";
    Add(Picture3, "Picture3", -1, nullptr, {0, below + 270, kDiagramWidth, 70});
    Picture3.SetBackColor(kFormColour);
    Picture3.accessible_name = "Band below the diagram";
    for (PictureBox* picture : {&Picture1, &Picture2, &Picture3, &Picture4}) picture->tab_stop = false;
    Add(StatusBar1, "StatusBar1", -1, nullptr, {0, kDiagramHeight - kStatusHeight, kDiagramWidth, kStatusHeight});
    StatusBar1.accessible_name = "Status";
}

void DiagramWindow::PlaceSelector() {
    Add(Slider1, "Slider1", -1, nullptr, {60, kPictureTop, 330, kPictureHeight});
    Slider1.vertical = true;
    Slider1.SetRange(1, 2);
    Slider1.SetSteps(1, 5);
    Slider1.SetValue(1);
    Slider1.accessible_name = "Selected sample";
    // The list and the arrows are centred on the line of the sample, 420 below the frame's top.
    Add(UpDown1, "UpDown1", -1, nullptr, {kSelectorLeft - kArrowsWidth, kPictureTop + 240, kArrowsWidth, 360});
    UpDown1.accessible_name = "Next or previous sample";
    Add(Frame3, "Frame3", -1, nullptr, {kSelectorLeft, kPictureTop, kSelectorWidth, 600});
    Frame3.SetBorder(false);
    Frame3.accessible_name = "Beside the selected sample";
    Add(Check1, "Check1", -1, &Frame3, {30, 0, kSelectorWidth - 30, 240});
    Check1.accessible_name = "Line of the selected sample stays";
    Add(Combo2, "Combo2", -1, &Frame3, {0, 255, kSelectorWidth, 330});
    Combo2.accessible_name = "Selected sample";
}

void DiagramWindow::AddItem(MenuItem& item, const char* item_name, MenuItem* menu, const char* caption) {
    Add(item, item_name, -1, menu, {});
    item.SetCaption(caption);
}

void DiagramWindow::PlaceMenuBar() {
    AddItem(mnuBasis, "mnuBasis", nullptr, "% &Basis");
    AddItem(mnuSub1, "mnuSub1", &mnuBasis, "Subtotal-1");
    AddItem(mnuSub2, "mnuSub2", &mnuBasis, "Subtotal-2");
    AddItem(mnuAll, "mnuAll", &mnuBasis, "All total");
    mnuAll.SetChecked(true);

    AddItem(mnuDrawMode, "mnuDrawMode", nullptr, "&Style");
    AddItem(mnuBar, "mnuBar", &mnuDrawMode, "&Bar");
    AddItem(mnuArea, "mnuArea", &mnuDrawMode, "&Curve");
    AddItem(mnuDot, "mnuDot", &mnuDrawMode, "&Dot (>0.5% only)");
    AddItem(Break10, "Break10", &mnuDrawMode, "-");
    AddItem(mnuCurve, "mnuCurve", &mnuDrawMode, "Bar and curve");
    AddItem(mnuDotCurve, "mnuDotCurve", &mnuDrawMode, "Dot and curve");
    mnuBar.SetChecked(true);

    AddItem(nmuTools, "nmuTools", nullptr, "&Tools");
    AddItem(mnuVertical, "mnuVertical", &nmuTools, "Vertical line");
    AddItem(mnuHorizontal, "mnuHorizontal", &nmuTools, "Horizontal line");
    AddItem(mnuTaxaName, "mnuTaxaName", &nmuTools, "Taxa name");
    AddItem(break3, "break3", &nmuTools, "-");
    AddItem(nmuConiss, "nmuConiss", &nmuTools, "&CONISS");
    AddItem(brake1, "brake1", &nmuTools, "-");
    AddItem(mnuECC, "mnuECC", &nmuTools, "&EOF-Climate correlation");
}

void DiagramWindow::PlacePopups() {
    AddItem(RB1, "RB1", nullptr, "RightButton1");
    AddItem(mnuCopyDiagram, "mnuCopyDiagram", &RB1, "&Copy");
    AddItem(break21, "break21", &RB1, "-");
    AddItem(mnuVertical1, "mnuVertical1", &RB1, "Vertical line");
    AddItem(mnuHorizontal1, "mnuHorizontal1", &RB1, "Horizontal line");

    AddItem(RB2, "RB2", nullptr, "RightButton2");
    AddItem(mnuCopyEOF, "mnuCopyEOF", &RB2, "&Copy");
    AddItem(mnuSaveEOF, "mnuSaveEOF", &RB2, "&Save This EOF Only");
    AddItem(mnuSaveAllEOF, "mnuSaveAllEOF", &RB2, "Save &All EOF");

    AddItem(RB3, "RB3", nullptr, "RightButton3");
    AddItem(mnuCopyTaxaName, "mnuCopyTaxaName", &RB3, "&Copy");

    AddItem(RBConiss, "RBConiss", nullptr, "RightButton4");
    AddItem(mnuCopyConiss, "mnuCopyConiss", &RBConiss, "&Copy");
    AddItem(break22, "break22", &RBConiss, "-");
    AddItem(mnuSaveConiss, "mnuSaveConiss", &RBConiss, "Save matrix");
    AddItem(Break20, "Break20", &RBConiss, "-");
    AddItem(mnuVertical2, "mnuVertical2", &RBConiss, "Vertical line");
    AddItem(mnuHorizontal2, "mnuHorizontal2", &RBConiss, "Horizontal line");
    for (MenuItem* popup : {&RB1, &RB2, &RB3, &RBConiss}) popup->SetVisible(false);
}

void DiagramWindow::ForgetMembers() {
    Picture1.SetScaleWidth(kUnitsAcross);
    DiagramResizeGuard = SliderDragging = MovingSample = ConissDrawn = false;
}

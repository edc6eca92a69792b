// frmDiagram: the stratigraphic diagram of the open sheet, the tree beside it, and what chooses their basis, style, scale and sample.
#pragma once
#include <cstdint>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"

struct DiagramWindow : Window {
    DiagramWindow();

    Label Label1;
    Slider Slider2;
    Slider& HorizontalScale = Slider2;  // 0..10; 5 is the plain one, 0 is refused
    Button Command1;
    Button& LastMoveButton = Command1;  // shows the two boxes beside it
    TextBox Text1, Text2;
    TextBox& MovedFrom = Text1;
    TextBox& MovedTo = Text2;
    PictureBox Picture4;
    PictureBox& NameStrip = Picture4;  // the names of the taxa, as wide as the diagram
    PictureBox Picture1;
    PictureBox& Diagram = Picture1;
    PictureBox Picture2;
    PictureBox& ClusterTree = Picture2;  // hidden until nmuConiss is on
    Slider Slider1;
    Slider& SampleSlider = Slider1;  // the selected sample, 1..SampleCount
    UpDown UpDown1;
    UpDown& SampleArrows = UpDown1;  // the same, a step a click
    Frame Frame3;
    Frame& Selector = Frame3;  // beside the selected sample
    CheckBox Check1;
    CheckBox& SampleLine = Check1;  // ticked, the line of the selected sample stays in view
    ComboBox Combo2;
    ComboBox& SampleList = Combo2;
    ScrollBar HScroll1;
    ScrollBar& ColumnScroll = HScroll1;  // in percent units
    PictureBox Picture3;
    PictureBox& Band = Picture3;  // plain, below the scroll bar
    StatusBar StatusBar1;
    StatusBar& Status = StatusBar1;

    MenuItem mnuBasis, mnuSub1, mnuSub2, mnuAll;
    MenuItem mnuDrawMode, mnuBar, mnuArea, mnuDot, Break10, mnuCurve, mnuDotCurve;  // mnuArea reads "Curve", mnuCurve "Bar and curve"
    MenuItem nmuTools, mnuVertical, mnuHorizontal, mnuTaxaName, break3, nmuConiss, brake1, mnuECC;
    MenuItem RB1, mnuCopyDiagram, break21, mnuVertical1, mnuHorizontal1;
    MenuItem RB2, mnuCopyEOF, mnuSaveEOF, mnuSaveAllEOF;
    MenuItem RB3, mnuCopyTaxaName;
    MenuItem RBConiss, mnuCopyConiss, break22, mnuSaveConiss, Break20, mnuVertical2, mnuHorizontal2;

    std::int16_t SelectedSample = 0;  // the sample of Slider1
    float DiagramTop = 0;             // scale of Picture1: 10 a sample, with a margin above and below
    float DiagramHeight = 0;
    std::int32_t DiagramFormHeight = 0;  // the size of the window at opening, in twips; 0 before the first. It outlives the window
    std::int32_t DiagramFormWidth = 0;
    std::int16_t WidthMargin = 0;  // between the edges of the window and its controls, in twips
    std::int16_t HeightMargin = 0;
    std::int16_t ScrollMargin = 0;
    std::int16_t SliderMargin = 0;
    std::int16_t FrameMargin = 0;
    std::int16_t BandMargin = 0;
    bool DiagramResizeGuard = false;  // the program itself changes the size: Resized does nothing
    bool SliderDragging = false;      // from a press on the sample line to its release
    bool MovingSample = false;        // the same, with the right button and named samples: the column goes along
    bool ConissDrawn = false;         // the tree is open and drawn

    // The members that hold no control, as ForEachSheetVariable.
    template <class Visit>
    void ForEachVariable(Visit visit) {
        visit("SelectedSample", SelectedSample);
        visit("DiagramTop", DiagramTop);
        visit("DiagramHeight", DiagramHeight);
        visit("DiagramFormHeight", DiagramFormHeight);
        visit("DiagramFormWidth", DiagramFormWidth);
        visit("WidthMargin", WidthMargin);
        visit("HeightMargin", HeightMargin);
        visit("ScrollMargin", ScrollMargin);
        visit("SliderMargin", SliderMargin);
        visit("FrameMargin", FrameMargin);
        visit("BandMargin", BandMargin);
        visit("DiagramResizeGuard", DiagramResizeGuard);
        visit("SliderDragging", SliderDragging);
        visit("MovingSample", MovingSample);
        visit("ConissDrawn", ConissDrawn);
    }

    void SaveEOF() {}  // both empty: docs/quirks.md
    void SaveAllEOF() {}

private:
    void LayControls();
    void LayMenuBar();
    void LayPopups();
    void ForgetMembers() override;
};

constexpr int kNamesHeight = 2105;   // of the strip of names, in twips; more if a name takes it
constexpr int kDiagramWidth = 9735;  // of the window at its first opening, in twips
constexpr int kDiagramHeight = 7545;
constexpr int kDiagramRightEdge = 60;  // free at the right, in twips
constexpr double kUnitsAcross = 500;   // width of the diagram in the units of its scale

extern DiagramWindow frmDiagram;

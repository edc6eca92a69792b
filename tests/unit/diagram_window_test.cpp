// The diagram's window: its opening, its scale, its layout at any size, and the group that names the selected sample.
#include <algorithm>
#include <cmath>

#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "diagram/layout.h"
#include "diagram/open_diagram.h"
#include "diagram/sample_selector.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
using DiagramWindowTest = ThreeDepthsTest;

TEST_F(DiagramWindowTest, TheScaleHasAMarginAboveAndBelowTheSamples) {
    struct {
        std::int16_t samples;
        float top, height;
        double shown_height;
    } cases[] = {{1, 10, 0, 100}, {2, 9.75F, 10.5F, 10.5}, {3, 9.5F, 21, 21},     {4, 9, 32, 32},
                 {7, 9, 62, 62},  {8, 8, 74, 74},          {250, -52, 2614, 2614}};
    for (const auto& each : cases) {
        SampleCount = each.samples;
        SetDiagramScale();
        EXPECT_EQ(frmDiagram.DiagramTop, each.top) << each.samples;
        EXPECT_EQ(frmDiagram.DiagramHeight, each.height) << each.samples;
        EXPECT_EQ(frmDiagram.Picture1.ScaleTop(), each.top) << each.samples;
        EXPECT_EQ(frmDiagram.Picture1.ScaleHeight(), each.shown_height) << each.samples;
        EXPECT_EQ(frmDiagram.Picture1.ScaleWidth(), 500) << each.samples;
    }
}

TEST_F(DiagramWindowTest, WithOneSampleNothingHappens) {
    SampleCount = CurrentSample = 1;
    Open(frmMain.mnuBar);
    EXPECT_FALSE(frmDiagram.Visible());
    EXPECT_FALSE(frmDiagram.IsLoaded());
    EXPECT_FALSE(DiagramOpen);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
}

TEST_F(DiagramWindowTest, TheBasisItemsBearTheNamesOfTheSums) {
    frmMain.Label2[1].SetCaption("Trees:");
    frmMain.Label2[2].SetCaption("Herbs: all:");
    frmMain.Option1[2].SetValue(true);
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.mnuAll.Caption(), "All total");
    EXPECT_EQ(frmDiagram.mnuSub1.Caption(), "Trees");
    EXPECT_EQ(frmDiagram.mnuSub2.Caption(), "Herbs: all");
    EXPECT_TRUE(frmDiagram.mnuSub2.Checked());
    EXPECT_FALSE(frmDiagram.mnuAll.Checked());
}

TEST_F(DiagramWindowTest, OpeningItDrawsOnce) {
    Open(frmMain.mnuBar);
    const int first = frmDiagram.Picture1.PersistentVersion();
    Open(frmMain.mnuBar);  // to the front
    const int once = frmDiagram.Picture1.PersistentVersion() - first;
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.Picture1.PersistentVersion() - first, 2 * once);
    ClickControl(frmDiagram.mnuBar);
    EXPECT_EQ(frmDiagram.Picture1.PersistentVersion() - first, 3 * once);
}

TEST_F(DiagramWindowTest, TheSizeOfTheUserIsKeptForTheNextOpening) {
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.DiagramFormWidth, 9735);
    EXPECT_EQ(frmDiagram.DiagramFormHeight, 7545);
    ResizeWindow(frmDiagram, 11000, 8000);
    CloseWindow(frmDiagram);
    EXPECT_FALSE(DiagramOpen);
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.Width(), 11000);
    EXPECT_EQ(frmDiagram.Height(), 8000);
    EXPECT_EQ(frmDiagram.Picture1.Width(), frmDiagram.Picture1.DesignBox().width + 11000 - 9735);
}

TEST_F(DiagramWindowTest, ControlsKeepTheirDistanceFromTheEdges) {
    Open(frmMain.mnuBar);
    const Box picture = frmDiagram.Picture1.State().box;
    const int scroll_top = frmDiagram.HScroll1.Top(), slider_height = frmDiagram.Slider1.Height(), band_top = frmDiagram.Picture3.Top();
    const int frame_left = frmDiagram.Frame3.Left();
    ResizeWindow(frmDiagram, 9735 + 600, 7545 - 450);
    EXPECT_EQ(frmDiagram.Picture1.Width(), picture.width + 600);
    EXPECT_EQ(frmDiagram.Picture1.Height(), picture.height - 450);
    EXPECT_EQ(frmDiagram.Picture4.Width(), picture.width + 600);
    EXPECT_EQ(frmDiagram.HScroll1.Top(), scroll_top - 450);
    EXPECT_EQ(frmDiagram.HScroll1.Width(), picture.width + 600);
    EXPECT_EQ(frmDiagram.Slider1.Height(), slider_height - 450);
    EXPECT_EQ(frmDiagram.Picture3.Top(), band_top - 450);
    EXPECT_EQ(frmDiagram.Frame3.Left(), frame_left + 600);
    EXPECT_EQ(frmDiagram.UpDown1.Left(), frame_left + 600 - 240);
}

TEST_F(DiagramWindowTest, NoControlOverlapsAnotherNorLeavesTheWindow) {
    Open(frmMain.mnuBar);
    for (const bool tree : {false, true}) {
        if (tree) ClickControl(frmDiagram.nmuConiss);
        std::vector<const Control*> shown;
        for (const Control* control : frmDiagram.Controls())
            if (!control->container && control->Visible() && control->kind() != Kind::MenuItem) shown.push_back(control);
        for (const Control* one : shown) {
            EXPECT_GE(one->Left(), 0) << one->name;
            EXPECT_LE(one->Left() + one->Width(), frmDiagram.Width()) << one->name;
            EXPECT_LE(one->Top() + one->Height(), frmDiagram.Height()) << one->name;
            for (const Control* other : shown)
                EXPECT_TRUE(one == other || one->Left() + one->Width() <= other->Left() || other->Left() + other->Width() <= one->Left() ||
                            one->Top() + one->Height() <= other->Top() || other->Top() + other->Height() <= one->Top())
                    << one->name << " over " << other->name << (tree ? " with the tree" : "");
        }
    }
}

TEST_F(DiagramWindowTest, TheSliderOfOneSampleHasAWayToGo) {
    Sheet({"10"}, {{1}});
    frmDiagram.Load();
    EXPECT_EQ(frmDiagram.Slider1.Max(), 2);
}

TEST_F(DiagramWindowTest, LastMoveStandsAtTheRightEdge) {
    Open(frmMain.mnuBar);
    for (const int width : {9735, 12000, 5000}) {
        ResizeWindow(frmDiagram, width, 7545);
        EXPECT_EQ(frmDiagram.Command1.Left() + frmDiagram.Command1.Width(), width - 60);
        EXPECT_GT(frmDiagram.Command1.Left(), frmDiagram.Slider2.Left() + frmDiagram.Slider2.Width()) << width;
        EXPECT_LT(frmDiagram.Text1.Left() + frmDiagram.Text1.Width(), frmDiagram.Text2.Left());
        EXPECT_LT(frmDiagram.Text2.Left() + frmDiagram.Text2.Width(), frmDiagram.Command1.Left());
    }
}

TEST_F(DiagramWindowTest, TheStripOfNamesIsAsHighAsTheLongestTakes) {
    TaxonTable[3][kTaxonName] = "Chenopodiaceae/Amar.";
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.Picture4.Height(), 2105);
    CloseWindow(frmDiagram);
    TaxonTable[3][kTaxonName] = "Chenopodiaceae/Amaranthaceae-type";
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.Picture4.Height(), 33 * 90 + 150);
    EXPECT_EQ(frmDiagram.Picture1.Top(), frmDiagram.Picture4.Top() + frmDiagram.Picture4.Height());
    EXPECT_EQ(frmDiagram.Slider1.Top(), frmDiagram.Picture1.Top());
    EXPECT_EQ(frmDiagram.Picture1.Top() + frmDiagram.Picture1.Height() + 20, frmDiagram.HScroll1.Top());
    CloseWindow(frmDiagram);
    TaxonTable[3][kTaxonName] = std::string(1000, 'x');
    Open(frmMain.mnuBar);
    EXPECT_EQ(frmDiagram.Picture1.Height(), frmDiagram.Picture1.DesignBox().height / 2);
}

TEST_F(DiagramWindowTest, TheTreeTakesItsWidthFromTheDiagram) {
    Open(frmMain.mnuBar);
    const int width = frmDiagram.Picture1.Width(), frame_left = frmDiagram.Frame3.Left(), tree = frmDiagram.Picture2.Width();
    ClickControl(frmDiagram.nmuConiss);
    EXPECT_EQ(frmDiagram.Picture1.Width(), width - tree);
    EXPECT_EQ(frmDiagram.Picture4.Width(), width - tree);
    EXPECT_EQ(frmDiagram.HScroll1.Width(), width - tree);
    EXPECT_EQ(frmDiagram.Frame3.Left(), frame_left - tree);
    EXPECT_EQ(frmDiagram.UpDown1.Left(), frame_left - tree - 240);
    ResizeWindow(frmDiagram, 9735 + 300, 7545 + 300);
    EXPECT_EQ(frmDiagram.Picture1.Width(), width - tree + 300);
    EXPECT_EQ(frmDiagram.Picture2.Height(), frmDiagram.Picture1.Height());
    EXPECT_TRUE(frmDiagram.Picture2.IsPersistent());
    ClickControl(frmDiagram.nmuConiss);
    EXPECT_EQ(frmDiagram.Picture1.Width(), width + 300);
    EXPECT_EQ(frmDiagram.HScroll1.Width(), width + 300);
    EXPECT_EQ(frmDiagram.Frame3.Left(), frame_left + 300);
}

TEST_F(DiagramWindowTest, AWindowThatWasTooSmallIsMadeLargerWithAMessage) {
    Open(frmMain.mnuBar);
    ResizeWindow(frmDiagram, 2300, 7545);
    EXPECT_LT(frmDiagram.Picture1.Width(), 500);
    EXPECT_EQ(MessageCount(), 0U);
    ResizeWindow(frmDiagram, 2200, 7545);
    ASSERT_EQ(MessageCount(), 1U);
    EXPECT_EQ(LastMessage().title, "Error");
    EXPECT_EQ(LastMessage().text, "Frame too small");
    EXPECT_EQ(frmDiagram.Width(), 5000);
    EXPECT_EQ(frmDiagram.Picture1.Width(), 5000 - frmDiagram.WidthMargin);
    EXPECT_FALSE(frmDiagram.DiagramResizeGuard);
    ResizeWindow(frmDiagram, 5000, 1000);
    EXPECT_EQ(frmDiagram.Picture1.Height(), 0);
    ResizeWindow(frmDiagram, 5000, 1100);
    EXPECT_EQ(MessageCount(), 2U);
    EXPECT_EQ(frmDiagram.Height(), 3500);
    EXPECT_GE(frmDiagram.Picture1.Height(), 500);
    ResizeWindow(frmDiagram, 5000, 3600);
    EXPECT_EQ(MessageCount(), 2U);
}

TEST_F(DiagramWindowTest, TooNarrowAndTooLowAreTwoMessages) {
    Open(frmMain.mnuBar);
    ResizeWindow(frmDiagram, 1500, 1500);
    ResizeWindow(frmDiagram, 1500, 1500);
    EXPECT_EQ(MessageCount(), 2U);
    EXPECT_EQ(frmDiagram.Width(), 5000);
    EXPECT_EQ(frmDiagram.Height(), 3500);
}

TEST_F(DiagramWindowTest, ADiagramThatIsAllInViewHasNoScrolling) {
    Open(frmMain.mnuBar);
    for (float& offset : ColumnOffset) offset = 5;
    LastColumnMax = 0;
    ResizeDiagram();
    EXPECT_FALSE(frmDiagram.HScroll1.Enabled());
    ColumnOffset[kSlots] = 480;  // with two gaps of 10 exactly what is in view
    ResizeDiagram();
    EXPECT_FALSE(frmDiagram.HScroll1.Enabled());
    ColumnOffset[kSlots] = 480.25;
    ResizeDiagram();
    EXPECT_TRUE(frmDiagram.HScroll1.Enabled());
}

TEST_F(DiagramWindowTest, AResizeSetsTheScrollRangeWithoutRegardToTheHorizontalScale) {
    Open(frmMain.mnuBar);
    frmDiagram.Slider2.SetValue(10);
    const int in_units_of_the_screen = frmDiagram.HScroll1.Max();
    ResizeWindow(frmDiagram, 9735, 7545);
    EXPECT_EQ(frmDiagram.HScroll1.Max(), in_units_of_the_screen - 250);
    EXPECT_EQ(frmDiagram.HScroll1.LargeChange(), 500);
}

TEST_F(DiagramWindowTest, TheScale0BecomesTheScale1) {
    Open(frmMain.mnuBar);
    SlideTo(frmDiagram.Slider2, 0);
    EXPECT_EQ(frmDiagram.Slider2.Value(), 1);
    EXPECT_EQ(ColumnGap, 50);
    SlideTo(frmDiagram.Slider2, 0);  // once more, from the 1
    EXPECT_EQ(frmDiagram.Slider2.Value(), 1);
    EXPECT_EQ(frmDiagram.Focus(), &frmDiagram.Slider1);
}

TEST_F(DiagramWindowTest, TheGroupStandsBesideTheLineOfItsSample) {
    Open(frmMain.mnuBar);
    for (int sample = 1; sample <= 3; ++sample) {
        frmDiagram.Slider1.SetValue(sample);
        const double share = sample == 1 ? 0.5 / 21 : sample == 2 ? 7.1666667 / 21 : 20.5 / 21;
        const double down = share * (frmDiagram.Picture1.Height() - 60) - 90;
        EXPECT_EQ(frmDiagram.Frame3.Top(), frmDiagram.Picture1.Top() + std::lround(down) - 300) << sample;
        EXPECT_EQ(frmDiagram.UpDown1.Top(), frmDiagram.Frame3.Top() + 240) << sample;
    }
}

TEST_F(DiagramWindowTest, ASampleFarOffTheScaleTakesTheGroupOutOfSight) {
    Sheet({"1", "100000000000000000000000000000000000000", "2"}, {{1}, {1}, {1}});
    Open(frmMain.mnuBar);
    frmDiagram.Slider1.SetValue(2);
    EXPECT_GT(frmDiagram.Frame3.Top(), frmDiagram.Height());
    EXPECT_EQ(services_.host.failure, "");
}

TEST_F(DiagramWindowTest, SteppingGoesRoundBothEnds) {
    Open(frmMain.mnuBar);
    Spin(frmDiagram.UpDown1, true);
    EXPECT_EQ(frmDiagram.SelectedSample, 1);
    Spin(frmDiagram.UpDown1, false);
    EXPECT_EQ(frmDiagram.SelectedSample, 3);
    EXPECT_EQ(frmDiagram.Slider1.Value(), 3);
    EXPECT_EQ(frmDiagram.Check1.Caption(), "40");
    EXPECT_EQ(frmDiagram.Combo2.Text(), "40");
    Spin(frmDiagram.UpDown1, false);
    EXPECT_EQ(frmDiagram.SelectedSample, 2) << "and from one sample to the next between them";
    Spin(frmDiagram.UpDown1, false);
    EXPECT_EQ(frmDiagram.SelectedSample, 1);
}

TEST_F(DiagramWindowTest, AKeyReleasedOnTheSliderBringsMarkerAndNameBack) {
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.mnuVertical);
    MoveMouse(frmDiagram.Picture1, {MouseButton::None, 120, 20});
    ClickControl(frmDiagram.Combo2);
    InsertText(frmDiagram.Combo2, "x");
    ClickControl(frmDiagram.Slider1);
    PressKey(37);
    ASSERT_NE(frmDiagram.Combo2.Text(), "40");
    ASSERT_EQ(Drawn(frmDiagram.Picture1, "line * * * * 255,50,0"), 1);
    ReleaseKey(37);
    EXPECT_EQ(frmDiagram.Combo2.Text(), "40");
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line * * * * 255,50,0"), 0);
}

TEST_F(DiagramWindowTest, OfTwoSamplesOfOneNameTheListSelectsTheRightHandOne) {
    Sheet({"A", "B", "A"}, {{1}, {1}, {1}});
    Open(frmMain.mnuBar);
    frmDiagram.Slider1.SetValue(2);
    ChooseItem(frmDiagram.Combo2, 0);
    EXPECT_EQ(frmDiagram.SelectedSample, 3);
    EXPECT_EQ(frmDiagram.Focus(), &frmDiagram.UpDown1);
}

TEST_F(DiagramWindowTest, ANameThatIsGoneSelectsNothing) {
    Open(frmMain.mnuBar);
    SampleTable[kSampleName][1] = "11";  // renamed; the list was filled before
    ChooseItem(frmDiagram.Combo2, 0);
    EXPECT_EQ(frmDiagram.SelectedSample, 3);
}

TEST_F(DiagramWindowTest, NamesThatBecomeNumbersWhileItIsOpenStopNothing) {
    Sheet({"a", "b", "c"}, {{1}, {1}, {1}});
    Open(frmMain.mnuBar);
    for (int sample = 1; sample <= 3; ++sample) SampleTable[kSampleName][sample] = std::to_string(sample * sample);
    BringToFront(frmMain);
    RunEvent([this] { KeyNumber(1); });
    RunEvent([] { ClickControl(frmDiagram.mnuCurve); });
    RunEvent([] { frmDiagram.Slider2.SetValue(4); });
    EXPECT_EQ(services_.host.failure, "");
    EXPECT_FALSE(SampleNamesAreText);
    EXPECT_EQ(Drawn(frmDiagram.Picture1, "line 4 20 84 20 0,128,0"), 1);  // still 10 apart
}

TEST_F(DiagramWindowTest, EqualDepthsAtBothEndsStopIt) {
    Sheet({"5", "7", "5"}, {{1}, {1}, {1}});
    RunEvent([] { Open(frmMain.mnuBar); });
    EXPECT_EQ(services_.host.failure, "Division by zero");
}

TEST_F(DiagramWindowTest, ChosenOnceMoreABasisDrawsButDoesNotClusterAnew) {
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.nmuConiss);
    AlarmArmed = false;
    Counts[1][1] = 400;
    const std::vector<float> merges = MergeHeight;
    ClickControl(frmDiagram.mnuAll);
    EXPECT_TRUE(AlarmArmed);
    EXPECT_TRUE(frmDiagram.mnuAll.Checked());
    EXPECT_EQ(Counts[0][1], 460);
    EXPECT_EQ(MergeHeight, merges);
    ClickControl(frmDiagram.mnuSub1);
    EXPECT_NE(MergeHeight, merges);
}

TEST_F(DiagramWindowTest, ANewSampleIsInTheOpenTree) {
    Open(frmMain.mnuBar);
    ClickControl(frmDiagram.nmuConiss);
    ASSERT_EQ(MergeHeight.size(), 4U);
    BringToFront(frmMain);
    KeyNumber(1);
    NextSample("50");
    EXPECT_EQ(frmDiagram.Slider1.Max(), 4);
    EXPECT_EQ(MergeHeight.size(), 5U);
}

TEST_F(DiagramWindowTest, ClosingItTakesThePointerOffTheLine) {
    Open(frmMain.mnuBar);
    MousePointer = kPointerSize;
    CloseWindow(frmDiagram);
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmDiagram.ConissDrawn);
}

TEST_F(DiagramWindowTest, TheEmptyEntriesDoNothing) {
    Open(frmMain.mnuBar);
    const auto drawn = frmDiagram.Picture1.Operations().size();
    ClickControl(frmDiagram.mnuECC);
    frmDiagram.SaveEOF();
    frmDiagram.SaveAllEOF();
    EXPECT_EQ(frmDiagram.Picture1.Operations().size(), drawn);
    EXPECT_EQ(MessageCount(), 0U);
}
}  // namespace

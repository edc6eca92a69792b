// While counting, the mouse cannot take the keyboard away from the counter.
#include "session/focus.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class FocusRuleTest : public SheetTest {
protected:
    FocusRuleTest() { Begin("10"); }

    const std::vector<Control*> grounds_{&frmMain.Frame1,   &frmMain.Frame2, &frmMain.Frame4, &frmMain.Frame5,
                                         &frmMain.Picture1, &frmMain.Combo1, &frmMain.Combo2, &frmMain.SSTab1};
    const std::vector<Control*> boxes_{&frmMain.Text1[0], &frmMain.Text1[3], &frmMain.Text2[3]};

    // What has the focus after the mouse has come from elsewhere, over this control or over the bare window.
    static Control* FocusAfterMove(Control& control) {
        EXPECT_TRUE(CanReach(control)) << control.name;
        frmMain.Command6.SetFocus();
        MoveMouse(control, {});
        return frmMain.Focus();
    }
    static Control* FocusAfterMoveOverWindow() {
        frmMain.Command6.SetFocus();
        MoveMouseOverWindow(frmMain, {});
        return frmMain.Focus();
    }
};

TEST_F(FocusRuleTest, AMoveOverTheWindowOrWhatLiesUnderItsBoxesGivesTheFocusBack) {
    EXPECT_EQ(FocusAfterMoveOverWindow(), &frmMain.Text99);
    for (Control* ground : grounds_) EXPECT_EQ(FocusAfterMove(*ground), &frmMain.Text99) << ground->name;
}

TEST_F(FocusRuleTest, WithADiagramOpenNoMoveGivesItBack) {
    DiagramOpen = true;
    EXPECT_EQ(FocusAfterMoveOverWindow(), &frmMain.Command6);
    for (Control* ground : grounds_) EXPECT_EQ(FocusAfterMove(*ground), &frmMain.Command6) << ground->name;
}

TEST_F(FocusRuleTest, InModifyModeNoMoveGivesItBack) {
    ClickControl(frmMain.Command3[0]);
    EXPECT_EQ(FocusAfterMoveOverWindow(), &frmMain.Command6);
    for (Control* ground : grounds_) EXPECT_EQ(FocusAfterMove(*ground), &frmMain.Command6) << ground->name;
}

TEST_F(FocusRuleTest, ThePointerBecomesAnArrowOverTheSampleAndTheTabsAlone) {
    for (Control* ground : grounds_) {
        const bool arrow = ground == &frmMain.Frame1 || ground == &frmMain.SSTab1;
        MousePointer = kPointerIBeam;
        MoveMouse(*ground, {});
        EXPECT_EQ(MousePointer, arrow ? kPointerArrow : kPointerIBeam) << ground->name;
    }
}

TEST_F(FocusRuleTest, OverABoxPointerAndFocusTellWhetherItIsTheCountersTurn) {
    struct {
        bool modifying, diagram;
        int pointer;
        Control* focus;
    } cases[] = {{false, false, kPointerArrow, &frmMain.Text99},
                 {false, true, kPointerIBeam, &frmMain.Command6},
                 {true, false, kPointerIBeam, &frmMain.Command6},
                 {true, true, kPointerIBeam, &frmMain.Command6}};
    for (const auto& each : cases)
        for (Control* box : boxes_) {
            AmendMode = each.modifying;
            DiagramOpen = each.diagram;
            MousePointer = kPointerDefault;
            EXPECT_EQ(FocusAfterMove(*box), each.focus) << box->name << each.modifying << each.diagram;
            EXPECT_EQ(MousePointer, each.pointer) << box->name << each.modifying << each.diagram;
        }
}

TEST_F(FocusRuleTest, ABoxThatModifyModeOpensTakesNoFocusFromAMove) {
    ClickControl(frmMain.Command3[0]);
    for (Control* box : {&frmMain.Text4, &frmMain.Text5[2]}) {
        MousePointer = kPointerDefault;
        EXPECT_EQ(FocusAfterMove(*box), &frmMain.Command6) << box->name;
        EXPECT_EQ(MousePointer, kPointerIBeam) << box->name;
    }
}

TEST_F(FocusRuleTest, NothingThatIsPressedWhileCountingKeepsTheKeyboard) {
    SaveAs("/sheets/pressed.csv");
    for (Control* pressed : std::initializer_list<Control*>{&frmMain.Option1[1], &frmMain.Command6, &frmMain.Text3[0]}) {
        ClickControl(*pressed);
        EXPECT_EQ(frmMain.Focus(), &frmMain.Text99) << pressed->name;
    }
    KeyNumber(1);
    ClickControl(frmMain.Command5[0]);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99) << "Save";
    NextSample("20");
    EXPECT_EQ(ActiveWindow(), &frmMain);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99) << "Next sample";
}

TEST_F(FocusRuleTest, InModifyModeAButtonKeepsIt) {
    ClickControl(frmMain.Command3[0]);
    ClickControl(frmMain.Option1[1]);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Option1[1]);
}
}  // namespace

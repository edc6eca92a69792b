#include "events/join.h"
#include "files/next_sample.h"
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/count_channel.h"
#include "session/focus_rule.h"
#include "session/italics.h"
#include "session/key_dispatch.h"
#include "session/leaving.h"
#include "session/percent_display.h"
#include "session/start_up.h"
#include "session/totals.h"
#include "session/undo.h"
#include "taxa/cells.h"
#include "windows/main_window.h"

namespace {
void JoinWindow() {
    frmMain.Loaded.Calls(LoadMainWindow);
    frmMain.FrameClosed.Calls(CloseMainWindow);
    frmMain.KeyDown.Calls(TakeKeyDown);
    frmMain.KeyUp.Calls(TakeKeyUp);
    frmMain.MouseMove.Calls([](Mouse) { ReturnFocusOnMove(); });
}

void JoinGrounds() {
    for (Control* ground : std::initializer_list<Control*>{&frmMain.Frame1, &frmMain.Frame2, &frmMain.Frame4, &frmMain.Frame5,
                                                           &frmMain.Picture1, &frmMain.Combo1, &frmMain.Combo2, &frmMain.SSTab1})
        ground->MouseMove.Calls([ground](Mouse) {
            if (ground == &frmMain.Frame1 || ground == &frmMain.SSTab1) MousePointer = kPointerArrow;
            ReturnFocusOnMove();
        });
    for (ComboBox* list : {&frmMain.Combo1, &frmMain.Combo2}) {
        list->MouseUp.Calls([](Mouse) { ReturnFocus(); });
        list->KeyUp.Calls([](int) { ReturnFocus(); });
    }
    frmMain.SSTab1.MouseDown.Calls([](Mouse) { HoldTab(); });
    frmMain.SSTab1.MouseUp.Calls([](Mouse) { ReturnTab(); });
    frmMain.Command1.Click.Calls([] { frmMain.Picture1.Clear(); });
}

void JoinCells() {
    frmMain.Text0.Change.Calls(CountSlotInChannel);
    for (int slot = 1; slot <= kSlots; ++slot) {
        frmMain.Text1[slot].Change.Calls([slot] { TakeTaxonName(slot); });
        frmMain.Text1[slot].MouseDown.Calls([slot](Mouse mouse) { PressInBox(slot, mouse); });
        frmMain.Text2[slot].Change.Calls([slot] { TakeCount(slot); });
        frmMain.Text2[slot].MouseDown.Calls([slot](Mouse mouse) { PressInCountBox(slot, mouse); });
        for (TextBox* box : {&frmMain.Text1[slot], &frmMain.Text2[slot]}) {
            box->MouseMove.Calls(EnterBox);
            box->MouseUp.Calls([](Mouse) { ReturnFocus(); });
        }
    }
    frmMain.Text1[0].Change.Calls(TakeSampleName);
}

void JoinSample() {
    frmMain.Text4.Change.Calls(TakeNote);
    for (int p = 1; p <= kParams; ++p) {
        frmMain.Text5[p].Change.Calls([p] { TakeParam(p); });
        frmMain.Label10[p].Change.Calls([p] { EndWithColon(p); });
    }
    const auto keep_counting = [](TextBox& box) {
        box.MouseMove.Calls(EnterBox);
        box.MouseUp.Calls([](Mouse) { ReturnFocus(); });
    };
    keep_counting(frmMain.Text1[0]);
    keep_counting(frmMain.Text4);
    for (int p = 1; p <= kParams; ++p) keep_counting(frmMain.Text5[p]);
    frmMain.Combo1.Change.Calls([] { frmMain.mnuSaveHistory.SetEnabled(true); });
    frmMain.Combo2.Edited.Calls(RenameSampleOnShow);
    frmMain.Label4.Change.Calls(OfferDiagram);
}

void JoinTotals() {
    frmMain.Text3[0].Change.Calls(TakeChangedTotal);
    for (int i = 0; i < 3; ++i) frmMain.Option1[i].Click.Calls([i] { ChooseBasis(i); });
    frmMain.Command6.MouseDown.Calls([](Mouse) { ShowPercentages(); });
    frmMain.Command6.MouseUp.Calls([](Mouse) { HidePercentages(); });
    frmMain.Picture2.MouseMove.Calls([](Mouse) { frmMain.Picture2.SetToolTip("Taxa diversity vs. total count"); });
    frmMain.Picture2.MouseDown.Calls([](Mouse mouse) {
        if (mouse.button == MouseButton::Right) OpenPopup(frmMain.mnuDiversityRB);
    });
    frmMain.mnuCopyDiversity.Click.Calls([] { services.clipboard->PutImage(frmMain.Picture2); });
}

void JoinCommands() {
    frmMain.Command5[0].Click.Calls(SaveFromButton);
    frmMain.Command5[1].Click.Calls(NextFromButton);
    frmMain.Command2[0].Click.Calls(AbortCount);
    frmMain.mnuNext.Click.Calls(NextFromMenu);
    frmMain.mnuSave.Click.Calls(SaveFromMenu);
    frmMain.mnuSaveAs.Click.Calls([] { SaveSheet(kSaveAs); });
    frmMain.mnuSaveCopy.Click.Calls([] { SaveSheet(kSaveCopy); });
    frmMain.mnuPercentAll.Click.Calls([] { SavePercentTable(0); });
    frmMain.mnuPercentSub1.Click.Calls([] { SavePercentTable(1); });
    frmMain.mnuPercentSub2.Click.Calls([] { SavePercentTable(2); });
    frmMain.mnuQuit.Click.Calls(QuitProgram);
    frmMain.mnuUndo.Click.Calls(Undo);
    frmMain.mnuReset.Click.Calls(AbortCount);
    frmMain.mnuItalic.Click.Calls(ToggleItalics);
}
}  // namespace

void JoinMainEvents() {
    JoinWindow();
    JoinGrounds();
    JoinCells();
    JoinSample();
    JoinTotals();
    JoinCommands();
}

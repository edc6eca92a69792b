#include "events/join.h"
#include "files/exports.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/focus.h"
#include "session/key_dispatch.h"
#include "session/leaving.h"
#include "session/modify_mode.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "session/undo.h"
#include "taxa/dialogs.h"
#include "taxa/edit_boxes.h"
#include "taxa/move_taxon.h"
#include "windows/information_windows.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

namespace {
void JoinWindow(MainWindow& window) {
    window.Loaded.Calls([&window] { LoadMainWindow(window); });
    window.FrameClosed.Calls(CloseMainWindow);
    window.KeyDown.Calls(DispatchKeyDown);
    window.KeyUp.Calls(DispatchKeyUp);
    window.FocusGiven.Calls(ReturnFocus);
    window.MouseMove.Calls([](Mouse) { ReturnFocusOnMove(); });
}

void JoinGrounds(MainWindow& window) {
    for (Control* ground :
         std::initializer_list<Control*>{&window.SampleFrame, &window.TotalsFrame, &window.ParamsFrame, &window.CurveFrame,
                                         &window.PadGround, &window.History, &window.SampleList, &window.BankTabs})
        ground->MouseMove.Calls([&window, ground](Mouse) {
            if (ground == &window.SampleFrame || ground == &window.BankTabs) MousePointer = kPointerArrow;
            ReturnFocusOnMove();
        });
    for (ComboBox* list : {&window.History, &window.SampleList}) {
        list->MouseUp.Calls([](Mouse) { ReturnFocus(); });
        list->KeyDown.Calls([](int) { ReturnFocus(); });  // before the character: a counted key is no name
        list->KeyUp.Calls([](int) { ReturnFocus(); });
    }
    window.BankTabs.MouseDown.Calls([](Mouse) { HoldTab(); });
    window.BankTabs.MouseUp.Calls([](Mouse) { ReturnTab(); });
    window.ClearGroundButton.Click.Calls([&window] { window.PadGround.Clear(); });
}

// A press of the right button in Modify mode offers the move; otherwise the keyboard stays with the counter. The name of the sample is
// no taxon to be moved.
void PressInCell(int slot, Mouse mouse) {
    if (mouse.button == MouseButton::Right && AmendMode && slot != 0)
        OfferMove(slot);
    else
        ReturnFocus();
}

void JoinBox(TextBox& box) {
    box.MouseMove.Calls(EnterBox);
    box.MouseUp.Calls([](Mouse) { ReturnFocus(); });
}

void JoinNameBox(MainWindow& window, int slot) {
    TextBox& box = window.TaxonNames[slot];
    JoinBox(box);
    box.GotFocus.Calls([&box] { EnterNameBox(box); });
    box.LostFocus.Calls([slot, &box] { LeaveNameBox(slot, box); });
    JoinGuardedKeys(box);
    box.MouseDown.Calls([slot](Mouse mouse) { PressInCell(slot, mouse); });
    box.DoubleClick.Calls([slot, &box] { DoubleClickCell(slot, box); });
    box.Change.Calls([slot, &box] { slot == 0 ? StoreSampleName(box) : StoreTaxonName(slot, box); });
}

void JoinCountBox(MainWindow& window, int slot) {
    TextBox& box = window.TaxonCounts[slot];
    JoinBox(box);
    box.MouseMove.Calls(EnterCountCell);
    box.GotFocus.Calls([&box] { EnterCountBox(box); });
    box.WalkedTo.Calls([&box] { NoteCountBeforeEdit(box); });
    box.LostFocus.Calls([slot, &box] { LeaveCountBox(slot, box); });
    box.MouseDown.Calls([slot, &box](Mouse mouse) {
        NoteCountBeforeEdit(box);
        PressInCell(slot, mouse);
    });
    box.DoubleClick.Calls([slot, &box] { DoubleClickCell(slot, box); });
    box.Change.Calls([slot, &box] { StoreCount(slot, box); });
}

void JoinCells(MainWindow& window) {
    window.CountChannel.Change.Calls([&window] { CountSlotInChannel(window.CountChannel); });
    for (int slot = 0; slot <= kSlots; ++slot) {
        JoinNameBox(window, slot);
        window.SlotNumbers[slot].MouseMove.Calls([](Mouse) { MousePointer = kPointerDefault; });
        window.SlotNumbers[slot].Click.Calls([slot] { SelectSlot(slot); });
    }
    for (int slot = 1; slot <= kSlots; ++slot) JoinCountBox(window, slot);
}

void JoinMoves(MainWindow& window) {
    MenuItem* const banks[3] = {&window.mnu1to45, &window.mnu46to90, &window.mnu91to135};
    MenuItem* const items[3] = {window.mnuMoveTo1, window.mnuMoveTo2, window.mnuMoveTo3};
    for (int bank = 0; bank < 3; ++bank) {
        banks[bank]->Click.Calls([bank, menu = items[bank]] { OpenBankMenu(bank, menu); });
        for (int i = 0; i < kKeys; ++i) {
            const auto slot = static_cast<std::int16_t>(bank * kKeys + i + 1);
            items[bank][i].Click.Calls([slot] { TransferTaxa(slot); });
        }
    }
}

void JoinParam(MainWindow& window, int p) {
    TextBox& box = window.ParamBoxes[p];
    JoinBox(box);
    box.GotFocus.Calls([&box] { EnterParam(box); });
    box.LostFocus.Calls([&box] { RestoreDashes(box); });
    JoinGuardedKeys(box);
    box.Change.Calls([p, &box] { StoreParam(p, box); });
    Label& label = window.ParamNames[p];
    label.Change.Calls([&box, &label] {
        EndWithColon(label);
        NameParamBox(box, label);
    });
    window.RenameButtons[p].Click.Calls([p] { RenameParamOfSheet(p); });
    window.RenameButtons[p].MouseMove.Calls([](Mouse) { MousePointer = kPointerDefault; });
}

void JoinSample(MainWindow& window) {
    TextBox& note = window.SampleNote;
    JoinBox(note);
    note.GotFocus.Calls([&note] { EnterNote(note); });
    JoinGuardedKeys(note);
    note.DoubleClick.Calls(DoubleClickNote);
    note.Change.Calls([&note] { StoreNote(note); });
    for (int p = 1; p <= kParams; ++p) JoinParam(window, p);
    window.History.Change.Calls([&window] { window.mnuSaveHistory.SetEnabled(true); });
    window.SampleList.Click.Calls([&window] { BringUpChosenSample(window.SampleList); });
    window.SampleList.Edited.Calls([&window] { RenameSampleOnShow(window.SampleList.Text()); });
    window.SerialNumber.Change.Calls(OfferDiagram);
}

void JoinTotals(MainWindow& window) {
    window.AllTotal.Change.Calls([&window] { FollowChangedTotal(window.AllTotal); });
    for (int i = 0; i < 3; ++i) window.BasisOptions[i].Click.Calls([i] { ChooseBasis(i); });
    window.PercentButton.MouseDown.Calls([](Mouse) { ShowPercentages(); });
    window.PercentButton.MouseUp.Calls([](Mouse) { HidePercentages(); });
    window.DiversityPicture.MouseMove.Calls([&window](Mouse) { window.DiversityPicture.SetToolTip("Taxa diversity vs. total count"); });
    window.DiversityPicture.MouseDown.Calls([&window](Mouse mouse) {
        if (mouse.button == MouseButton::Right) OpenPopup(window.mnuDiversityRB);
    });
    window.mnuCopyDiversity.Click.Calls([&window] { services.clipboard->PutImage(window.DiversityPicture); });
}

void JoinCommands(MainWindow& window) {
    window.SaveButton.Click.Calls(SaveFromButton);
    window.NextSampleButton.Click.Calls(NextFromButton);
    window.OpenButton.Click.Calls(OpenSheetFromButton);
    window.ModifyButton.Click.Calls(EnterModifyMode);
    window.ResumeButton.Click.Calls(LeaveModifyMode);
    window.mnuStartAmend.Click.Calls(EnterModifyMode);
    window.mnuFinishAmend.Click.Calls(LeaveModifyMode);
    window.mnuNew.Click.Calls(NewSheet);
    window.mnuOpen.Click.Calls(OpenSheet);
    JoinDrop(window, window.OpenButton);
    window.mnuTemplate.Click.Calls(CreateTemplate);
    window.mnuSaveHistory.Click.Calls(SaveHistory);
    window.ResetButton.Click.Calls(AbortCount);
    window.mnuNext.Click.Calls(NextFromMenu);
    window.mnuSave.Click.Calls(SaveFromMenu);
    window.mnuSaveAs.Click.Calls([] { SaveSheet(kSaveAs); });
    window.mnuSaveCopy.Click.Calls([] { SaveSheet(kSaveCopy); });
    window.mnuPercentAll.Click.Calls([] { SavePercentTable(0); });
    window.mnuPercentSub1.Click.Calls([] { SavePercentTable(1); });
    window.mnuPercentSub2.Click.Calls([] { SavePercentTable(2); });
    window.mnuQuit.Click.Calls(QuitProgram);
    window.mnuUndo.Click.Calls(Undo);
    window.mnuReset.Click.Calls(AbortCount);
    window.mnuItalic.Click.Calls([&window] { ToggleItalics(window.mnuItalic); });
}

// What is pressed next is a counter key: neither a button nor a total keeps the keyboard.
void JoinFocusOfButtons(MainWindow& window) {
    for (Control* control : window.Controls()) {
        const bool presses = control->kind() == Kind::Button || control->kind() == Kind::OptionButton || control->name == "Text3";
        if (presses && !control->MouseUp.IsJoined()) control->MouseUp.Calls([](Mouse) { ReturnFocus(); });
    }
}

void JoinDialogs(MainWindow& window) {
    window.mnuKeyCodeReader.Click.Calls([] { OpenDialog(frmKeyCode); });
    window.mnuSubtotal.Click.Calls([] { OpenDialog(frmSubtotal); });
    window.mnuInitial.Click.Calls([] { OpenDialog(frmInitial); });
    window.mnuAboutMB1.Click.Calls([] { OpenDialog(frmAboutMB1); });
    window.mnuAboutDX1.Click.Calls([] { OpenDialog(frmAboutDX1); });
    window.mnuCoffee.Click.Calls([] { ShowRestPicture(frmPicture.imgCoffee); });
    window.mnuBeach.Click.Calls([] { ShowRestPicture(frmPicture.imgBeach); });
    window.mnuFavorite.Click.Calls([] { ShowRestPicture(frmPicture.imgFavorite); });
}
}  // namespace

void JoinMainEvents(MainWindow& window) {
    JoinWindow(window);
    JoinGrounds(window);
    JoinCells(window);
    JoinMoves(window);
    JoinSample(window);
    JoinTotals(window);
    JoinCommands(window);
    JoinFocusOfButtons(window);
    JoinDialogs(window);
}

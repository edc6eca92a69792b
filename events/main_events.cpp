#include "accessories/rest_pictures.h"
#include "events/boxes.h"
#include "events/join.h"
#include "files/exports.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/count_channel.h"
#include "session/dialog.h"
#include "session/focus_rule.h"
#include "session/italics.h"
#include "session/key_dispatch.h"
#include "session/leaving.h"
#include "session/modify_mode.h"
#include "session/percent_display.h"
#include "session/sample_navigation.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "session/undo.h"
#include "taxa/dialogs.h"
#include "taxa/edit_boxes.h"
#include "taxa/move_taxon.h"
#include "windows/about_windows.h"
#include "windows/initial_window.h"
#include "windows/key_code_window.h"
#include "windows/main_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

namespace {
void JoinWindow() {
    frmMain.Loaded.Calls(LoadMainWindow);
    frmMain.FrameClosed.Calls(CloseMainWindow);
    frmMain.KeyDown.Calls(TakeKeyDown);
    frmMain.KeyUp.Calls(TakeKeyUp);
    frmMain.FocusGiven.Calls(ReturnFocus);
    frmMain.MouseMove.Calls([](Mouse) { ReturnFocusOnMove(); });
}

void JoinGrounds() {
    for (Control* ground :
         std::initializer_list<Control*>{&frmMain.SampleFrame, &frmMain.TotalsFrame, &frmMain.ParamsFrame, &frmMain.CurveFrame,
                                         &frmMain.PadGround, &frmMain.History, &frmMain.SampleList, &frmMain.BankTabs})
        ground->MouseMove.Calls([ground](Mouse) {
            if (ground == &frmMain.SampleFrame || ground == &frmMain.BankTabs) MousePointer = kPointerArrow;
            ReturnFocusOnMove();
        });
    for (ComboBox* list : {&frmMain.History, &frmMain.SampleList}) {
        list->MouseUp.Calls([](Mouse) { ReturnFocus(); });
        list->KeyDown.Calls([](int) { ReturnFocus(); });  // before the character: a counted key is no name
        list->KeyUp.Calls([](int) { ReturnFocus(); });
    }
    frmMain.BankTabs.MouseDown.Calls([](Mouse) { HoldTab(); });
    frmMain.BankTabs.MouseUp.Calls([](Mouse) { ReturnTab(); });
    frmMain.ClearGroundButton.Click.Calls([] { frmMain.PadGround.Clear(); });
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

void JoinNameBox(int slot) {
    TextBox& box = frmMain.TaxonNames[slot];
    JoinBox(box);
    box.GotFocus.Calls([&box] { EnterNameBox(box); });
    box.LostFocus.Calls([slot, &box] { LeaveNameBox(slot, box); });
    JoinGuardedKeys(box);
    box.MouseDown.Calls([slot](Mouse mouse) { PressInCell(slot, mouse); });
    box.DoubleClick.Calls([slot, &box] { DoubleClickCell(slot, box); });
    box.Change.Calls([slot, &box] { slot == 0 ? TakeSampleName(box) : TakeTaxonName(slot, box); });
}

void JoinCountBox(int slot) {
    TextBox& box = frmMain.TaxonCounts[slot];
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
    box.Change.Calls([slot, &box] { TakeCount(slot, box); });
}

void JoinCells() {
    frmMain.CountChannel.Change.Calls(CountSlotInChannel);
    for (int slot = 0; slot <= kSlots; ++slot) {
        JoinNameBox(slot);
        frmMain.SlotNumbers[slot].MouseMove.Calls([](Mouse) { MousePointer = kPointerDefault; });
        frmMain.SlotNumbers[slot].Click.Calls([slot] { SelectSlot(slot); });
    }
    for (int slot = 1; slot <= kSlots; ++slot) JoinCountBox(slot);
}

void JoinMoves() {
    MenuItem* const banks[3] = {&frmMain.mnu1to45, &frmMain.mnu46to90, &frmMain.mnu91to135};
    MenuItem* const items[3] = {frmMain.mnuMoveTo1, frmMain.mnuMoveTo2, frmMain.mnuMoveTo3};
    for (int bank = 0; bank < 3; ++bank) {
        banks[bank]->Click.Calls([bank, menu = items[bank]] { OpenBankMenu(bank, menu); });
        for (int i = 0; i < kKeys; ++i) {
            const auto slot = static_cast<std::int16_t>(bank * kKeys + i + 1);
            items[bank][i].Click.Calls([slot] { TransferTaxa(slot); });
        }
    }
}

void JoinParam(int p) {
    TextBox& box = frmMain.ParamBoxes[p];
    JoinBox(box);
    box.GotFocus.Calls([&box] { EnterParam(box); });
    box.LostFocus.Calls([&box] { RestoreDashes(box); });
    JoinGuardedKeys(box);
    box.Change.Calls([p, &box] { TakeParam(p, box); });
    Label& label = frmMain.ParamNames[p];
    label.Change.Calls([&box, &label] {
        EndWithColon(label);
        NameParamBox(box, label);
    });
    frmMain.RenameButtons[p].Click.Calls([p] { RenameParamOfSheet(p); });
    frmMain.RenameButtons[p].MouseMove.Calls([](Mouse) { MousePointer = kPointerDefault; });
}

void JoinSample() {
    TextBox& note = frmMain.SampleNote;
    JoinBox(note);
    note.GotFocus.Calls([&note] { EnterNote(note); });
    JoinGuardedKeys(note);
    note.DoubleClick.Calls(DoubleClickNote);
    note.Change.Calls([&note] { TakeNote(note); });
    for (int p = 1; p <= kParams; ++p) JoinParam(p);
    frmMain.History.Change.Calls([] { frmMain.mnuSaveHistory.SetEnabled(true); });
    frmMain.SampleList.Click.Calls(BringUpChosenSample);
    frmMain.SampleList.Edited.Calls([] { RenameSampleOnShow(frmMain.SampleList.Text()); });
    frmMain.SerialNumber.Change.Calls(OfferDiagram);
}

void JoinTotals() {
    frmMain.AllTotal.Change.Calls(TakeChangedTotal);
    for (int i = 0; i < 3; ++i) frmMain.BasisOptions[i].Click.Calls([i] { ChooseBasis(i); });
    frmMain.PercentButton.MouseDown.Calls([](Mouse) { ShowPercentages(); });
    frmMain.PercentButton.MouseUp.Calls([](Mouse) { HidePercentages(); });
    frmMain.DiversityPicture.MouseMove.Calls([](Mouse) { frmMain.DiversityPicture.SetToolTip("Taxa diversity vs. total count"); });
    frmMain.DiversityPicture.MouseDown.Calls([](Mouse mouse) {
        if (mouse.button == MouseButton::Right) OpenPopup(frmMain.mnuDiversityRB);
    });
    frmMain.mnuCopyDiversity.Click.Calls([] { services.clipboard->PutImage(frmMain.DiversityPicture); });
}

void JoinCommands() {
    frmMain.SaveButton.Click.Calls(SaveFromButton);
    frmMain.NextSampleButton.Click.Calls(NextFromButton);
    frmMain.OpenButton.Click.Calls(OpenSheetFromButton);
    frmMain.ModifyButton.Click.Calls(EnterModifyMode);
    frmMain.ResumeButton.Click.Calls(LeaveModifyMode);
    frmMain.mnuStartAmend.Click.Calls(EnterModifyMode);
    frmMain.mnuFinishAmend.Click.Calls(LeaveModifyMode);
    frmMain.mnuNew.Click.Calls(NewSheet);
    frmMain.mnuOpen.Click.Calls(OpenSheet);
    frmMain.mnuTemplate.Click.Calls(CreateTemplate);
    frmMain.mnuSaveHistory.Click.Calls(SaveHistory);
    frmMain.ResetButton.Click.Calls(AbortCount);
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

// What is pressed next is a counter key: neither a button nor a total keeps the keyboard.
void JoinFocusOfButtons() {
    for (Control* control : frmMain.Controls()) {
        const bool presses = control->kind() == Kind::Button || control->kind() == Kind::OptionButton || control->name == "Text3";
        if (presses && !control->MouseUp.IsJoined()) control->MouseUp.Calls([](Mouse) { ReturnFocus(); });
    }
}

void JoinDialogs() {
    frmMain.mnuKeyCodeReader.Click.Calls([] { OpenDialog(frmKeyCode); });
    frmMain.mnuSubtotal.Click.Calls([] { OpenDialog(frmSubtotal); });
    frmMain.mnuInitial.Click.Calls([] { OpenDialog(frmInitial); });
    frmMain.mnuAboutMB1.Click.Calls([] { OpenDialog(frmAboutMB1); });
    frmMain.mnuAboutDX1.Click.Calls([] { OpenDialog(frmAboutDX1); });
    frmMain.mnuCoffee.Click.Calls([] { ShowRestPicture(frmPicture.imgCoffee); });
    frmMain.mnuBeach.Click.Calls([] { ShowRestPicture(frmPicture.imgBeach); });
    frmMain.mnuFavorite.Click.Calls([] { ShowRestPicture(frmPicture.imgFavorite); });
}
}  // namespace

void JoinMainEvents() {
    JoinWindow();
    JoinGrounds();
    JoinCells();
    JoinMoves();
    JoinSample();
    JoinTotals();
    JoinCommands();
    JoinFocusOfButtons();
    JoinDialogs();
}

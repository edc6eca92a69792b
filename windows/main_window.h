// frmMain: the pad of 135 cells in three banks, the totals, the sample on show and its notes, the curve and the history.
//
// Here and in every window, a control bears its fixed name, which scripts use, and below it the word by which procedures call it. The
// word stands once the window is built: a table that another file fills before main takes the fixed name.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/services.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct MainWindow : Window {
    MainWindow();
    void Amend() {}                                                  // empty: docs/quirks.md
    std::vector<Control*> RoundOf(const Control& control) override;  // of a cell: the names, or the counts, of its bank as they are read

    // The pad. Cells lie on the tab of their bank; [0] of their arrays is the name of the sample, its caption, and nothing.
    PictureBox Picture1;
    PictureBox& PadGround = Picture1;  // around the pad: red in Modify mode
    TabControl SSTab1;
    TabControl& BankTabs = SSTab1;
    Frame Frame3[3];
    Frame (&PadBlocks)[3] = Frame3;  // the ground of the cells: gone while the undo key is held
    TextBox Text1[kSlots + 1];
    TextBox (&TaxonNames)[kSlots + 1] = Text1;  // [slot]
    TextBox& SampleName = Text1[0];
    TextBox Text2[kSlots + 1];
    TextBox (&TaxonCounts)[kSlots + 1] = Text2;  // [slot]: in the sample on show
    Label Label1[kSlots + 1];
    Label (&SlotNumbers)[kSlots + 1] = Label1;  // [slot]: shown in Modify mode
    Label& SampleNameCaption = Label1[0];
    TextBox Text0;
    TextBox& CountChannel = Text0;  // hidden: the slot number of a counted key passes through here
    TextBox Text99;
    TextBox& FocusRest = Text99;  // hidden: has the focus while counting, so that a keystroke lands nowhere

    Frame Frame1;
    Frame& SampleFrame = Frame1;
    ComboBox Combo2;
    ComboBox& SampleList = Combo2;
    Label Label3, Label4;
    Label& SerialNumber = Label4;
    TextBox Text4;
    TextBox& SampleNote = Text4;

    // [0]: of all taxa, [1], [2]: of the subtotals.
    Frame Frame2;
    Frame& TotalsFrame = Frame2;
    Label Label2[3];
    Label (&TotalCaptions)[3] = Label2;
    Label& AllTotalCaption = Label2[0];
    Label& Subtotal1Caption = Label2[1];
    Label& Subtotal2Caption = Label2[2];
    TextBox Text3[3];
    TextBox (&Totals)[3] = Text3;
    TextBox& AllTotal = Text3[0];
    TextBox& Subtotal1 = Text3[1];
    TextBox& Subtotal2 = Text3[2];
    Label Label6;
    Label& BasisCaption = Label6;
    OptionButton Option1[3];
    OptionButton (&BasisOptions)[3] = Option1;  // the basis of alarm and percentages
    OptionButton& AllTotalBasis = Option1[0];
    OptionButton& Subtotal1Basis = Option1[1];
    OptionButton& Subtotal2Basis = Option1[2];
    ProgressBar ProgressBar1;
    ProgressBar& Progress = ProgressBar1;

    // Additional info: [p], [0] unused.
    Frame Frame4;
    Frame& ParamsFrame = Frame4;
    Label Label10[kParams + 1];
    Label (&ParamNames)[kParams + 1] = Label10;
    TextBox Text5[kParams + 1];
    TextBox (&ParamBoxes)[kParams + 1] = Text5;
    Button Command7[kParams + 1];
    Button (&RenameButtons)[kParams + 1] = Command7;
    Label Label8;
    Label& LastEdited = Label8;  // the value

    Frame Frame5;
    Frame& CurveFrame = Frame5;
    Label Label9;
    Label Label11, Label12;  // headings of the columns with the sample and with its Additional info
    PictureBox Picture2;
    PictureBox& DiversityPicture = Picture2;  // taxa seen against grains counted

    Button Command1;
    Button& ClearGroundButton = Command1;  // stands nowhere
    Button Command2[1];
    Button& ResetButton = Command2[0];
    Button Command3[2];
    Button& ModifyButton = Command3[0];
    Button& ResumeButton = Command3[1];
    Button Command4[1];
    Button& OpenButton = Command4[0];
    Button Command5[2];
    Button& SaveButton = Command5[0];  // on: the sheet has changed
    Button& NextSampleButton = Command5[1];
    Button Command6;
    Button& PercentButton = Command6;
    Label Label5;
    ComboBox Combo1;
    ComboBox& History = Combo1;
    CommonDialog CommonDialog1;
    CommonDialog& FileDialog = CommonDialog1;

    MenuItem mnuFile, mnuNew, mnuOpen, break7, mnuNext, break5, mnuSave, mnuSaveAs, mnuSaveCopy, break99, mnuTemplate, break4,
        mnuSaveHistory, Brake2, mnuPercent, mnuPercentSub1, mnuPercentSub2, mnuPercentAll, break999, mnuQuit;
    MenuItem mnuEdit, mnuUndo, mnuReset, break6, mnuStartAmend, mnuFinishAmend;
    MenuItem mnuTool, mnuItalic, break8, mnuKeyCodeReader, mnuSubtotal, break3, mnuInitial;
    MenuItem mnuDiagram, mnuBar, mnuArea, mnuDot, Break10, mnuCurve, mnuDotCurve;
    MenuItem mnuAbout, mnuAboutMB1, mnuAboutDX1;
    MenuItem nmuRefresh, mnuCoffee, mnuBeach, mnuFavorite;
    MenuItem mnuRightButton, mnuMove2, mnu91to135, mnu46to90, mnu1to45;
    MenuItem mnuMoveTo1[kKeys], mnuMoveTo2[kKeys], mnuMoveTo3[kKeys];  // [i]: moves to the (i+1)th slot of its bank
    MenuItem mnuDiversityRB, mnuCopyDiversity;
    MenuItem mnuByPass, mnuLetters[26];  // take Ctrl and a letter, so that the chord does nothing else

    // What is done to several of them at once.
    std::array<TextBox*, 2> Cell(int slot) { return {&TaxonNames[slot], &TaxonCounts[slot]}; }
    void PlaceSlot(int slot, int left, int top);  // the corner of its name, in twips; count and number follow
    void KeepTabOffPad();
    void EmptyPad();                                                          // cells and totals as in a sheet with nothing in it
    void NameSubtotals(const std::string& first, const std::string& second);  // wherever the window speaks of them
    std::array<MenuItem*, 5> DiagramItems() { return {&mnuBar, &mnuArea, &mnuCurve, &mnuDot, &mnuDotCurve}; }
    void SwitchOffCommands();            // those that a fresh sheet has no use for; the Save button is told apart
    void EnableCounting(bool counting);  // the commands that count, save or leave the sheet; those of Modify mode are the opposite
    void ShowCounting(bool counting);    // what only counting shows
    void PaintGround(Colour colour);     // of the pad
    void ShowSlotNumbers(bool visible);  // and the buttons that rename the Additional info
    void OpenNotes(bool open);           // note and Additional info, whose names are seen while they are open
    void OfferNextSample();              // the button and its menu item come on
    void EnableParamNames(bool enabled);
    void HoldNumbers();      // of the cells and totals, in HeldCounts and HeldTotals. Raises "Overflow" past 16 bits
    void ShowHeldNumbers();  // the other way round

    bool FormLoaded = false;                   // false while the window loads
    bool ChangingSample = false;               // another sample's counts are being put into the cells
    bool KeysEnabled = false;                  // false while the % button is held
    std::int16_t HeldCounts[kSlots + 1] = {};  // the cells while they show percentages
    std::int16_t HeldTotals[3] = {};

    // The members that hold no control, as ForEachSheetVariable.
    template <class Visit>
    void ForEachVariable(Visit visit) {
        visit("FormLoaded", FormLoaded);
        visit("ChangingSample", ChangingSample);
        visit("KeysEnabled", KeysEnabled);
        visit("HeldCounts", HeldCounts);
        visit("HeldTotals", HeldTotals);
    }

private:
    void LayPad();
    void LaySlot(int slot);
    void LayColumns();
    void LayParam(int p);
    void LayCommands();
    void LayTips();
    void LayMenuBar();
    void LayPopups();
    void LayMoves(int i);
    void LayLetters();
    void ForgetMembers() override;
};

extern MainWindow frmMain;

// The busy pointer and the progress bar, from here to the end of the scope, however it is left.
class Busy {
public:
    explicit Busy(int maximum);  // of the progress bar
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    void Reach(int value) const;  // the bar shows how far it has come

private:
    ProgressBar& bar_;
};

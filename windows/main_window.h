// frmMain: the pad of 135 cells in three banks, the totals, the sample on show and its notes, the curve and the history.
#pragma once
#include <cstdint>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/services.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct MainWindow : Window {
    MainWindow();
    void Amend() {}                                                  // a reserved entry
    std::vector<Control*> RoundOf(const Control& control) override;  // of a cell: the names, or the counts, of its bank as they are read

    // The pad. Cells lie on the tab of their bank; Text1[0] shows the name of the sample, Label1[0] is its caption, Text2[0] is unused.
    PictureBox Picture1;        // the ground around the pad: red in Modify mode
    TabControl SSTab1;          // a tab a bank
    Frame Frame3[3];            // the ground of the pad's three blocks: gone while the undo key is held
    TextBox Text1[kSlots + 1];  // [slot]: taxon name
    TextBox Text2[kSlots + 1];  // [slot]: count in the sample on show
    Label Label1[kSlots + 1];   // [slot]: the slot's number, shown in Modify mode
    TextBox Text0;              // hidden: the slot number of a counted key passes through here
    TextBox Text99;             // hidden: has the focus while counting, so that a keystroke lands nowhere

    Frame Frame1;          // the sample
    ComboBox Combo2;       // sample names
    Label Label3, Label4;  // serial number
    TextBox Text4;         // note

    Frame Frame2;     // totals
    Label Label2[3];  // all, subtotal 1, subtotal 2
    TextBox Text3[3];
    Label Label6;
    OptionButton Option1[3];  // the basis of alarm and percentages
    ProgressBar ProgressBar1;

    Frame Frame4;                // Additional info
    Label Label10[kParams + 1];  // [0] unused, so below
    TextBox Text5[kParams + 1];
    Button Command7[kParams + 1];  // rename
    Label Label8;                  // the value last edited

    Frame Frame5;  // taxa curve
    Label Label9;
    PictureBox Picture2;

    Button Command1;     // clears Picture1; stands nowhere
    Button Command2[1];  // Reset
    Button Command3[2];  // Modify, Resume
    Button Command4[1];  // Open
    Button Command5[2];  // Save, Next sample
    Button Command6;     // %
    Label Label5;
    ComboBox Combo1;  // history
    CommonDialog CommonDialog1;

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

    bool FormLoaded = false;                   // False while the window loads
    bool ChangingSample = false;               // another sample's counts are being put into the cells
    bool KeysEnabled = false;                  // False while the % button is held
    std::int16_t HeldCounts[kSlots + 1] = {};  // the cells while they show percentages
    std::int16_t HeldTotals[3] = {};

private:
    void LayPad();
    void LaySlot(int slot);
    void LayColumns();
    void LayParam(int p);
    void LayCommands();
    void LayMenuBar();
    void LayPopups();
    void LayMoves(int i);
    void LayLetters();
    void ForgetMembers() override;
};

extern MainWindow frmMain;

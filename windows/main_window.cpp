#include "windows/main_window.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "platform/number.h"
#include "platform/text.h"
#include "platform/window_table.h"
#include "windows/pad_places.h"

MainWindow frmMain;

namespace {
constexpr Colour kQuietWords{90, 98, 106};  // they name what stands beside them
constexpr Style kQuiet{.fore = kQuietWords};
constexpr Style kSmallQuiet{.points = 8, .fore = kQuietWords};
constexpr Style kSmall{.points = 8};
constexpr Style kOnGround{.back = kFormColour};
constexpr Style kBlock{.back = Colour{250, 251, 252}};
constexpr Style kCount{.points = 10};
constexpr Style kSlotNumber{.points = 7, .visible = false};
constexpr Style kTotal{.points = 16};
constexpr int kColumnTop = 4800;  // the four columns below the pad
constexpr int kColumnHeight = 2660;
constexpr int kHeadingTop = 60;  // of a column, in it
constexpr int kHeadingHeight = 260;
constexpr int kCommandTop = 7520;

enum SizeGroup { kNamesOfBank = 1, kTotalNames = kNamesOfBank + kSlots / kKeys, kParamNames, kSampleNames };
}  // namespace

MainWindow::MainWindow() : Window("frmMain", "Marlbrook 2.7.5", 11400, 7980) {
    key_preview = true;
    LayPad();
    LayColumns();
    LayCommands();
    LayMenuBar();
    LayPopups();
    LayLetters();
    LayTips();
    FirstFocus(Text99);
    KeepDesign();
}

void MainWindow::LayPad() {
    Lay({
        {Picture1, "Picture1", nullptr, {0, 0, 11400, 4760}, "", kOnGround, "Ground of the pad"},
        {SSTab1, "SSTab1", nullptr, {60, 60, 11280, 4640}, "", kPlain, "Bank"},
        {Frame3[0], {"Frame3", 0}, &SSTab1, {160, 300, 3360, 4130}, "", kBlock, "Block 1 of the pad"},
        {Frame3[1], {"Frame3", 1}, &SSTab1, {4000, 300, 3360, 4130}, "", kBlock, "Block 2 of the pad"},
        {Frame3[2], {"Frame3", 2}, &SSTab1, {7840, 300, 3360, 4130}, "", kBlock, "Block 3 of the pad"},
    });
    SSTab1.SetTabCaptions({"Neutral", "Shift 1 or 2", "Shift 1 and 2"});
    for (int slot = 1; slot <= kSlots; ++slot) LaySlot(slot);
    Lay({
        {Text0, "Text0", nullptr, {}, "", kHidden},
        {Text99, "Text99", nullptr, {}},
        {Text2[0], {"Text2", 0}, nullptr, {}, "", kHidden},
    });
    Text99.takes_text = false;
}

void MainWindow::LaySlot(int slot) {
    const Box name = PadPlace((slot - 1) % kKeys + 1);
    const Box count{name.left, name.top + kCountBelowName, name.width, 270};
    const Box below{name.left, name.top + kNumberBelowName, name.width, 190};
    const std::string number = std::to_string(slot);
    Lay({
        {Text1[slot], {"Text1", slot}, &SSTab1, name, kEmpty, kPlain, "Name of taxon " + number},
        {Text2[slot], {"Text2", slot}, &SSTab1, count, "0", kCount, "Count of taxon " + number, &Text1[slot]},
        {Label1[slot], {"Label1", slot}, &SSTab1, below, number, kSlotNumber, "Taxon"},
    });
    const int bank = (slot - 1) / kKeys;
    Text1[slot].page = Text2[slot].page = Label1[slot].page = bank;
    Text1[slot].size_group = kNamesOfBank + bank;
    Text1[slot].centred = Text2[slot].centred = Label1[slot].centred = true;
    Text1[slot].placeholder = Text1[slot].Text();
    Text2[slot].placeholder = Text2[slot].Text();
}

void MainWindow::LayColumns() {
    Lay({
        {Frame1, "Frame1", nullptr, {60, kColumnTop, 2560, kColumnHeight}, "", kPlain, "Sample"},
        {Label11, "Label11", &Frame1, {80, kHeadingTop, 2400, kHeadingHeight}, "Sample", kQuiet},
        {Label1[0], {"Label1", 0}, &Frame1, {80, 360, 1140, 270}, "Sample name: ", kSmallQuiet},
        {Text1[0], {"Text1", 0}, &Frame1, {1240, 340, 1240, 300}, "-9999", kPlain, "", &Label1[0]},
        // Not by Tab: a letter typed there renames the sample.
        {Combo2, "Combo2", &Frame1, {1240, 680, 1240, 300}, "-9999", {.tab_stop = false}, "Sample on show"},
        {Label3, "Label3", &Frame1, {80, 1020, 1140, 270}, "Serial No.:", kSmallQuiet},
        {Label4, "Label4", &Frame1, {1240, 1020, 1240, 270}, "1/1", kPlain, "Serial No."},
        {Text4, "Text4", &Frame1, {80, 1320, 2400, 1260}, kEmpty, kSmall, "Note"},

        {Frame2, "Frame2", nullptr, {2680, kColumnTop, 2900, kColumnHeight}, "", kPlain, "Totals"},
        {Label6, "Label6", &Frame2, {80, kHeadingTop, 2740, kHeadingHeight}, "Set alarm and % basis", kQuiet},
        {Label2[0], {"Label2", 0}, &Frame2, {80, 410, 880, 480}, "All total:"},
        {Text3[0], {"Text3", 0}, &Frame2, {980, 400, 760, 480}, "0", kTotal, "", &Label2[0]},
        {Option1[0], {"Option1", 0}, &Frame2, {1780, 490, 1060, 300}, "Set alarm", kSmall, "", &Label2[0]},
        {Label2[1], {"Label2", 1}, &Frame2, {80, 1030, 880, 480}, "Subtotal-1:"},
        {Text3[1], {"Text3", 1}, &Frame2, {980, 1020, 760, 480}, "0", kTotal, "", &Label2[1]},
        {Option1[1], {"Option1", 1}, &Frame2, {1780, 1110, 1060, 300}, "Set alarm", kSmall, "", &Label2[1]},
        {Label2[2], {"Label2", 2}, &Frame2, {80, 1650, 880, 480}, "Subtotal-2:"},
        {Text3[2], {"Text3", 2}, &Frame2, {980, 1640, 760, 480}, "0", kTotal, "", &Label2[2]},
        {Option1[2], {"Option1", 2}, &Frame2, {1780, 1730, 1060, 300}, "Set alarm", kSmall, "", &Label2[2]},
        {ProgressBar1, "ProgressBar1", &Frame2, {80, 2300, 2740, 220}, "", kHidden, "Progress"},

        {Frame4, "Frame4", nullptr, {5640, kColumnTop, 3420, kColumnHeight}, "", kPlain, "Additional info"},
        {Label12, "Label12", &Frame4, {80, kHeadingTop, 3260, kHeadingHeight}, "Additional info", kQuiet},
    });
    Text1[0].size_group = Combo2.size_group = kSampleNames;
    Text4.multiline = true;
    for (TextBox& total : Text3) total.centred = true;
    for (Label& name : Label2) name.size_group = kTotalNames;
    Option1[0].SetValue(true);
    for (int p = 1; p <= kParams; ++p) LayParam(p);
    Lay({
        {Label8, "Label8", &Frame4, {1580, 2420, 1780, 200}, "", {.points = 7, .fore = kQuietWords}},

        {Frame5, "Frame5", nullptr, {9120, kColumnTop, 2220, kColumnHeight}, "", kPlain, "Taxa curve"},
        {Label9, "Label9", &Frame5, {80, kHeadingTop, 2060, kHeadingHeight}, "Diversity", kQuiet},
        {Picture2, "Picture2", &Frame5, {80, 340, 2060, 2240}, "", kPlain, "Taxa diversity vs. total count"},
    });
}

void MainWindow::LayParam(int p) {
    const int top = 330 + 345 * (p - 1);
    const std::string name = "Additional info-" + std::to_string(p);
    Lay({
        {Label10[p], {"Label10", p}, &Frame4, {80, top + 30, 1480, 260}, name + ":", kSmallQuiet},
        {Text5[p], {"Text5", p}, &Frame4, {1580, top, 1080, 315}, kEmpty, {.enabled = false}, "", &Label10[p]},
        {Command7[p], {"Command7", p}, &Frame4, {2700, top, 660, 315}, "Rename", kSmall, "", &Label10[p]},
    });
    Label10[p].size_group = kParamNames;
    Text5[p].SetToolTip(name);
}

void MainWindow::LayCommands() {
    Lay({
        {Command4[0], {"Command4", 0}, nullptr, {60, kCommandTop, 860, 400}, "Open"},
        {Command5[0], {"Command5", 0}, nullptr, {960, kCommandTop, 860, 400}, "Save"},
        {Command5[1], {"Command5", 1}, nullptr, {1860, kCommandTop, 1240, 400}, "Next sample"},
        {Command3[0], {"Command3", 0}, nullptr, {3240, kCommandTop, 900, 400}, "Modify"},
        {Command3[1], {"Command3", 1}, nullptr, {4180, kCommandTop, 940, 400}, "Resume"},
        {Command2[0], {"Command2", 0}, nullptr, {5260, kCommandTop, 860, 400}, "Reset"},
        {Command6, "Command6", nullptr, {6260, kCommandTop, 560, 400}, "%", kPlain, "Percentages while it is held"},
        {Command1, "Command1", nullptr, {0, kCommandTop, 0, 400}, "", kHidden},
        {Label5, "Label5", nullptr, {6960, kCommandTop + 60, 760, 280}, "History:", kQuiet},
        {Combo1, "Combo1", nullptr, {7740, kCommandTop + 20, 3600, 360}, "", {.tab_stop = false}, "", &Label5},
    });
}

void MainWindow::LayTips() {
    for (OptionButton& option : Option1) option.SetToolTip("The alarm sounds at each full hundred of this total, and percentages go by it");
    Command3[0].SetToolTip("Opens names, counts and notes for typing; no key counts until Resume");
    Command3[1].SetToolTip("Back to counting");
    Command2[0].SetToolTip("Takes back all since the sheet was opened or saved, or got its last sample");
    Command6.SetToolTip("Shows percentages in place of counts as long as it is held");
}

void MainWindow::LayMenuBar() {
    LayMenus({
        {mnuFile, "mnuFile", nullptr, "&File"},
        {mnuNew, "mnuNew", &mnuFile, "New data sheet"},
        {mnuOpen, "mnuOpen", &mnuFile, "Open data sheet"},
        {break7, "break7", &mnuFile, "-"},
        {mnuNext, "mnuNext", &mnuFile, "Next sample"},
        {break5, "break5", &mnuFile, "-"},
        {mnuSave, "mnuSave", &mnuFile, "Save"},
        {mnuSaveAs, "mnuSaveAs", &mnuFile, "Save as "},
        {mnuSaveCopy, "mnuSaveCopy", &mnuFile, "Save copy"},
        {break99, "break99", &mnuFile, "-"},
        {mnuTemplate, "mnuTemplate", &mnuFile, "Create template"},
        {break4, "break4", &mnuFile, "-"},
        {mnuSaveHistory, "mnuSaveHistory", &mnuFile, "Save history"},
        {Brake2, "Brake2", &mnuFile, "-"},
        {mnuPercent, "mnuPercent", &mnuFile, "Save percentage table"},
        {mnuPercentSub1, "mnuPercentSub1", &mnuPercent, "% by subtotal-1"},
        {mnuPercentSub2, "mnuPercentSub2", &mnuPercent, "% by subtotal-2"},
        {mnuPercentAll, "mnuPercentAll", &mnuPercent, "% by all total"},
        {break999, "break999", &mnuFile, "-"},
        {mnuQuit, "mnuQuit", &mnuFile, "Quit"},

        {mnuEdit, "mnuEdit", nullptr, "&Edit"},
        {mnuUndo, "mnuUndo", &mnuEdit, "Undo"},
        {mnuReset, "mnuReset", &mnuEdit, "Reset"},
        {break6, "break6", &mnuEdit, "-"},
        {mnuStartAmend, "mnuStartAmend", &mnuEdit, "Modify template"},
        {mnuFinishAmend, "mnuFinishAmend", &mnuEdit, "Resume counting"},

        {mnuTool, "mnuTool", nullptr, "&Tools"},
        {mnuItalic, "mnuItalic", &mnuTool, "Italicise genera"},
        {break8, "break8", &mnuTool, "-"},
        {mnuKeyCodeReader, "mnuKeyCodeReader", &mnuTool, "Key settings"},
        {mnuSubtotal, "mnuSubtotal", &mnuTool, "Subtotal settings"},
        {break3, "break3", &mnuTool, "-"},
        {mnuInitial, "mnuInitial", &mnuTool, "Initialize"},

        {mnuDiagram, "mnuDiagram", nullptr, "&Diagram"},
        {mnuBar, "mnuBar", &mnuDiagram, "Bar"},
        {mnuArea, "mnuArea", &mnuDiagram, "Curve"},
        {mnuDot, "mnuDot", &mnuDiagram, "Dot (>0.5% only)"},
        {Break10, "Break10", &mnuDiagram, "-"},
        {mnuCurve, "mnuCurve", &mnuDiagram, "Bar and curve"},
        {mnuDotCurve, "mnuDotCurve", &mnuDiagram, "Dot and curve"},

        {mnuAbout, "mnuAbout", nullptr, "About"},
        {mnuAboutMB1, "mnuAboutMB1", &mnuAbout, "Marlbrook 2.7"},
        {mnuAboutDX1, "mnuAboutDX1", &mnuAbout, "Ergodex DX-1"},

        {nmuRefresh, "nmuRefresh", nullptr, "&Are you tired...?"},
        {mnuCoffee, "mnuCoffee", &nmuRefresh, "Coffee"},
        {mnuBeach, "mnuBeach", &nmuRefresh, "Beach"},
        {mnuFavorite, "mnuFavorite", &nmuRefresh, "My favorite"},
    });
    mnuItalic.SetChecked(true);
}

void MainWindow::LayPopups() {
    LayMenus({
        {mnuRightButton, "mnuRightButton", nullptr, "RightButton", kHidden},
        {mnuMove2, "mnuMove2", &mnuRightButton, "Move"},
        {mnu91to135, "mnu91to135", &mnuMove2, "91-135 (Shift 1 and 2)"},
        {mnu46to90, "mnu46to90", &mnuMove2, "46-90 (Shift 1 or 2)"},
        {mnu1to45, "mnu1to45", &mnuMove2, "1-45 (Neutral)"},
    });
    for (int i = 0; i < kKeys; ++i) LayMoves(i);
    LayMenus({
        {mnuDiversityRB, "mnuDiversityRB", nullptr, "DiversityRB", kHidden},
        {mnuCopyDiversity, "mnuCopyDiversity", &mnuDiversityRB, "Copy"},
    });
}

void MainWindow::LayMoves(int i) {
    const int slots[3] = {i + 1, i + 1 + kKeys, i + 1 + 2 * kKeys};
    LayMenus({
        {mnuMoveTo1[i], {"mnuMoveTo1", slots[0]}, &mnu1to45, std::to_string(slots[0])},
        {mnuMoveTo2[i], {"mnuMoveTo2", slots[1]}, &mnu46to90, std::to_string(slots[1])},
        {mnuMoveTo3[i], {"mnuMoveTo3", slots[2]}, &mnu91to135, std::to_string(slots[2])},
    });
}

void MainWindow::LayLetters() {
    LayMenus({{mnuByPass, "mnuByPass", nullptr, "ByPass", kHidden}});
    for (int i = 0; i < 26; ++i) {
        const char letter = static_cast<char>('A' + i);
        const std::string caption(1, letter);
        LayMenus({{mnuLetters[i], ("mnu" + caption).c_str(), &mnuByPass, caption}});
        mnuLetters[i].control_letter = letter;
    }
}

void MainWindow::PlaceSlot(int slot, int left, int top) {
    TaxonNames[slot].SetPlace(left, top);
    TaxonCounts[slot].SetPlace(left, top + kCountBelowName);
    SlotNumbers[slot].SetPlace(left, top + kNumberBelowName);
}

void MainWindow::KeepTabOffPad() {
    for (int slot = 0; slot <= kSlots; ++slot)
        for (TextBox* box : Cell(slot)) box->tab_stop = false;
    FocusRest.tab_stop = false;
}

void MainWindow::EmptyPad() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        SlotNumbers[slot].SetVisible(false);
        TaxonNames[slot].SetText(kEmpty);
        TaxonCounts[slot].SetText("0");
    }
    CountChannel.SetText("");
    for (TextBox& total : Totals) total.SetText("0");
}

void MainWindow::NameSubtotals(const std::string& first, const std::string& second) {
    Subtotal1Caption.SetCaption(first + ":");
    Subtotal2Caption.SetCaption(second + ":");
    mnuPercentSub1.SetCaption("% by " + first);
    mnuPercentSub2.SetCaption("% by " + second);
    mnuPercentAll.SetCaption("% by " + WithoutTrailingColon(AllTotalCaption.Caption()));
}

void MainWindow::SwitchOffCommands() {
    for (Control* command : std::initializer_list<Control*>{&ResetButton, &ResumeButton, &mnuFinishAmend, &mnuSave, &mnuSaveHistory,
                                                            &NextSampleButton, &mnuNext, &mnuUndo, &mnuReset, &mnuNew})
        command->SetEnabled(false);
}

void MainWindow::EnableCounting(bool counting) {
    ResumeButton.SetEnabled(!counting);
    mnuFinishAmend.SetEnabled(!counting);
    for (Control* command : std::initializer_list<Control*>{&ResetButton, &OpenButton, &mnuSave, &NextSampleButton, &ModifyButton,
                                                            &mnuStartAmend, &AllTotal, &Subtotal1, &Subtotal2, &mnuUndo, &mnuReset, &mnuNew,
                                                            &mnuOpen, &mnuSaveAs, &mnuPercent, &mnuSaveCopy})
        command->SetEnabled(counting);
}

void MainWindow::ShowCounting(bool counting) {
    SampleNameCaption.SetVisible(counting);
    for (Label& label : TotalCaptions) label.SetVisible(counting);
    for (Frame& block : PadBlocks) block.SetVisible(counting);
}

void MainWindow::PaintGround(Colour colour) {
    PadGround.SetBackColor(colour);
    BankTabs.SetBackColor(colour);
}

void MainWindow::ShowSlotNumbers(bool visible) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (!visible) SlotNumbers[slot].SetBold(false);
        SlotNumbers[slot].SetVisible(visible);
    }
    for (int p = 1; p <= kParams; ++p) RenameButtons[p].SetVisible(visible);
}

void MainWindow::OpenNotes(bool open) {
    SampleNote.SetEnabled(open);
    for (int p = 1; p <= kParams; ++p) {
        ParamNames[p].SetVisible(open);
        ParamBoxes[p].SetEnabled(open);
    }
}

void MainWindow::EnableParamNames(bool enabled) {
    for (int p = 1; p <= kParams; ++p) ParamNames[p].SetEnabled(enabled);
}

void MainWindow::HoldNumbers() {
    for (int slot = 0; slot <= kSlots; ++slot) HeldCounts[slot] = ToInt16(TaxonCounts[slot].Number());
    for (int i = 0; i < 3; ++i) HeldTotals[i] = ToInt16(Totals[i].Number());
}

void MainWindow::ShowHeldNumbers() {
    for (int slot = 0; slot <= kSlots; ++slot) TaxonCounts[slot].SetText(NumberText(HeldCounts[slot]));
    for (int i = 0; i < 3; ++i) Totals[i].SetText(NumberText(HeldTotals[i]));
}

std::vector<Control*> MainWindow::RoundOf(const Control& control) {
    std::vector<Control*> cells;
    if (control.container != &SSTab1) return cells;
    const auto is_of_it = [&control](const Control* cell) {
        return cell->container == control.container && cell->page == control.page && cell->name == control.name;
    };
    std::ranges::copy_if(Controls(), std::back_inserter(cells), is_of_it);
    std::ranges::stable_sort(cells, {}, [](const Control* cell) { return std::pair(cell->Top(), cell->Left()); });
    return cells;
}

void MainWindow::OfferNextSample() {
    NextSampleButton.SetEnabled(true);
    mnuNext.SetEnabled(true);
}

void MainWindow::ForgetMembers() {
    FormLoaded = ChangingSample = KeysEnabled = false;
    FileDialog.FileName.clear();
    FileDialog.first_folder.clear();
}

// ---- The progress bar ----

Busy::Busy(int maximum) : bar_(frmMain.Progress) {
    MousePointer = kPointerBusy;
    bar_.SetValue(0);
    bar_.SetRange(0, maximum);
    bar_.SetVisible(true);
}

Busy::~Busy() {
    MousePointer = kPointerDefault;
    bar_.SetVisible(false);
    bar_.SetValue(0);
}

void Busy::Reach(int value) const {
    bar_.SetValue(value);
}

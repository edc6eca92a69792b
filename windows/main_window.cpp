#include "windows/main_window.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "windows/pad_places.h"

MainWindow frmMain;

namespace {
constexpr Colour kPanel{250, 251, 252};  // the blocks of the pad
constexpr Colour kQuiet{90, 98, 106};    // words that name what stands beside them
constexpr int kPadTop = 60;
constexpr int kColumnTop = 4800;  // the four columns below the pad
constexpr int kColumnHeight = 2660;
constexpr int kCommandTop = 7520;
constexpr int kCommandHeight = 400;
}  // namespace

MainWindow::MainWindow() : Window("frmMain", "Marlbrook 2.7.5", 11400, 7980) {
    key_preview = true;
    PlacePad();
    PlaceSample();
    PlaceTotals();
    PlaceParams();
    PlaceCurve();
    PlaceCommands();
    PlaceMenus();
    FirstFocus(Text99);
    KeepDesign();
}

void MainWindow::PlacePad() {
    Add(Picture1, "Picture1", -1, nullptr, {0, 0, 11400, 4760});
    Picture1.SetBackColor(kFormColour);
    Picture1.accessible_name = "Ground of the pad";
    Add(SSTab1, "SSTab1", -1, nullptr, {60, kPadTop, 11280, 4640});
    SSTab1.SetTabCaptions({"Neutral", "Shift 1 or 2", "Shift 1 and 2"});
    SSTab1.accessible_name = "Bank";
    for (int block = 0; block < 3; ++block) {
        Add(Frame3[block], "Frame3", block, &SSTab1, {160 + 3840 * block, 300, 3360, 4130});
        Frame3[block].SetBackColor(kPanel);
        Frame3[block].accessible_name = "Block " + std::to_string(block + 1) + " of the pad";
    }
    for (int slot = 1; slot <= kSlots; ++slot) {
        const int bank = (slot - 1) / kKeys;
        const Box name = PadPlace((slot - 1) % kKeys + 1);
        Add(Text1[slot], "Text1", slot, &SSTab1, name);
        Add(Text2[slot], "Text2", slot, &SSTab1, {name.left, name.top + kCountBelowName, name.width, 270});
        Add(Label1[slot], "Label1", slot, &SSTab1, {name.left, name.top + kNumberBelowName, name.width, 190});
        Text1[slot].page = Text2[slot].page = Label1[slot].page = bank;
        Text1[slot].SetText(kEmpty);
        Text1[slot].placeholder = kEmpty;
        Text1[slot].accessible_name = "Name of taxon " + std::to_string(slot);
        Text2[slot].SetText("0");
        Text2[slot].placeholder = "0";
        Text2[slot].SetFontSize(10);
        Text2[slot].accessible_name = "Count of taxon " + std::to_string(slot);
        Text2[slot].named_by = &Text1[slot];
        Text1[slot].centred = Text2[slot].centred = Label1[slot].centred = true;
        Label1[slot].SetCaption(std::to_string(slot));
        Label1[slot].accessible_name = "Taxon";
        Label1[slot].SetFontSize(7);
        Label1[slot].SetVisible(false);
    }
    Add(Text0, "Text0", -1, nullptr, {0, 0, 0, 0});
    Text0.SetVisible(false);
    Add(Text99, "Text99", -1, nullptr, {0, 0, 0, 0});
    Text99.takes_text = false;
    Add(Text2[0], "Text2", 0, nullptr, {0, 0, 0, 0});
    Text2[0].SetVisible(false);
}

void MainWindow::PlaceSample() {
    Add(Frame1, "Frame1", -1, nullptr, {60, kColumnTop, 2560, kColumnHeight});
    Frame1.accessible_name = "Sample";
    Add(Label1[0], "Label1", 0, &Frame1, {80, 90, 1140, 270});
    Label1[0].SetCaption("Sample name: ");
    Label1[0].SetFontSize(8);
    Label1[0].SetForeColor(kQuiet);
    Add(Text1[0], "Text1", 0, &Frame1, {1240, 70, 1240, 300});
    Text1[0].SetText("-9999");
    Text1[0].SetBold(true);
    Text1[0].named_by = &Label1[0];
    Add(Combo2, "Combo2", -1, &Frame1, {1240, 420, 1240, 300});
    Combo2.SetText("-9999");
    Combo2.accessible_name = "Sample on show";
    Add(Label3, "Label3", -1, &Frame1, {80, 800, 1140, 270});
    Label3.SetCaption("Serial No.:");
    Label3.SetFontSize(8);
    Label3.SetForeColor(kQuiet);
    Add(Label4, "Label4", -1, &Frame1, {1240, 800, 1240, 270});
    Label4.SetCaption("1/1");
    Label4.accessible_name = "Serial No.";
    Add(Text4, "Text4", -1, &Frame1, {80, 1140, 2400, 1440});
    Text4.SetText(kEmpty);
    Text4.multiline = true;
    Text4.SetFontSize(8);
    Text4.accessible_name = "Note";
}

void MainWindow::PlaceTotals() {
    static constexpr const char* kNames[3] = {"All total:", "Subtotal-1:", "Subtotal-2:"};
    Add(Frame2, "Frame2", -1, nullptr, {2680, kColumnTop, 2900, kColumnHeight});
    Frame2.accessible_name = "Totals";
    Add(Label6, "Label6", -1, &Frame2, {80, 80, 2740, 260});
    Label6.SetCaption("Set alarm and % basis");
    Label6.SetForeColor(kQuiet);
    Label6.right_aligned = true;
    for (int i = 0; i < 3; ++i) {
        const int top = 400 + 620 * i;
        Add(Label2[i], "Label2", i, &Frame2, {80, top + 50, 880, 400});
        Label2[i].SetCaption(kNames[i]);
        Add(Text3[i], "Text3", i, &Frame2, {980, top, 760, 480});
        Text3[i].SetText("0");
        Text3[i].SetFontSize(16);
        Text3[i].centred = true;
        Text3[i].named_by = &Label2[i];
        Add(Option1[i], "Option1", i, &Frame2, {1780, top + 90, 1060, 300});
        Option1[i].SetCaption("Set alarm");
        Option1[i].SetFontSize(8);
        Option1[i].named_by = &Label2[i];
    }
    Option1[0].SetValue(true);
    Add(ProgressBar1, "ProgressBar1", -1, &Frame2, {80, 2300, 2740, 220});
    ProgressBar1.SetVisible(false);
    ProgressBar1.accessible_name = "Progress";
}

void MainWindow::PlaceParams() {
    Add(Frame4, "Frame4", -1, nullptr, {5640, kColumnTop, 3420, kColumnHeight});
    Frame4.accessible_name = "Additional info";
    for (int p = 1; p <= kParams; ++p) {
        const std::string number = std::to_string(p);
        const int top = 70 + 380 * (p - 1);
        Add(Label10[p], "Label10", p, &Frame4, {80, top + 20, 1480, 280});
        Label10[p].SetCaption("Additional info-" + number + ":");
        Label10[p].SetFontSize(8);
        Label10[p].SetForeColor(kQuiet);
        Add(Text5[p], "Text5", p, &Frame4, {1580, top, 1080, 320});
        Text5[p].SetText(kEmpty);
        Text5[p].SetEnabled(false);
        Text5[p].SetToolTip("Additional info-" + number);
        Text5[p].named_by = &Label10[p];
        Add(Command7[p], "Command7", p, &Frame4, {2700, top, 660, 320});
        Command7[p].SetCaption("Rename");
        Command7[p].SetFontSize(8);
        Command7[p].named_by = &Label10[p];
    }
    Add(Label8, "Label8", -1, &Frame4, {1580, 2370, 1780, 220});
    Label8.SetFontSize(7);
    Label8.SetForeColor(kQuiet);
}

void MainWindow::PlaceCurve() {
    Add(Frame5, "Frame5", -1, nullptr, {9120, kColumnTop, 2220, kColumnHeight});
    Frame5.accessible_name = "Taxa curve";
    Add(Label9, "Label9", -1, &Frame5, {80, 60, 2060, 260});
    Label9.SetCaption("Diversity");
    Label9.SetForeColor(kQuiet);
    Add(Picture2, "Picture2", -1, &Frame5, {80, 340, 2060, 2240});
    Picture2.accessible_name = "Taxa diversity vs. total count";
}

void MainWindow::PlaceCommands() {
    const auto put = [this](Button& button, const char* button_name, int array_index, const char* caption, int left, int width) {
        Add(button, button_name, array_index, nullptr, {left, kCommandTop, width, kCommandHeight});
        button.SetCaption(caption);
    };
    put(Command4[0], "Command4", 0, "Open", 60, 860);
    put(Command5[0], "Command5", 0, "Save", 960, 860);
    put(Command5[1], "Command5", 1, "Next sample", 1860, 1240);
    put(Command3[0], "Command3", 0, "Modify", 3240, 900);
    put(Command3[1], "Command3", 1, "Resume", 4180, 940);
    put(Command2[0], "Command2", 0, "Reset", 5260, 860);
    put(Command6, "Command6", -1, "%", 6260, 560);
    Command6.accessible_name = "Percentages while it is held";
    put(Command1, "Command1", -1, "", 0, 0);
    Command1.SetVisible(false);
    Add(Label5, "Label5", -1, nullptr, {6960, kCommandTop + 80, 760, 280});
    Label5.SetCaption("History:");
    Label5.SetForeColor(kQuiet);
    Add(Combo1, "Combo1", -1, nullptr, {7740, kCommandTop + 20, 3600, 360});
    Combo1.named_by = &Label5;
}

void MainWindow::PlaceMenus() {
    const auto put = [this](MenuItem& item, const char* item_name, MenuItem* menu, const char* caption) {
        Add(item, item_name, -1, menu, {});
        item.SetCaption(caption);
    };
    put(mnuFile, "mnuFile", nullptr, "&File");
    put(mnuNew, "mnuNew", &mnuFile, "New data sheet");
    put(mnuOpen, "mnuOpen", &mnuFile, "Open data sheet");
    put(break7, "break7", &mnuFile, "-");
    put(mnuNext, "mnuNext", &mnuFile, "Next sample");
    put(break5, "break5", &mnuFile, "-");
    put(mnuSave, "mnuSave", &mnuFile, "Save");
    put(mnuSaveAs, "mnuSaveAs", &mnuFile, "Save as ");
    put(mnuSaveCopy, "mnuSaveCopy", &mnuFile, "Save copy");
    put(break99, "break99", &mnuFile, "-");
    put(mnuTemplate, "mnuTemplate", &mnuFile, "Create template");
    put(break4, "break4", &mnuFile, "-");
    put(mnuSaveHistory, "mnuSaveHistory", &mnuFile, "Save history");
    put(Brake2, "Brake2", &mnuFile, "-");
    put(mnuPercent, "mnuPercent", &mnuFile, "Save percentage table");
    put(mnuPercentSub1, "mnuPercentSub1", &mnuPercent, "% by subtotal-1");
    put(mnuPercentSub2, "mnuPercentSub2", &mnuPercent, "% by subtotal-2");
    put(mnuPercentAll, "mnuPercentAll", &mnuPercent, "% by all total");
    put(break999, "break999", &mnuFile, "-");
    put(mnuQuit, "mnuQuit", &mnuFile, "Quit");

    put(mnuEdit, "mnuEdit", nullptr, "&Edit");
    put(mnuUndo, "mnuUndo", &mnuEdit, "Undo");
    put(mnuReset, "mnuReset", &mnuEdit, "Reset");
    put(break6, "break6", &mnuEdit, "-");
    put(mnuStartAmend, "mnuStartAmend", &mnuEdit, "Modify template");
    put(mnuFinishAmend, "mnuFinishAmend", &mnuEdit, "Resume counting");

    put(mnuTool, "mnuTool", nullptr, "&Tools");
    put(mnuItalic, "mnuItalic", &mnuTool, "Italicise genera");
    put(break8, "break8", &mnuTool, "-");
    put(mnuKeyCodeReader, "mnuKeyCodeReader", &mnuTool, "Key settings");
    put(mnuSubtotal, "mnuSubtotal", &mnuTool, "Subtotal settings");
    put(break3, "break3", &mnuTool, "-");
    put(mnuInitial, "mnuInitial", &mnuTool, "Initialize");

    put(mnuDiagram, "mnuDiagram", nullptr, "&Diagram");
    put(mnuBar, "mnuBar", &mnuDiagram, "Bar");
    put(mnuArea, "mnuArea", &mnuDiagram, "Curve");
    put(mnuDot, "mnuDot", &mnuDiagram, "Dot (>0.5% only)");
    put(Break10, "Break10", &mnuDiagram, "-");
    put(mnuCurve, "mnuCurve", &mnuDiagram, "Bar and curve");
    put(mnuDotCurve, "mnuDotCurve", &mnuDiagram, "Dot and curve");

    put(mnuAbout, "mnuAbout", nullptr, "About");
    put(mnuAboutMB1, "mnuAboutMB1", &mnuAbout, "Marlbrook 2.7");
    put(mnuAboutDX1, "mnuAboutDX1", &mnuAbout, "Ergodex DX-1");

    put(nmuRefresh, "nmuRefresh", nullptr, "&Are you tired...?");
    put(mnuCoffee, "mnuCoffee", &nmuRefresh, "Coffee");
    put(mnuBeach, "mnuBeach", &nmuRefresh, "Beach");
    put(mnuFavorite, "mnuFavorite", &nmuRefresh, "My favorite");

    put(mnuRightButton, "mnuRightButton", nullptr, "RightButton");
    put(mnuMove2, "mnuMove2", &mnuRightButton, "Move");
    put(mnu91to135, "mnu91to135", &mnuMove2, "91-135 (Shift 1 and 2)");
    put(mnu46to90, "mnu46to90", &mnuMove2, "46-90 (Shift 1 or 2)");
    put(mnu1to45, "mnu1to45", &mnuMove2, "1-45 (Neutral)");
    const auto put_slot = [this](MenuItem& item, const char* item_name, MenuItem& menu, int slot) {
        Add(item, item_name, slot, &menu, {});
        item.SetCaption(std::to_string(slot));
    };
    for (int i = 0; i < kKeys; ++i) {
        put_slot(mnuMoveTo1[i], "mnuMoveTo1", mnu1to45, i + 1);
        put_slot(mnuMoveTo2[i], "mnuMoveTo2", mnu46to90, i + 1 + kKeys);
        put_slot(mnuMoveTo3[i], "mnuMoveTo3", mnu91to135, i + 1 + 2 * kKeys);
    }
    put(mnuDiversityRB, "mnuDiversityRB", nullptr, "DiversityRB");
    put(mnuCopyDiversity, "mnuCopyDiversity", &mnuDiversityRB, "Copy");

    put(mnuByPass, "mnuByPass", nullptr, "ByPass");
    for (int i = 0; i < 26; ++i) {
        const char letter = static_cast<char>('A' + i);
        put(mnuLetters[i], (std::string("mnu") + letter).c_str(), &mnuByPass, std::string(1, letter).c_str());
        mnuLetters[i].control_letter = letter;
    }
    for (MenuItem* hidden : {&mnuRightButton, &mnuDiversityRB, &mnuByPass}) hidden->SetVisible(false);
    mnuItalic.SetChecked(true);
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

void MainWindow::ForgetMembers() {
    FormLoaded = ChangingSample = KeysEnabled = false;
}

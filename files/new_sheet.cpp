#include "files/new_sheet.h"

#include <string>

#include "diagram/open_diagram.h"
#include "files/sheet_on_screen.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/leaving.h"
#include "session/modify_mode.h"
#include "session/pad_cells.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

namespace {
// The bar runs once from end to end, so that the user sees that the sheet has gone.
void ShowEmptying(ProgressBar& bar) {
    bar.SetRange(0, 100);
    bar.SetVisible(true);
    for (int percent = 1; percent <= 100; ++percent) bar.SetValue(percent);
    bar.SetValue(0);
    bar.SetVisible(false);
}

void NameFirstSample() {
    TextBox& box = frmSiteName.SampleName;
    SampleNamesAreText = !IsPlainNumber(box.Text());
    if (box.Text().empty()) box.SetText(std::string("1: ") + kEmpty);
    const std::string name = box.Text();
    ShowNewSampleName(name);
    SampleTable[kSampleSerial][1] = 1;
    SampleTable[kSampleName][1] = name;
}

void EmptyFirstSample() {
    CountsAtOpen.assign(2, {});
    SnapshotParamNames();
    for (int p = 1; p <= kParams; ++p) ParamValuesAtOpen[p][1] = ParamValues[p][1];
    EmptyCountCells();
}

void ShowFirstSample() {
    CurrentSample = 1;
    frmMain.SerialNumber.SetCaption(SampleTable[kSampleSerial][1].Text() + "/1");
    ShowZeroTotals();
}
}  // namespace

void NewSheet() {
    TabControl& pad = frmMain.BankTabs;
    if (frmMain.AllTotal.Text() != "0") PlayIfOn(WaveError);
    if (MayAbortData()) {
        if (AmendMode) LeaveModifyMode();
        pad.SetVisible(false);
        ShowEmptying(frmMain.Progress);
        InitialiseSheet();
        CloseDiagram();
    }
    pad.SetVisible(true);
}

void LoadSiteNameWindow() {
    frmSiteName.SampleNote.SetText(FreshNote());
}

void StoreFirstSampleName() {
    SampleTable[kSampleName][CurrentSample] = frmSiteName.SampleName.Text();
}

void AcceptFirstSample() {
    SheetHeader[kHeaderPath] = frmSiteName.SampleName.Text();
    NameSheetInTitle("Marlbrook 2.7");
    NameFirstSample();
    EmptyFirstSample();
    StoreSampleFields(1, frmSiteName.SampleNote, frmSiteName.ParamNames, frmSiteName.ParamBoxes);
    frmSiteName.Unload();
    GiveMainWindowBack();
    TextBox& rest = frmMain.FocusRest;
    rest.SetFocus();
    rest.SetText("");
    ShowFirstSample();
    LogShownLineAgain();
}

#include "files/new_sheet.h"

#include <string>

#include "diagram/open_diagram.h"
#include "files/format/sheet_base_name.h"
#include "files/sample_fields.h"
#include "platform/text.h"
#include "session/history.h"
#include "session/leaving.h"
#include "session/modify_mode.h"
#include "session/sound.h"
#include "session/stamps.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"
#include "windows/site_name_window.h"

namespace {
// The bar runs once from end to end, so that the user sees that the sheet has gone.
void ShowEmptying() {
    frmMain.SSTab1.SetVisible(false);
    frmMain.ProgressBar1.SetRange(0, 100);
    frmMain.ProgressBar1.SetVisible(true);
    for (int percent = 1; percent <= 100; ++percent) frmMain.ProgressBar1.SetValue(percent);
    frmMain.ProgressBar1.SetValue(0);
    frmMain.ProgressBar1.SetVisible(false);
}

void NameFirstSample() {
    TextBox& box = frmSiteName.Text1;
    SampleNamesAreText = !IsPlainNumber(box.Text());
    if (box.Text().empty()) box.SetText(std::string("1: ") + kEmpty);
    const std::string name = box.Text();
    frmMain.Text1[0].SetText(name);
    AddHistoryLine("(New sample: " + name + ")");
    frmMain.Combo2.AddItem(name);
    frmMain.Combo2.SetText(name);
    SampleTable[1][1] = 1;
    SampleTable[2][1] = name;
}

void EmptyFirstSample() {
    CountsAtOpen.assign(2, {});
    for (int p = 1; p <= kParams; ++p) {
        ParamValuesAtOpen[p][0] = frmMain.Label10[p].Caption();
        ParamValuesAtOpen[p][1] = ParamValues[p][1];
    }
    EmptyCountCells();
}

void ShowFirstSample() {
    CurrentSample = 1;
    frmMain.Label4.SetCaption(SampleTable[1][1].Text() + "/1");
    ShowZeroTotals();
}
}  // namespace

void NewSheet() {
    if (frmMain.Text3[0].Text() != "0") PlayIfOn(WaveError);
    if (MayAbortData()) {
        if (AmendMode) LeaveModifyMode();
        ShowEmptying();
        InitialiseSheet();
        CloseDiagram();
    }
    frmMain.SSTab1.SetVisible(true);
}

void LoadSiteNameWindow() {
    frmSiteName.Text2.SetText(FreshNote());
}

void TakeFirstSampleName() {
    SampleTable[2][CurrentSample] = frmSiteName.Text1.Text();
}

void AcceptFirstSample() {
    SheetHeader[6] = frmSiteName.Text1.Text();
    frmMain.SetTitle("Marlbrook 2.7 - [" + SheetBaseName(SheetPath) + "]");
    NameFirstSample();
    EmptyFirstSample();
    TakeSampleFields(1, frmSiteName.Text2, frmSiteName.Label3, frmSiteName.Text3);
    frmSiteName.Unload();
    frmMain.SetEnabled(true);
    frmMain.Show();
    frmMain.Text99.SetFocus();
    frmMain.Text99.SetText("");
    ShowFirstSample();
    LogShownLineAgain();
}

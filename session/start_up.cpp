#include "session/start_up.h"

#include <string>

#include "accessories/rest_pictures.h"
#include "keys/settings/key_settings.h"
#include "platform/failure.h"
#include "session/changed_mark.h"
#include "session/history.h"
#include "session/snapshot.h"
#include "session/stamps.h"
#include "session/state/sheet_state.h"
#include "session/subtotal_names.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/initial_window.h"
#include "windows/main_window.h"
#include "windows/pad_places.h"

namespace {
constexpr const char* kUnnamed = "-9999";

void LayOutCells() {
    for (int place = 1; place <= kKeys; ++place) {
        const Box name = PadPlace(place);
        KeyLeft[place] = static_cast<std::int16_t>(name.left);
        KeyTop[place] = static_cast<std::int16_t>(name.top);
        for (const int slot : {place + kKeys, place + 2 * kKeys}) {
            frmMain.TaxonNames[slot].SetPlace(name.left, name.top);
            frmMain.TaxonCounts[slot].SetPlace(name.left, name.top + kCountBelowName);
            frmMain.SlotNumbers[slot].SetPlace(name.left, name.top + kNumberBelowName);
        }
    }
}

void ClearSession() {
    Shift1Down = Shift2Down = false;
    ShiftLevel = 0;
    SheetPath.clear();
    RepeatKeyCode = 0;
    SaveAsPending = true;
    HistoryCount = 0;
    HistoryLog.assign(1, NoteStamp());
}

void EmptyCells() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        frmMain.SlotNumbers[slot].SetVisible(false);
        frmMain.TaxonNames[slot].SetText(kEmpty);
        frmMain.TaxonCounts[slot].SetText("0");
    }
    frmMain.CountChannel.SetText("");
    for (TextBox& total : frmMain.Totals) total.SetText("0");
    frmMain.SampleNote.SetEnabled(false);
}

void BeginFirstSample() {
    SheetClean = true;
    SampleUntouched = true;
    SampleCount = 1;
    CurrentSample = 1;
    MaxSerial = 1;
    frmMain.SerialNumber.SetCaption("1/1");
    EnableDiagramItems(false);
    frmMain.mnuItalic.SetChecked(true);
}

void FreshHeader() {
    SheetHeader[6] = "Untitled";
    SheetHeader[7] = "";
    SheetHeader[8] = "";
    SheetHeader[9] = "Serial No.";
    SheetHeader[11] = "Key index";
    SheetHeader[12] = "Subtotal-1";
    SheetHeader[13] = "Subtotal-2";
    SheetHeader[14] = "Sample name";
    SampleTable[1][0] = 0;
    SampleTable[1][1] = 1;
    SampleTable[2][0] = SampleTable[2][1] = kUnnamed;
    frmMain.SampleName.SetText(kUnnamed);
    frmMain.SampleList.Clear();
    frmMain.SampleList.SetText(kUnnamed);
    if (frmMain.FormLoaded) ShowSubtotalNames();  // at the start the menu has words of its own
}

void FreshTaxa() {
    CountsAtOpen.assign(2, {});
    RowOfSlot[0] = 0;
    for (int slot = 1; slot <= kSlots; ++slot) {
        RowOfSlot[slot] = KeyIndex[slot] = static_cast<std::int16_t>(slot);
        TaxonTable[slot][0] = TaxonTable[slot][1] = slot;
        TaxonTable[slot][2] = TaxonTable[slot][3] = 0;
        TaxonTable[slot][4] = kEmpty;
        Counts[slot][1] = 0;
    }
}

void FreshNotes() {
    for (int i = 1; i <= 3; ++i) SheetFooter[i] = kEmpty;
    SheetFooter[4] = "Note: ";
    SampleNotes[1] = kEmpty;
    frmMain.SampleNote.SetText(kEmpty);
    for (int p = 1; p <= kParams; ++p) {
        ParamValues[p][1] = kEmpty;
        frmMain.ParamBoxes[p].SetText(kEmpty);
    }
    SheetClean = true;  // emptying the fields of an earlier sheet is no edit of this one
}

void SwitchOffCommands() {
    for (Control* command : std::initializer_list<Control*>{&frmMain.ResetButton, &frmMain.ResumeButton, &frmMain.mnuFinishAmend,
                                                            &frmMain.mnuSave, &frmMain.mnuSaveHistory, &frmMain.NextSampleButton,
                                                            &frmMain.mnuNext, &frmMain.mnuUndo, &frmMain.mnuReset, &frmMain.mnuNew})
        command->SetEnabled(false);
    MarkSheetChanged(false);
}

void ShowExclamation(const std::string& text) {
    services.messages->Show({"Error", text, Icon::Exclamation, Buttons::Ok});
}

void AskForKeyboardIfUnknown() {
    if (KeyboardKnown != 0) return;
    frmMain.Hide();
    frmInitial.Show();
}

// False: the built-in keys serve from now on.
bool LoadKeySettings() {
    try {
        ReadKeySettings();
        return true;
    } catch (const Failure&) {
        KeySettingsLoaded = false;
        services.sounds->Beep();
        ShowExclamation("Marlbrook could not find reference file(s). Please use installer package to installe Marlbrook in your computer.");
        AskForKeyboardIfUnknown();
        return false;
    }
}

struct WaveFile {
    const char* name;
    Wave* wave;
};
const WaveFile kWaveFiles[] = {
    {"Key-1.wav", &WaveKey1}, {"Key-2.wav", &WaveKey2}, {"Key-3.wav", &WaveKey3},  {"Opening.wav", &WaveOpening},
    {"Undo.wav", &WaveUndo},  {"Save.wav", &WaveSave},  {"Alarm.wav", &WaveAlarm}, {"Error.wav", &WaveError},
};

// False: a wave is missing, and there is no sound at all.
bool LoadWaves() {
    try {
        for (const WaveFile& file : kWaveFiles) file.wave->bytes = services.files->ReadAll(ProgramFile("Sound files/") + file.name);
        return true;
    } catch (const Failure&) {
        SoundOn = false;
        ShowExclamation("Marlbrook could not find sound file(s). Please use installer package to installe Marlbrook in your computer.");
        AskForKeyboardIfUnknown();
        return false;
    }
}

void OfferFavoritePicture() {
    try {
        LoadFavoritePicture();
        frmMain.mnuFavorite.SetEnabled(true);
    } catch (const Failure&) {
        frmMain.mnuFavorite.SetEnabled(false);
    }
}
}  // namespace

void LoadMainWindow() {
    BackupSlot = 99;
    DiagramOpen = false;
    frmMain.FormLoaded = false;
    for (int p = 1; p <= kParams; ++p) frmMain.ParamBoxes[p].SetText(kEmpty);
    for (int slot = 0; slot <= kSlots; ++slot) frmMain.TaxonNames[slot].tab_stop = frmMain.TaxonCounts[slot].tab_stop = false;
    frmMain.FocusRest.tab_stop = false;
    for (int p = 1; p <= kParams; ++p) frmMain.RenameButtons[p].SetVisible(false);
    frmMain.KeysEnabled = true;
    SaveOutcome = 0;
    AlarmArmed = true;
    WarnOldSample = true;
    InitialiseSheet();
    frmMain.FormLoaded = true;
}

void InitialiseSheet() {
    LayOutCells();
    ClearSession();
    EmptyCells();
    BeginFirstSample();
    FreshHeader();
    AddHistoryLine("(Start)");
    FreshTaxa();
    FreshNotes();
    SnapshotSheet();  // so that a reset before the first save comes back to the fresh sheet
    SwitchOffCommands();
    SampleNamesAreText = false;
    UndoKeyState = 0;
    ReverseCount = false;
    if (!AmendMode) frmMain.BankTabs.SetTab(0);
    RecountTotals(CurrentSample);
    SheetReplaced.Raise();
    if (!LoadKeySettings() || !LoadWaves()) return;
    services.sounds->Play(WaveOpening);
    SoundOn = true;
    KeySettingsLoaded = true;
    AskForKeyboardIfUnknown();
    OfferFavoritePicture();
}

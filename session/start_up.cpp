#include "session/start_up.h"

#include <algorithm>
#include <string>

#include "keys/settings/key_settings.h"
#include "platform/failure.h"
#include "platform/wave_format.h"
#include "session/history.h"
#include "session/saved_state.h"
#include "session/state/sample_names.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/pad_places.h"
#include "windows/picture_window.h"

namespace {
void LayOutCells() {
    for (int place = 1; place <= kKeys; ++place) {
        const Box name = PadPlace(place);
        KeyLeft[place] = static_cast<std::int16_t>(name.left);
        KeyTop[place] = static_cast<std::int16_t>(name.top);
        for (const int slot : {place + kKeys, place + 2 * kKeys}) frmMain.PlaceSlot(slot, name.left, name.top);
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

void BeginFirstSample(MainWindow& window) {
    SheetClean = true;
    SampleUntouched = true;
    SampleCount = 1;
    CurrentSample = 1;
    MaxSerial = 1;
    window.SerialNumber.SetCaption("1/1");
    EnableDiagramItems(false);
    window.mnuItalic.SetChecked(true);
}

void FreshHeader(MainWindow& window) {
    SheetHeader[kHeaderPath] = "Untitled";
    SheetHeader[kHeaderSaved] = "";
    SheetHeader[kHeaderTime] = "";
    SheetHeader[kHeaderSerial] = "Serial No.";
    SheetHeader[kHeaderKey] = "Key index";
    SheetHeader[kHeaderSubtotal1] = "Subtotal-1";
    SheetHeader[kHeaderSubtotal2] = "Subtotal-2";
    SheetHeader[kHeaderSample] = "Sample name";
    SampleTable[kSampleSerial][0] = 0;
    SampleTable[kSampleSerial][1] = 1;
    SampleTable[kSampleName][0] = SampleTable[kSampleName][1] = kUnnamed;
    window.SampleName.SetText(kUnnamed);
    window.SampleList.Clear();
    window.SampleList.SetText(kUnnamed);
    if (window.FormLoaded) ShowSubtotalNames();  // at the start the menu has words of its own
}

void FreshTaxa() {
    CountsAtOpen.assign(2, {});
    RowOfSlot[0] = 0;
    for (int slot = 1; slot <= kSlots; ++slot) {
        RowOfSlot[slot] = KeyIndex[slot] = static_cast<std::int16_t>(slot);
        TaxonTable[slot][kTaxonSheetRow] = TaxonTable[slot][kTaxonKey] = slot;
        TaxonTable[slot][kTaxonSubtotal1] = TaxonTable[slot][kTaxonSubtotal2] = 0;
        TaxonTable[slot][kTaxonName] = kEmpty;
        Counts[slot][1] = 0;
    }
}

void FreshNotes(MainWindow& window) {
    for (int i = 1; i <= 3; ++i) SheetFooter[i] = kEmpty;
    SheetFooter[4] = "Note: ";
    SampleNotes[1] = kEmpty;
    window.SampleNote.SetText(kEmpty);
    for (int p = 1; p <= kParams; ++p) {
        ParamValues[p][1] = kEmpty;
        window.ParamBoxes[p].SetText(kEmpty);
    }
    SheetClean = true;  // emptying the fields of an earlier sheet is no edit of this one
}

void ShowExclamation(const std::string& text) {
    services.messages->Show({"Error", text, Icon::Exclamation, Buttons::Ok});
}

void AskForKeyboardIfUnknown() {
    if (KeyboardKnown != 0) return;
    frmMain.Hide();
    frmInitial.Show();
}

// Returns false if they cannot be read: the built-in keys serve from now on.
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

// Returns false if a wave is missing: there is no sound at all then. Of one that is too large so much is read that it counts as broken,
// and is silent alone.
bool LoadWaves() {
    try {
        for (const WaveFile& file : kWaveFiles)
            file.wave->bytes = services.files->ReadHead(ProgramFile("Sound files/") + file.name, kLargestWave + 1);
        return true;
    } catch (const Failure&) {
        SoundOn = false;
        ShowExclamation("Marlbrook could not find sound file(s). Please use installer package to installe Marlbrook in your computer.");
        AskForKeyboardIfUnknown();
        return false;
    }
}

bool TryLoadFavoritePicture() {
    try {
        LoadFavoritePicture();
        return true;
    } catch (const Failure&) {
        return false;
    }
}
}  // namespace

void LoadMainWindow(MainWindow& window) {
    BackupSlot = 99;
    DiagramOpen = false;
    window.FormLoaded = false;
    for (int p = 1; p <= kParams; ++p) window.ParamBoxes[p].SetText(kEmpty);
    window.KeepTabOffPad();
    for (int p = 1; p <= kParams; ++p) window.RenameButtons[p].SetVisible(false);
    window.KeysEnabled = true;
    SaveOutcome = 0;
    AlarmArmed = true;
    WarnOldSample = true;
    InitialiseSheet();
    window.FormLoaded = true;
}

void InitialiseSheet() {
    LayOutCells();
    ClearSession();
    frmMain.EmptyPad();
    frmMain.SampleNote.SetEnabled(false);
    BeginFirstSample(frmMain);
    FreshHeader(frmMain);
    AddHistoryLine("(Start)");
    FreshTaxa();
    FreshNotes(frmMain);
    SnapshotSheet();  // so that a reset before the first save comes back to the fresh sheet
    frmMain.SwitchOffCommands();
    MarkSheetChanged(false);
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
    frmMain.mnuFavorite.SetEnabled(TryLoadFavoritePicture());
}

void SayIfWaveIsBroken() {
    if (!SoundOn) return;
    const auto broken = std::ranges::find_if(kWaveFiles, [](const WaveFile& file) { return !IsPlayableWave(file.wave->bytes); });
    if (broken == std::end(kWaveFiles)) return;
    frmNext.TellOnStartFace(StartNews::BrokenWave, std::string(broken->name) + " is no wave of the kinds that are played: it stays silent");
}

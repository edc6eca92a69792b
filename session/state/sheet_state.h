// The state that all procedures share: one data sheet and the counting session on it. It lives from the start of the program to its
// end; opening, starting or resetting a sheet overwrites it in place. Plain data, no accessors.
//
// Slots run 1..135 (bank 0: 1..45, bank 1: 46..90, bank 2: 91..135), samples from 1. Index 0 has the one meaning told at each array.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/any.h"
#include "platform/services.h"
#include "sheet/sizes.h"

// ---- The sheet ----

// Cells of SheetHeader: those of the file's first two rows; 0..5 and 10 are unused.
enum HeaderCell {
    kHeaderPath = 6,
    kHeaderSaved,   // "Last saved (dd/mm/yyyy):" or the like
    kHeaderTime,    // date and time of it
    kHeaderSerial,  // "Serial No."; the numbers stand behind it
    kHeaderKey = 11,
    kHeaderSubtotal1,  // the names of the subtotals
    kHeaderSubtotal2,
    kHeaderSample,  // "Sample name"; the names stand behind it
    kHeaderCells,
};
inline Any SheetHeader[kHeaderCells];

// Rows of SampleTable.
enum SampleRow {
    kSampleNameDrawn,  // the name as the diagram took it up
    kSampleSerial,     // Serial No.
    kSampleName,
    kSampleRows,
};
inline Any SampleTable[kSampleRows][kColumns + 1];

// Columns of TaxonTable.
enum TaxonColumn {
    kTaxonSheetRow,
    kTaxonKey,        // key index: the slot
    kTaxonSubtotal1,  // flags: 1 for a member of the subtotal, else 0
    kTaxonSubtotal2,
    kTaxonName,
    kTaxonColumns,
};
constexpr int kSubtotalFlags[kSubtotals] = {kTaxonSubtotal1, kTaxonSubtotal2};
inline Any TaxonTable[kSlots + 1][kTaxonColumns];  // [slot]; of row 0 the flags: the totals on show

inline std::int32_t Counts[kSlots + 1][kColumns + 1];  // [slot][sample], may be negative; [0][j]: sum of sample j on the percent basis
inline std::string SampleNotes[kColumns + 1];          // [0] unused
inline Any SheetFooter[5];                             // four closing cells 1..4; [0] unused
constexpr int kParamName = 4;                          // column of ParamHeader
inline std::string ParamHeader[kParams + 1][kParamName + 1];  // [p][1..3]: the cells before the name and the values; index 0 unused
inline Any ParamValues[kParams + 1][kColumns + 1];            // [p][sample]; index 0 unused
inline std::int32_t AllTotal;                                 // sum of the count cells of the sample on show
inline std::int16_t SampleCount;                              // 0 before the main window is loaded, then 1 and more
inline std::int16_t CurrentSample;                            // the column on show and counted on
inline std::int16_t MaxSerial;                                // largest Serial No., 0 if there is none
inline std::string SheetPath;                                 // empty until the first save or open

// ---- As read from a file: the order of its rows and columns ----

inline std::int16_t KeyIndex[kSlots + 1];      // slot of sheet row r; [0] unused
inline std::int16_t RowOfSlot[kSlots + 1];     // the inverse; [0] is 0: the data mark of the diagram goes to row 0
inline std::int32_t RowSubtotal1[kSlots + 1];  // flags of sheet row r as read
inline std::int32_t RowSubtotal2[kSlots + 1];
inline std::string RowNames[kSlots + 1];  // taxon name of sheet row r as read
inline std::string SampleNamesRead[kColumns + 1];

// ---- The snapshot that Reset and Quit go back to ----

inline std::vector<std::array<std::int32_t, kSlots + 1>> CountsAtOpen;  // [sample][slot]; as many samples as at the snapshot
inline Any TaxonTableAtOpen[kSlots + 1][kTaxonColumns];                 // from kTaxonKey on
inline Any ParamValuesAtOpen[kParams + 1][kColumns + 1];                // [p][0]: the caption of the parameter

// ---- The curve of taxa seen against grains counted ----

inline std::int16_t TaxaSeen;                     // taxa of the sample on show whose count is not 0
inline std::int16_t DiversityLength;              // the total of the sample on show: last index of the curve
inline std::vector<std::int16_t> DiversityCurve;  // [total]: ten times the taxa seen when it was passed; 0 where it was not seen

// ---- Keys and sounds ----

// Columns of KeySettings.
enum KeyColumn {
    kKeyDefinition,
    kKeyCode,
    kKeyNumber,
    kKeyColumns,
};
inline Any KeySettings[63][kKeyColumns];  // [row], as in the key settings file
inline std::int16_t Shift1Code;
inline std::int16_t Shift2Code;
inline std::int16_t UndoKeyCode;
inline bool KeySettingsLoaded;          // False: the built-in keys serve
inline float KeyboardKnown;             // 1, or 0 while the twelve named keys have not been recognised
inline std::int16_t KeyTop[kKeys + 1];  // where place i of the pad lies, in twips; [0] unused
inline std::int16_t KeyLeft[kKeys + 1];
inline Wave WaveKey1{"WaveKey1", {}};
inline Wave WaveKey2{"WaveKey2", {}};
inline Wave WaveKey3{"WaveKey3", {}};
inline Wave WaveOpening{"WaveOpening", {}};
inline Wave WaveUndo{"WaveUndo", {}};
inline Wave WaveSave{"WaveSave", {}};
inline Wave WaveAlarm{"WaveAlarm", {}};
inline Wave WaveError{"WaveError", {}};

// ---- The session ----

inline bool SoundOn;             // False: silence, and neither alarm nor back-up while counting
inline bool SheetClean;          // no counting key or edit since start or open
inline bool SampleUntouched;     // no key since start or open
inline bool AmendMode;           // Modify mode: keys do not count, the cells are open for editing
inline std::int16_t ShiftLevel;  // active bank, 0..2
inline bool Shift1Down;
inline bool Shift2Down;
inline std::int16_t UndoKeyState;  // 0 up; 1 down, no counter key since; 2 and more: counter keys were pressed while it was held
inline bool ReverseCount;          // the key that is being processed subtracts

// Columns of UndoList.
enum UndoColumn {
    kUndoSample,
    kUndoSlot,  // negative for a reverse count; 0: the entry is empty
    kUndoColumns,
};
inline std::int16_t UndoList[kUndoDepth + 1][kUndoColumns];  // newest at 0

inline std::int16_t LastSlot;                // the slot that carries the highlight; 0: none
inline std::vector<std::string> HistoryLog;  // [0] is a time stamp
inline std::int16_t HistoryCount;            // last index of HistoryLog
inline bool AlarmArmed;                      // the alarm may sound at the next full hundred
inline bool WarnOldSample;                   // a counting key on an old sample asks first
inline std::int16_t SelectedSlot;            // source of a move
inline std::string EditedValue;              // text of a cell when it got the focus
inline std::int16_t LastEditKey;             // last key pressed in a guarded box, 9999 since it got the focus
inline float CountAtMouseDown;               // value of a count box at the last mouse press in it
inline std::int16_t MoveFrom;                // source and target column of MoveSampleColumn
inline std::int16_t MoveTo;
inline bool DiagramOpen;
inline std::int16_t SaveOutcome;  // 0 at load, 1 while the main window closes, 2 after a save that was cancelled or failed
inline bool SaveAsPending;        // the next Save as takes the sheet to its new file
inline bool TemplateOpened;       // the file that was opened has no samples
inline std::int16_t BackupSlot;   // 99: the next back-up is the master; -1: it was just written; 0..9: the last ring file
inline bool SampleNamesAreText;   // some sample name is not just a number
inline std::int16_t FileVersion;  // layout of the file that was opened: 1 or 2

// ---- For scripts alone: nothing in the program reads these, or they are always 0; SampleAtRank, ConissData, ConissSkip are others ----

inline std::int16_t SerialOfColumn[kColumns + 1];  // as read from a file
inline std::int16_t ColumnOfSerial[kColumns + 1];  // the inverse
inline std::int16_t RepeatKeyCode;                 // always 0

// ---- From one event to the next: no script reads these ----

inline int HeldTab;             // the bank that was in front when the mouse went down on the tabs
inline bool EditKeyAwaitsText;  // LastEditKey went down in its box and has not changed it yet: what is pasted comes from no key

// Every variable above, with its name: for scripts, which read them by name, and for tests, which put them back to what they are when the
// program starts: 0, false, empty, a wave without its bytes.
template <class Visit>
void ForEachSheetVariable(Visit visit) {
    visit("SheetHeader", SheetHeader);
    visit("SampleTable", SampleTable);
    visit("TaxonTable", TaxonTable);
    visit("Counts", Counts);
    visit("SampleNotes", SampleNotes);
    visit("SheetFooter", SheetFooter);
    visit("ParamHeader", ParamHeader);
    visit("ParamValues", ParamValues);
    visit("AllTotal", AllTotal);
    visit("SampleCount", SampleCount);
    visit("CurrentSample", CurrentSample);
    visit("MaxSerial", MaxSerial);
    visit("SheetPath", SheetPath);
    visit("KeyIndex", KeyIndex);
    visit("RowOfSlot", RowOfSlot);
    visit("RowSubtotal1", RowSubtotal1);
    visit("RowSubtotal2", RowSubtotal2);
    visit("RowNames", RowNames);
    visit("SampleNamesRead", SampleNamesRead);
    visit("CountsAtOpen", CountsAtOpen);
    visit("TaxonTableAtOpen", TaxonTableAtOpen);
    visit("ParamValuesAtOpen", ParamValuesAtOpen);
    visit("TaxaSeen", TaxaSeen);
    visit("DiversityLength", DiversityLength);
    visit("DiversityCurve", DiversityCurve);
    visit("KeySettings", KeySettings);
    visit("Shift1Code", Shift1Code);
    visit("Shift2Code", Shift2Code);
    visit("UndoKeyCode", UndoKeyCode);
    visit("KeySettingsLoaded", KeySettingsLoaded);
    visit("KeyboardKnown", KeyboardKnown);
    visit("KeyTop", KeyTop);
    visit("KeyLeft", KeyLeft);
    visit("SoundOn", SoundOn);
    visit("SheetClean", SheetClean);
    visit("SampleUntouched", SampleUntouched);
    visit("AmendMode", AmendMode);
    visit("ShiftLevel", ShiftLevel);
    visit("Shift1Down", Shift1Down);
    visit("Shift2Down", Shift2Down);
    visit("UndoKeyState", UndoKeyState);
    visit("ReverseCount", ReverseCount);
    visit("UndoList", UndoList);
    visit("LastSlot", LastSlot);
    visit("HistoryLog", HistoryLog);
    visit("HistoryCount", HistoryCount);
    visit("AlarmArmed", AlarmArmed);
    visit("WarnOldSample", WarnOldSample);
    visit("SelectedSlot", SelectedSlot);
    visit("EditedValue", EditedValue);
    visit("LastEditKey", LastEditKey);
    visit("CountAtMouseDown", CountAtMouseDown);
    visit("MoveFrom", MoveFrom);
    visit("MoveTo", MoveTo);
    visit("DiagramOpen", DiagramOpen);
    visit("SaveOutcome", SaveOutcome);
    visit("SaveAsPending", SaveAsPending);
    visit("TemplateOpened", TemplateOpened);
    visit("BackupSlot", BackupSlot);
    visit("SampleNamesAreText", SampleNamesAreText);
    visit("FileVersion", FileVersion);
    visit("SerialOfColumn", SerialOfColumn);
    visit("ColumnOfSerial", ColumnOfSerial);
    visit("RepeatKeyCode", RepeatKeyCode);
}

// The same for those that no script reads.
template <class Visit>
void ForEachHiddenSheetVariable(Visit visit) {
    visit("WaveKey1", WaveKey1);
    visit("WaveKey2", WaveKey2);
    visit("WaveKey3", WaveKey3);
    visit("WaveOpening", WaveOpening);
    visit("WaveUndo", WaveUndo);
    visit("WaveSave", WaveSave);
    visit("WaveAlarm", WaveAlarm);
    visit("WaveError", WaveError);
    visit("HeldTab", HeldTab);
    visit("EditKeyAwaitsText", EditKeyAwaitsText);
}

#include "session/state/sheet_state.h"

Any SheetHeader[15];
Any SampleTable[3][kColumns + 1];
Any TaxonTable[kSlots + 1][5];
std::int32_t Counts[kSlots + 1][kColumns + 1];
std::string SampleNotes[kColumns + 1];
Any SheetFooter[5];
std::string ParamHeader[kParams + 1][5];
Any ParamValues[kParams + 1][kColumns + 1];
std::int32_t AllTotal;
std::int16_t SampleCount;
std::int16_t CurrentSample;
std::int16_t MaxSerial;
std::string SheetPath;

std::int16_t KeyIndex[kSlots + 1];
std::int16_t RowOfSlot[kSlots + 1];
std::int32_t RowSubtotal1[kSlots + 1];
std::int32_t RowSubtotal2[kSlots + 1];
std::string RowNames[kSlots + 1];
std::string SampleNamesRead[kColumns + 1];
std::int16_t SerialOfColumn[kColumns + 1];
std::int16_t ColumnOfSerial[kColumns + 1];

std::vector<std::array<std::int32_t, kSlots + 1>> CountsAtOpen;
Any TaxonTableAtOpen[kSlots + 1][5];
Any ParamValuesAtOpen[kParams + 1][kColumns + 1];

std::int16_t TaxaSeen;
std::int16_t DiversityLength;
std::vector<std::int16_t> DiversityCurve;

Any KeySettings[63][3];
std::int16_t Shift1Code;
std::int16_t Shift2Code;
std::int16_t UndoKeyCode;
bool KeySettingsLoaded;
float KeyboardKnown;
std::int16_t KeyTop[kKeys + 1];
std::int16_t KeyLeft[kKeys + 1];
Wave WaveKey1{"WaveKey1", {}};
Wave WaveKey2{"WaveKey2", {}};
Wave WaveKey3{"WaveKey3", {}};
Wave WaveOpening{"WaveOpening", {}};
Wave WaveUndo{"WaveUndo", {}};
Wave WaveSave{"WaveSave", {}};
Wave WaveAlarm{"WaveAlarm", {}};
Wave WaveError{"WaveError", {}};

bool SoundOn;
bool SheetClean;
bool SampleUntouched;
bool AmendMode;
std::int16_t ShiftLevel;
bool Shift1Down;
bool Shift2Down;
std::int16_t UndoKeyState;
bool ReverseCount;
std::int16_t RepeatKeyCode;
std::int16_t UndoList[kUndoDepth + 1][2];
std::int16_t LastSlot;
std::vector<std::string> HistoryLog;
std::int16_t HistoryCount;
bool AlarmArmed;
bool WarnOldSample;
std::int16_t SelectedSlot;
std::string EditedValue;
std::int16_t LastEditKey;
float CountAtMouseDown;
std::int16_t MoveFrom;
std::int16_t MoveTo;
bool DiagramOpen;
std::int16_t SaveOutcome;
bool SaveAsPending;
bool TemplateOpened;
std::int16_t BackupSlot;
bool SampleNamesAreText;
std::int16_t FileVersion;

#include "unit/shared_state.h"

#include <type_traits>

#include "diagram/data/percentages.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"

namespace {
template <class T, std::size_t n>
void Wipe(T (&array)[n]) {
    if constexpr (std::is_array_v<T>)
        for (T& row : array) Wipe(row);
    else
        for (T& cell : array) cell = T{};
}

void WipeSheet() {
    Wipe(SheetHeader);
    Wipe(SampleTable);
    Wipe(TaxonTable);
    Wipe(Counts);
    Wipe(SampleNotes);
    Wipe(SheetFooter);
    Wipe(ParamHeader);
    Wipe(ParamValues);
    Wipe(KeyIndex);
    Wipe(RowOfSlot);
    Wipe(TaxonTableAtOpen);
    Wipe(ParamValuesAtOpen);
    CountsAtOpen.clear();
    AllTotal = 0;
    SampleCount = CurrentSample = MaxSerial = 0;
    SheetPath.clear();
}

void WipeKeys() {
    Wipe(KeySettings);
    Shift1Code = Shift2Code = UndoKeyCode = 0;
    KeySettingsLoaded = false;
    KeyboardKnown = 0;
    for (Wave* wave : {&WaveKey1, &WaveKey2, &WaveKey3, &WaveOpening, &WaveUndo, &WaveSave, &WaveAlarm, &WaveError}) wave->bytes.clear();
}

void WipeSession() {
    SoundOn = SheetClean = SampleUntouched = AmendMode = Shift1Down = Shift2Down = ReverseCount = false;
    AlarmArmed = WarnOldSample = DiagramOpen = SaveAsPending = TemplateOpened = SampleNamesAreText = false;
    ShiftLevel = UndoKeyState = RepeatKeyCode = LastSlot = HistoryCount = SelectedSlot = LastEditKey = 0;
    MoveFrom = MoveTo = SaveOutcome = BackupSlot = FileVersion = 0;
    Wipe(UndoList);
    HistoryLog.clear();
    EditedValue.clear();
    CountAtMouseDown = 0;
    MousePointer = kPointerDefault;
}

void WipeDiagram() {
    Wipe(SamplePercent);
    SampleRank.clear();
    SampleAtRank.clear();
    Wipe(ColumnOffset);
    Wipe(DiagramNames);
    ColumnGap = TaxaSeen = DiversityLength = 0;
    LastColumnMax = 0;
    DiversityCurve.clear();
}
}  // namespace

void WipeSharedState() {
    WipeSheet();
    WipeKeys();
    WipeSession();
    WipeDiagram();
}

#include "drive/variables.h"

#include <functional>
#include <map>
#include <utility>

#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "drive/script.h"
#include "drive/values.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/initial_window.h"
#include "windows/main_window.h"

namespace drive {

namespace {

struct Variable {
    std::size_t dimensions;
    // Called with as many indices as there are dimensions; nothing if one is out of bounds.
    std::function<std::optional<std::string>(const std::vector<int>&)> text;
};

bool IsIndex(int index, std::size_t size) {
    return index >= 0 && static_cast<std::size_t>(index) < size;
}

template <class T>
Variable Of(const T& scalar) {
    return {0, [&scalar](const std::vector<int>&) { return ValueText(scalar); }};
}

template <class T, std::size_t kSize>
Variable Of(const T (&array)[kSize]) {
    return {1, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kSize)) return std::nullopt;
                return ValueText(array[at[0]]);
            }};
}

template <class T, std::size_t kRows, std::size_t kColumns>
Variable Of(const T (&array)[kRows][kColumns]) {
    return {2, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kRows) || !IsIndex(at[1], kColumns)) return std::nullopt;
                return ValueText(array[at[0]][at[1]]);
            }};
}

template <class T>
Variable Of(const std::vector<T>& array) {
    return {1, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], array.size())) return std::nullopt;
                return ValueText(array[at[0]]);
            }};
}

// Stored sample by sample, named slot first as Counts is.
template <class T, std::size_t kRows>
Variable BySample(const std::vector<std::array<T, kRows>>& array) {
    return {2, [&array](const std::vector<int>& at) -> std::optional<std::string> {
                if (!IsIndex(at[0], kRows) || !IsIndex(at[1], array.size())) return std::nullopt;
                return ValueText(array[at[1]][at[0]]);
            }};
}

const std::map<std::string, Variable>& Variables() {
    static const std::map<std::string, Variable> variables = {
        // The sheet
        {"SheetHeader", Of(SheetHeader)},
        {"SampleTable", Of(SampleTable)},
        {"TaxonTable", Of(TaxonTable)},
        {"Counts", Of(Counts)},
        {"SampleNotes", Of(SampleNotes)},
        {"SheetFooter", Of(SheetFooter)},
        {"ParamHeader", Of(ParamHeader)},
        {"ParamValues", Of(ParamValues)},
        {"AllTotal", Of(AllTotal)},
        {"SampleCount", Of(SampleCount)},
        {"CurrentSample", Of(CurrentSample)},
        {"MaxSerial", Of(MaxSerial)},
        {"SheetPath", Of(SheetPath)},
        // As read from a file
        {"KeyIndex", Of(KeyIndex)},
        {"RowOfSlot", Of(RowOfSlot)},
        {"RowSubtotal1", Of(RowSubtotal1)},
        {"RowSubtotal2", Of(RowSubtotal2)},
        {"RowNames", Of(RowNames)},
        {"SampleNamesRead", Of(SampleNamesRead)},
        {"SerialOfColumn", Of(SerialOfColumn)},
        {"ColumnOfSerial", Of(ColumnOfSerial)},
        // The snapshot
        {"CountsAtOpen", BySample(CountsAtOpen)},
        {"TaxonTableAtOpen", Of(TaxonTableAtOpen)},
        {"ParamValuesAtOpen", Of(ParamValuesAtOpen)},
        // Keys and sounds
        {"KeySettings", Of(KeySettings)},
        {"Shift1Code", Of(Shift1Code)},
        {"Shift2Code", Of(Shift2Code)},
        {"UndoKeyCode", Of(UndoKeyCode)},
        {"KeySettingsLoaded", Of(KeySettingsLoaded)},
        {"KeyboardKnown", Of(KeyboardKnown)},
        {"KeyTop", Of(KeyTop)},
        {"KeyLeft", Of(KeyLeft)},
        // The session
        {"SoundOn", Of(SoundOn)},
        {"SheetClean", Of(SheetClean)},
        {"SampleUntouched", Of(SampleUntouched)},
        {"AmendMode", Of(AmendMode)},
        {"ShiftLevel", Of(ShiftLevel)},
        {"Shift1Down", Of(Shift1Down)},
        {"Shift2Down", Of(Shift2Down)},
        {"UndoKeyState", Of(UndoKeyState)},
        {"ReverseCount", Of(ReverseCount)},
        {"RepeatKeyCode", Of(RepeatKeyCode)},
        {"UndoList", Of(UndoList)},
        {"LastSlot", Of(LastSlot)},
        {"HistoryLog", Of(HistoryLog)},
        {"HistoryCount", Of(HistoryCount)},
        {"AlarmArmed", Of(AlarmArmed)},
        {"WarnOldSample", Of(WarnOldSample)},
        {"SelectedSlot", Of(SelectedSlot)},
        {"EditedValue", Of(EditedValue)},
        {"LastEditKey", Of(LastEditKey)},
        {"CountAtMouseDown", Of(CountAtMouseDown)},
        {"MoveFrom", Of(MoveFrom)},
        {"MoveTo", Of(MoveTo)},
        {"DiagramOpen", Of(DiagramOpen)},
        {"SaveOutcome", Of(SaveOutcome)},
        {"SaveAsPending", Of(SaveAsPending)},
        {"TemplateOpened", Of(TemplateOpened)},
        {"BackupSlot", Of(BackupSlot)},
        {"SampleNamesAreText", Of(SampleNamesAreText)},
        {"FileVersion", Of(FileVersion)},
        {"MousePointer", Of(MousePointer)},
        // The diagram and the taxa curve
        {"SamplePercent", Of(SamplePercent)},
        {"SampleRank", Of(SampleRank)},
        {"SampleAtRank", Of(SampleAtRank)},
        {"ColumnOffset", Of(ColumnOffset)},
        {"ColumnGap", Of(ColumnGap)},
        {"LastColumnMax", Of(LastColumnMax)},
        {"DiagramNames", Of(DiagramNames)},
        {"TaxaSeen", Of(TaxaSeen)},
        {"DiversityLength", Of(DiversityLength)},
        {"DiversityCurve", Of(DiversityCurve)},
        {"ConissData", BySample(ConissData)},
        {"ConissDistance", Of(ConissDistance)},
        {"ConissPosition", Of(ConissPosition)},
        {"ConissHeight", Of(ConissHeight)},
        {"ConissSkip", Of(ConissSkip)},
        {"MergeUpper", Of(MergeUpper)},
        {"MergeLower", Of(MergeLower)},
        {"MergeHeight", Of(MergeHeight)},
        // Members of windows
        {"FormLoaded", Of(frmMain.FormLoaded)},
        {"ChangingSample", Of(frmMain.ChangingSample)},
        {"KeysEnabled", Of(frmMain.KeysEnabled)},
        {"HeldCounts", Of(frmMain.HeldCounts)},
        {"HeldTotals", Of(frmMain.HeldTotals)},
        {"AllKnown", Of(frmInitial.AllKnown)},
        {"SelectedSample", Of(frmDiagram.SelectedSample)},
        {"DiagramTop", Of(frmDiagram.DiagramTop)},
        {"DiagramHeight", Of(frmDiagram.DiagramHeight)},
        {"DiagramFormHeight", Of(frmDiagram.DiagramFormHeight)},
        {"DiagramFormWidth", Of(frmDiagram.DiagramFormWidth)},
        {"WidthMargin", Of(frmDiagram.WidthMargin)},
        {"HeightMargin", Of(frmDiagram.HeightMargin)},
        {"ScrollMargin", Of(frmDiagram.ScrollMargin)},
        {"SliderMargin", Of(frmDiagram.SliderMargin)},
        {"FrameMargin", Of(frmDiagram.FrameMargin)},
        {"BandMargin", Of(frmDiagram.BandMargin)},
        {"DiagramResizeGuard", Of(frmDiagram.DiagramResizeGuard)},
        {"SliderDragging", Of(frmDiagram.SliderDragging)},
        {"MovingSample", Of(frmDiagram.MovingSample)},
        {"ConissDrawn", Of(frmDiagram.ConissDrawn)},
    };
    return variables;
}

}  // namespace

std::optional<std::string> VariableText(const std::string& name, const std::vector<int>& indices) {
    const auto found = Variables().find(name);
    if (found == Variables().end()) return std::nullopt;
    const Variable& variable = found->second;
    if (indices.size() != variable.dimensions)
        throw ScriptFault(name + " takes " + std::to_string(variable.dimensions) + " indices, not " + std::to_string(indices.size()));
    auto text = variable.text(indices);
    if (!text) throw ScriptFault("an index of " + name + " is out of bounds");
    return text;
}

}  // namespace drive

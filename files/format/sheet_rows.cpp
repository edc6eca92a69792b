#include "files/format/sheet_rows.h"

#include <string>

#include "platform/failure.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"

void LabelHeader(const char* label, const std::string& stamp) {
    SheetHeader[kHeaderPath] = SheetPath;
    SheetHeader[kHeaderSaved] = label;
    SheetHeader[kHeaderTime] = stamp;
}

void WriteHeaderRows(CellWriter& cells, int samples) {
    for (int i = kHeaderPath; i <= kHeaderSerial; ++i) cells.Write(SheetHeader[i]);
    for (int sample = 1; sample <= samples; ++sample) cells.Write(SampleTable[kSampleSerial][sample]);
    cells.EndRow();
    for (int i = kHeaderKey; i <= kHeaderSample; ++i) cells.Write(SheetHeader[i]);
    for (int sample = 1; sample <= samples; ++sample) cells.Write(SampleTable[kSampleName][sample]);
    cells.EndRow();
}

void WriteTaxonLabels(CellWriter& cells, int row) {
    for (int field = kTaxonKey; field <= kTaxonName; ++field) cells.Write(TaxonTable[KeyIndex[row]][field]);
}

void WriteCountRow(CellWriter& cells, int row) {
    WriteTaxonLabels(cells, row);
    cells.WriteCounts({&Counts[KeyIndex[row]][1], static_cast<std::size_t>(SampleCount)});
    cells.EndRow();
}

void WriteParamRows(CellWriter& cells, int samples) {
    for (int p = 1; p <= kParams; ++p) {
        for (int i = 1; i <= 3; ++i) cells.Write(ParamHeader[p][i]);
        cells.Write(WithoutTrailingColon(ParamHeader[p][kParamName]));
        for (int sample = 1; sample <= samples; ++sample) cells.Write(ParamValues[p][sample]);
        cells.EndRow();
    }
}

void WriteNoteRow(CellWriter& cells, int samples) {
    for (int i = 1; i <= 4; ++i) cells.Write(SheetFooter[i]);
    for (int sample = 1; sample <= samples; ++sample) cells.Write(SampleNotes[sample]);
    cells.EndRow();
}

void WriteSumLabels(CellWriter& cells, const Any& label) {
    for (int i = 0; i < 3; ++i) cells.Write(kEmpty);
    cells.Write(label);
}

void NameUntitledParams() {
    for (int p = 1; p <= kParams; ++p) {
        for (int i = 1; i <= 3; ++i)
            if (ParamHeader[p][i].empty()) ParamHeader[p][i] = kEmpty;
        if (WithoutTrailingColon(ParamHeader[p][kParamName]).empty()) ParamHeader[p][kParamName] = "Additional info-" + std::to_string(p);
    }
}

void FillEmptyParams() {
    NameUntitledParams();
    for (int p = 1; p <= kParams; ++p)
        for (int sample = 1; sample <= SampleCount; ++sample)
            if (ParamValues[p][sample] == "") ParamValues[p][sample] = kEmpty;
}

void FillEmptyNotes() {
    for (int sample = 1; sample <= SampleCount; ++sample)
        if (SampleNotes[sample].empty()) SampleNotes[sample] = kEmpty;
}

std::string SheetBaseName(const std::string& path) {
    // Neither a period at the very end nor a separator right before the period leaves a name.
    const std::size_t period = path.size() < 2 ? std::string::npos : path.rfind('.', path.size() - 2);
    if (period == std::string::npos || period == 0) throw Failure(kInvalidProcedureCall);
    const std::size_t separator = path.find_last_of("/\\", period - 1);
    if (separator == std::string::npos) throw Failure(kInvalidProcedureCall);
    return path.substr(separator + 1, period - separator - 1);
}

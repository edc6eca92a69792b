#include "unit/sheet_bytes.h"

#include <algorithm>
#include <iterator>

#include "files/format/cells.h"
#include "files/format/sheet_rows.h"
#include "platform/files.h"
#include "session/state/sheet_state.h"

namespace {
struct BytesInMemory : OutputFile {
    std::string bytes;
    void Replace(std::string_view all) override { bytes = all; }
};

bool HasMark(const Any& cell) {
    return cell.Text().find('"') != std::string::npos;
}
}  // namespace

std::string SheetBytes() {
    BytesInMemory file;
    CellWriter cells(file);
    WriteHeaderRows(cells, SampleCount);
    for (int row = 1; row <= kSlots; ++row) WriteCountRow(cells, row);
    WriteParamRows(cells, SampleCount);
    WriteNoteRow(cells, SampleCount);
    cells.Close();
    return file.bytes;
}

bool ComesBackFromItsFile() {
    if (!(SheetHeader[kHeaderSerial] == "Serial No.") || std::any_of(std::begin(SheetHeader), std::end(SheetHeader), HasMark)) return false;
    if (std::any_of(std::begin(SheetFooter), std::end(SheetFooter), HasMark)) return false;
    for (int sample = 1; sample <= SampleCount; ++sample)
        if (HasMark(SampleTable[kSampleName][sample]) || HasMark(SampleNotes[sample])) return false;
    for (int row = 1; row <= kSlots; ++row)
        if (HasMark(TaxonTable[KeyIndex[row]][kTaxonName])) return false;
    for (int p = 1; p <= kParams; ++p) {
        if (ParamHeader[p][kParamName].ends_with("::") || std::any_of(std::begin(ParamHeader[p]), std::end(ParamHeader[p]), HasMark))
            return false;
        if (std::any_of(&ParamValues[p][1], &ParamValues[p][SampleCount] + 1, HasMark)) return false;
    }
    return true;
}

// Reads the parts of a sheet, in the order of the file, straight into the shared arrays: what has been read when a cell fails stays.
// Each raises "Input past end of file", "Overflow" for a number outside its type, "Subscript out of range" for a serial, key index or
// column that the arrays do not have.
#pragma once
#include <bitset>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "files/format/cells.h"
#include "session/state/sheet_state.h"

// How much of a grid the arrays hold, for whoever shows them after a fault.
struct GridRead {
    bool serials = false;               // and with them SampleCount, 0 of a template, and CurrentSample, the last one
    bool largest_serial = false;        // MaxSerial
    bool subtotal_names = false;        // SheetHeader[kHeaderSubtotal1..kHeaderSample]
    int sample_names = 0;               // of the samples 1..sample_names
    int rows = 0;                       // taxon rows whose four labels are in
    int counts = 0;                     // of the last of these rows; SampleCount if it is whole
    std::bitset<kSlots + 1> has_count;  // [row]: a count that is not 0 in any sample; [0] unused
};
using RowProgress = std::function<void(int row)>;  // told before each taxon row

void ReadGrid(CellReader& cells, GridRead& read, const RowProgress& progress);  // what follows the path, to the last taxon row
void ReadParamRows(CellReader& cells);                                          // without values if TemplateOpened
void ReadNotes(CellReader& cells);                                              // the same

// The text of the file, in UTF-8. Raises "File error" if it cannot be read, or takes more than kLargestFile as a file or as a text.
std::string ReadSheetText(const std::string& path);

std::optional<int> RepeatedKeyIndex();  // that two rows have in common, the first met going down

std::int16_t LargestSerial();  // of the samples 1..SampleCount, 0 if there is none

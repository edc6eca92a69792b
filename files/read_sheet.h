// Reads the parts of a sheet, in the order of the file, straight into the shared arrays and onto the screen: what has been read when a
// cell fails stays. Each raises "Input past end of file", "Overflow" for a number outside its type, "Subscript out of range" for a
// serial, key index or column that the arrays do not have.
#pragma once
#include <cstdint>

#include "files/format/cell_reader.h"

void ReadFirstRow(CellReader& cells);     // what follows the path: labels, serials, so SampleCount (0: a template); begins the second row
void ReadSampleNames(CellReader& cells);  // the rest of the second row
void ReadTaxonRows(CellReader& cells);    // with the progress bar
void ReadParamRows(CellReader& cells);    // without values if TemplateOpened
void ReadNotes(CellReader& cells);        // the same

std::int16_t LargestSerial();  // of the samples 1..SampleCount, 0 if there is none

// The rows that all files of the sheet share, for a sheet of N samples:
//
//     "/home/ann/Mere.csv","Last saved (dd/mm/yyyy):","14/11/2026_(10:11:12)","Serial No.",1,2
//     "Key index","Trees","Herbs","Sample name","12.5","15.0"
//     1,1,0,"Pinus",40,12                                        135 rows: key index, subtotal flags, name, a value a sample
//     "---","---","---","Depth of core","14 m","16 m"            6 rows of Additional info
//     "---","---","---","Note: ","Created: ...","Created: ..."   notes, with line breaks inside the quotes
//
// Taxa stand in the order of the file's rows, not of the slots: a sheet sorted in a spreadsheet keeps its order and its keys.
#pragma once
#include <string>

#include "files/format/cells.h"
#include "platform/any.h"

// SheetHeader[kHeaderPath..kHeaderTime]: the path, "Last saved (dd/mm/yyyy):" or the like, date and time.
void LabelHeader(const char* label, const std::string& stamp);

// `samples`: how many columns follow the labels; SampleCount, or 0 in a template.
void WriteHeaderRows(CellWriter& cells, int samples);
void WriteTaxonLabels(CellWriter& cells, int row);  // the four label cells of a taxon row; the row goes on
void WriteCountRow(CellWriter& cells, int row);     // the whole row of a sheet
void WriteParamRows(CellWriter& cells, int samples);
void WriteNoteRow(CellWriter& cells, int samples);
void WriteSumLabels(CellWriter& cells, const Any& label);  // the four label cells of a row below the notes

void NameUntitledParams();  // in ParamHeader: no cell of the labels stays empty
void FillEmptyParams();     // the same, and no value stays empty: "---"
void FillEmptyNotes();

// The name of a file without its folder and its ending: "core 12" of "/home/ann/core 12.csv". Raises "Invalid procedure call" for a
// path without a period or without a folder.
std::string SheetBaseName(const std::string& path);

// The files that the reader of sheets takes, as rows of raw cells: a test changes what it is about and joins the rows.
//
// A row of one sample: {"1", "1", "0", "\"Pinus\"", "40"}. Row 0 begins with the path, row 2 is the first of 135 taxon rows, row 137
// the first of six rows of Additional info, row 143 the notes.
#pragma once
#include <string>
#include <vector>

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

constexpr int kTaxonRow = 2;  // of sheet row 1
constexpr int kParamRow = 137;
constexpr int kNoteRow = 143;
constexpr int kSumRow = 144;

// Samples "10", "20" ..., with the serials 1, 2 ...; sheet row r belongs to slot r, is called "Taxon r" and counts (r + j) % 100 in
// sample j. Parameters "Info 1" ... with the values "p/j", notes "Note j". Its path is "/old/place.csv".
Rows DataSheet(int samples);
Rows TemplateFile();           // the same without samples
Rows OlderSheet(int samples);  // "Saved:", one cell more before "Serial No.", no Additional info and no sums

std::string Quoted(const std::string& text);
std::string Joined(const Rows& rows, const std::string& separator = ",", const std::string& line_end = "\r\n");
Rows Unquoted(Rows rows);  // as a spreadsheet writes it: quotes only around a cell that holds a comma or a line break

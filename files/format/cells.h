// The cells of a comma-separated file, read and written:
//
//     "Key index","Trees","Herbs","Sample name","12.5"
//     1,1,0,"Pinus",40
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/any.h"
#include "platform/files.h"

// Reads cells as one stream, whatever lines they stand in.
//
// A cell ends at a comma or at a line end outside quotes (CR LF, LF or CR). A cell that begins with a quotation mark runs to the next
// one and may cross line ends; what stands between that mark and the next separator begins a cell of its own. Leading blanks of a
// cell are skipped. An empty line is not a cell, nor is one of blanks alone; what follows a comma is a cell even if it is empty. A
// quoted text that is never closed runs to the end.
class CellReader {
public:
    explicit CellReader(std::string text) : text_(std::move(text)) {}  // UTF-8, as DecodeFile gives it
    bool AtEnd();                                                      // no cell is left
    Any Next();              // quoted: a text. Bare: a number if it is wholly one, else a text. Raises "Input past end of file"
    std::string NextText();  // the cell as a text, quoted or bare, just as it stands in the file. Raises the same
    // The next cells as whole numbers, 0 of a text that begins with none, into `counts` from its front. Returns how many it took: one at
    // least, and no cell after it that may fail. Raises the same, and "Overflow". `counts` is not empty.
    std::size_t NextCounts(std::span<std::int32_t> counts);

private:
    struct Cell {
        std::string_view text;
        bool quoted;
    };
    Cell Take();
    std::size_t TakeDigits(std::span<std::int32_t> counts);  // up to the first cell that is any other
    void SkipToCell();
    void PassSeparator();

    std::string text_;
    std::size_t at_ = 0;        // where the next cell begins, the blanks before it included
    bool after_comma_ = false;  // a cell follows even if nothing stands in it
};

// Writes cells row by row. A text is quoted and nothing in it escaped; a number is bare, with a period whatever the locale. A comma
// parts cells, CR LF ends a row. The text is gathered in memory and handed over in one write when the writer is closed.
class CellWriter {
public:
    explicit CellWriter(OutputFile& file);  // the file must outlive the writer
    void Write(const Any& cell);
    void WriteCounts(std::span<const std::int32_t> counts);  // the same as Write of each, for the thousands of them
    void EndRow();
    std::size_t Size() const;  // of what has been written so far, in bytes of the file
    void Close();              // raises WriteFailure when the file takes no more; what it took stays in it

private:
    void BeginCell();

    OutputFile& file_;
    std::string text_;
    bool row_begun_ = false;
};

// Writes a table as comma-separated cells:
//
//     "Key index","Trees","Herbs","Sample name","12.5"
//     1,1,0,"Pinus",40
//
// A text is quoted and nothing in it escaped; a number is bare, with a period whatever the locale. A comma parts cells, CR LF ends a
// row. The text is gathered in memory and handed over in one write when the writer is closed.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/any.h"
#include "platform/files.h"

class CellWriter {
public:
    explicit CellWriter(OutputFile& file) : file_(file) {}  // the file must outlive the writer
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

#include "files/format/cell_writer.h"

#include <charconv>
#include <iterator>

#include "platform/encoding.h"

void CellWriter::BeginCell() {
    if (row_begun_) text_ += ',';
    row_begun_ = true;
}

void CellWriter::Write(const Any& cell) {
    BeginCell();
    if (cell.IsNumber())
        text_ += cell.Text();
    else
        text_.append("\"").append(cell.Text()).append("\"");
}

void CellWriter::WriteCount(std::int32_t count) {
    BeginCell();
    char digits[12];
    text_.append(digits, std::to_chars(digits, std::end(digits), count).ptr);
}

void CellWriter::EndRow() {
    text_ += "\r\n";
    row_begun_ = false;
}

std::size_t CellWriter::Size() const {
    return EncodeFile(text_).size();
}

void CellWriter::Close() {
    file_.Replace(EncodeFile(text_));
}

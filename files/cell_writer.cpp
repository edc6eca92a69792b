#include "files/cell_writer.h"

#include "platform/encoding.h"

void CellWriter::Write(const Any& cell) {
    if (row_begun_) text_ += ',';
    row_begun_ = true;
    if (cell.IsNumber())
        text_ += cell.Text();
    else
        text_.append("\"").append(cell.Text()).append("\"");
}

void CellWriter::EndRow() {
    text_ += "\r\n";
    row_begun_ = false;
}

void CellWriter::Close() {
    file_.Replace(EncodeFile(text_));
}

#include "files/format/cell_writer.h"

#include <charconv>
#include <utility>

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

void CellWriter::WriteCounts(std::span<const std::int32_t> counts) {
    constexpr std::size_t kLongest = 11;  // "-2147483648"
    const std::size_t begin = text_.size();
    text_.resize(begin + counts.size() * (1 + kLongest));
    char* place = text_.data() + begin;
    for (const std::int32_t count : counts) {
        if (std::exchange(row_begun_, true)) *place++ = ',';
        place = std::to_chars(place, place + kLongest, count).ptr;
    }
    text_.resize(static_cast<std::size_t>(place - text_.data()));
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

#include "files/format/cells.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"

namespace {
bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}
bool IsSeparator(char c) {
    return c == ',' || IsLineEnd(c);
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t LengthOfBareCell(std::string_view rest) {
    std::size_t length = 0;
    while (length < rest.size() && !IsSeparator(rest[length])) ++length;
    return length;
}
}  // namespace

bool CellReader::AtEnd() {
    SkipToCell();
    return at_ == text_.size() && !after_comma_;
}

Any CellReader::Next() {
    const Cell cell = Take();
    if (!cell.quoted)
        if (const auto number = AsNumber(cell.text)) return *number;
    return cell.text;
}

std::size_t CellReader::NextCounts(std::span<std::int32_t> counts) {
    if (const std::size_t taken = TakeDigits(counts); taken > 0) return taken;
    counts[0] = ToInt32(Next().Number());
    return 1;
}

// Nearly all cells of a sheet are like this: some digits from the first character to the separator. The NUL that ends the text is none.
std::size_t CellReader::TakeDigits(std::span<std::int32_t> counts) {
    constexpr std::ptrdiff_t kSurelyFit = 9;  // digits of 32 bits
    const char* cell = text_.data() + at_;
    std::size_t taken = 0;
    for (; taken < counts.size(); ++taken) {
        const char* end = cell;
        std::uint32_t number = 0;
        while (IsDigit(*end)) number = number * 10 + static_cast<std::uint32_t>(*end++ - '0');
        if (end == cell || end - cell > kSurelyFit || !IsSeparator(*end)) break;
        counts[taken] = static_cast<std::int32_t>(number);
        after_comma_ = *end == ',';
        cell = end + 1;
    }
    at_ = static_cast<std::size_t>(cell - text_.data());
    return taken;
}

std::string CellReader::NextText() {
    return std::string(Take().text);
}

CellReader::Cell CellReader::Take() {
    if (AtEnd()) throw Failure(kInputPastEnd);
    const std::string_view rest = std::string_view(text_).substr(at_);
    const bool quoted = rest.starts_with('"');
    const std::string_view cell = quoted ? rest.substr(1, rest.find('"', 1) - 1) : rest.substr(0, LengthOfBareCell(rest));
    at_ = std::min(at_ + cell.size() + (quoted ? 2 : 0), text_.size());  // a text that is never closed has one mark only
    PassSeparator();
    return {cell, quoted};
}

// Blanks, and before the first cell of a line also the ends of empty lines.
void CellReader::SkipToCell() {
    while (at_ < text_.size() && (IsBlank(text_[at_]) || (!after_comma_ && IsLineEnd(text_[at_])))) ++at_;
}

// After a closing quote another cell may follow with no separator between.
void CellReader::PassSeparator() {
    while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
    after_comma_ = at_ < text_.size() && text_[at_] == ',';
    if (at_ < text_.size() && IsSeparator(text_[at_])) ++at_;
}

CellWriter::CellWriter(OutputFile& file) : file_(file) {
    constexpr std::size_t kLargeSheet = 256 << 10;  // bytes: nearly every file is shorter, and its text then never moves
    text_.reserve(kLargeSheet);
}

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

// Nearly all sheets are ASCII: their text is the bytes of the file, and need not be copied.
void CellWriter::Close() {
    if (IsAscii(text_))
        file_.Replace(text_);
    else
        file_.Replace(EncodeFile(text_));
}

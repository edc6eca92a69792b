#include "figure/tables/table_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

std::string Quoted(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string cell = "\"";
    for (const char letter : text) cell.append(letter == '"' ? 2 : 1, letter);
    return cell + '"';
}

std::string SixDigits(double number) {
    constexpr int kSmallest = 12;  // digits behind the period at the most
    if (std::abs(number) < 1e-12) return "0";
    const int decimals = std::clamp(5 - static_cast<int>(std::floor(std::log10(std::abs(number)))), 0, kSmallest);
    std::array<char, 350> digits;  // the largest double has 309 before the period
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, decimals).ptr;
    if (decimals > 0) {
        while (end[-1] == '0') --end;
        if (end[-1] == '.') --end;
    }
    return std::string(static_cast<const char*>(digits.data()), end);
}

void TableText::BeginCell() {
    if (row_begun_) text_ += ',';
    row_begun_ = true;
}

void TableText::Text(std::string_view text) {
    BeginCell();
    text_ += Quoted(text);
}

void TableText::Texts(std::initializer_list<std::string_view> texts) {
    for (const std::string_view text : texts) Text(text);
}

void TableText::Whole(std::int64_t number) {
    BeginCell();
    text_ += std::to_string(number);
}

void TableText::Number(double number) {
    BeginCell();
    text_ += SixDigits(number);
}

void TableText::Number(const std::optional<double>& number) {
    if (number)
        Number(*number);
    else
        BeginCell();
}

void TableText::Cells(std::string_view cells) {
    if (cells.empty()) return;
    BeginCell();
    text_ += cells;
}

void TableText::EndRow() {
    text_ += "\r\n";
    row_begun_ = false;
}

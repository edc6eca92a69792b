// Gathers a table as comma-separated text: UTF-8, a period in numbers whatever the locale, CR LF at the end of a row.
#pragma once
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

// The cell of a text: in quotes where it holds a comma, a quotation mark or a line end, the marks in it doubled.
std::string Quoted(std::string_view text);

// Six significant digits, without an exponent and without zeros at the end; all digits before the period. Below 1e-12 it is 0.
std::string SixDigits(double number);

class TableText {
public:
    void Text(std::string_view text);
    void Texts(std::initializer_list<std::string_view> texts);
    void Whole(std::int64_t number);
    void Number(double number);                        // by SixDigits
    void Number(const std::optional<double>& number);  // an empty cell for nothing
    void Cells(std::string_view cells);                // several, as another table has them; "" for none
    void EndRow();
    std::string Take() { return std::move(text_); }

private:
    void BeginCell();

    std::string text_;
    bool row_begun_ = false;
};

// The words of a script line, and values put into words again.
//
//     expect frmNext.Text2 "Note: \r\nsilt"        three words; the last holds a blank and a line break
//
// Words are separated by blanks. A word in double quotes may hold blanks and the escapes \" \\ \n \r \t.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drive {

std::vector<std::string> SplitWords(std::string_view line);  // ScriptFault for a quotation mark or an escape out of place

std::string Quoted(std::string_view text);     // the word in double quotes that reads back as `text`
std::string OnOneLine(std::string_view text);  // line breaks as \r and \n, all else as it stands

// A whole number with no more than a sign before it; a number with a period. Nothing for any other word.
std::optional<int> AsWhole(std::string_view word);
std::optional<double> AsDecimal(std::string_view word);

}  // namespace drive

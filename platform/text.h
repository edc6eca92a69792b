// Texts and numbers as the sheet writes them. Texts are UTF-8; positions and lengths count characters, from 1, never bytes.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The leading number of a text after leading blanks: sign, digits, a period, an exponent ("7 cf." is 7, "1E2" is 100). A text
// without one, the empty text included, is 0; one too large for a double is the largest double. Never fails and never depends on
// the locale.
double Val(std::string_view text);

// The number that the text is from end to end, blanks around it aside ("12 ", "-.5", "1E2"). None for "7 cf.", for the empty text
// and for what is too large for a double: such a text loses nothing by staying a text.
std::optional<double> AsNumber(std::string_view text);

// The shortest decimal text that reads back as `number` in at most 15 significant digits: 12.5, 0.05, -3. A period whatever the
// locale, no exponent however large or small, "0" for minus zero. Raises "Overflow" for an infinite number and for what is no number.
std::string NumberText(double number);

// The same for a float: the shortest decimal text that reads back as the same float (0.1, not 0.10000000149).
std::string FloatText(float number);

// Whether a text is just the text of its own numeric value: "12.5" is, "12.50", "007" and "top" are not.
bool IsPlainNumber(std::string_view text);

std::size_t Length(std::string_view text);                                     // in characters
std::string Left(std::string_view text, std::size_t count);                    // the whole text if it is shorter
std::string Right(std::string_view text, std::size_t count);                   // the whole text if it is shorter
std::string Mid(std::string_view text, std::size_t start, std::size_t count);  // start from 1; what there is of it, "" past the end
std::size_t ByteOffset(std::string_view text, std::size_t characters);         // where the character after the first `characters` begins
std::string WithoutTrailingColon(std::string_view text);                       // one colon at the most is dropped

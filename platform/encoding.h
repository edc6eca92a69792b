// Between the UTF-8 of the memory and the bytes of the files.
#pragma once
#include <string>
#include <string_view>

// Windows-1252, so that spreadsheets and earlier files agree; a text with any character outside it stays UTF-8 as a whole, without
// a mark, so that nothing typed is lost. So does the rare text whose bytes DecodeFile would take for UTF-8.
std::string EncodeFile(std::string_view utf8);

bool IsAscii(std::string_view text);  // then EncodeFile and DecodeFile leave it as it is

// Bytes that are valid UTF-8 with at least one character beyond ASCII are UTF-8, all else is Windows-1252. A mark (EF BB BF) at
// the head is passed over. The five bytes that Windows-1252 leaves undefined come back as the control characters of the same value.
std::string DecodeFile(std::string_view bytes);

constexpr char32_t kMalformed = 0xFFFFFFFF;

// Takes one character off the head of `utf8`, which is not empty. kMalformed, and nothing taken, if none stands there in its one right
// form.
char32_t TakeCharacter(std::string_view& utf8);

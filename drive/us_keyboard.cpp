#include "drive/us_keyboard.h"

#include <string_view>

namespace drive {

namespace {

struct PunctuationKey {
    int code;
    std::string_view characters;  // without and with shift
};
constexpr PunctuationKey kPunctuation[] = {
    {186, ";:"}, {187, "=+"}, {188, ",<"},  {189, "-_"}, {190, ".>"},  {191, "/?"},
    {192, "`~"}, {219, "[{"}, {220, "\\|"}, {221, "]}"}, {222, "'\""},
};
constexpr std::string_view kDigitsWithShift = ")!@#$%^&*(";

}  // namespace

std::optional<int> KeyThatTypes(char character) {
    if (character == ' ') return 32;
    if (character >= '0' && character <= '9') return character;
    if (character >= 'A' && character <= 'Z') return character;
    if (character >= 'a' && character <= 'z') return character - 'a' + 'A';
    if (const auto digit = kDigitsWithShift.find(character); digit != std::string_view::npos) return '0' + static_cast<int>(digit);
    for (const PunctuationKey& key : kPunctuation)
        if (key.characters.find(character) != std::string_view::npos) return key.code;
    return std::nullopt;
}

}  // namespace drive

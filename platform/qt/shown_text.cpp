#include "platform/qt/shown_text.h"

#include <algorithm>

#include "platform/qt/look.h"
#include "platform/text.h"

namespace {
constexpr QChar kDots = u'\u2026';

int CharactersOf(QChar unit) {
    if (unit == u'\n') return 2;
    return unit.isLowSurrogate() ? 0 : 1;
}
}  // namespace

QString Shown(std::string_view text) {
    return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

std::string Unshown(const QString& shown) {
    return FromQt(QString(shown).replace(QLatin1String("\n"), QLatin1String("\r\n")));
}

int CharactersBefore(const QString& shown, int unit) {
    int characters = 0;
    for (int i = 0; i < std::min<int>(unit, static_cast<int>(shown.size())); ++i) characters += CharactersOf(shown[i]);
    return characters;
}

int UnitAfter(const QString& shown, int characters) {
    int unit = 0;
    while (unit < shown.size() && (characters > 0 || shown[unit].isLowSurrogate())) characters -= CharactersOf(shown[unit++]);
    return unit;
}

std::string_view Head(std::string_view text, std::size_t most) {
    const std::size_t end = text.size() <= most ? text.size() : ByteOffset(text, most);
    const bool parts_break = end < text.size() && text[end - 1] == '\r' && text[end] == '\n';
    return text.substr(0, parts_break ? end + 1 : end);
}

QString Brief(std::string_view text, std::size_t most) {
    const std::string_view head = Head(text, most);
    return head.size() < text.size() ? ToQt(head) + kDots : ToQt(text);
}

QString BriefLines(std::string_view text, std::size_t most) {
    const std::string_view head = Head(text, most);
    return head.size() < text.size() ? Shown(head) + kDots : Shown(text);
}

#include "platform/qt/shown_text.h"

#include <algorithm>

#include "platform/qt/look.h"

namespace {
int CharactersOf(QChar unit) {
    if (unit == u'\n') return 2;
    return unit.isLowSurrogate() ? 0 : 1;
}
}  // namespace

QString Shown(const std::string& text) {
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

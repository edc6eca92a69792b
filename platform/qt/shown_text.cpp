#include "platform/qt/shown_text.h"

#include <QLocale>
#include <algorithm>
#include <utility>

#include "platform/qt/look.h"
#include "platform/text.h"

namespace {
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

std::size_t MostOf(const TextHolder& box) {
    return box.BreaksLines() ? kMostOfArea : kMostOfLine;
}

bool HoldsLongerPart(const QString& text, QTextBoundaryFinder::BoundaryType ends, qsizetype most) {
    QTextBoundaryFinder places(ends, text);
    for (qsizetype start = 0, end = places.toNextBoundary(); end >= 0; start = std::exchange(end, places.toNextBoundary()))
        if (end - start > most) return true;
    return false;
}

namespace {
constexpr qsizetype kMostOnALetter = 100;  // units: marks, or signs joined to one
}  // namespace

EditedHead::EditedHead(const TextHolder& box) : box_(box), most_(MostOf(box)) {}

void EditedHead::Cut(std::size_t most) {
    most_ = most;
    rest_ = box_.Text().size() - Head(box_.Text(), most).size();
}

// The program may have made the text shorter than the rest was.
std::string_view EditedHead::Own() const {
    const std::string_view text = box_.Text();
    return text.substr(0, text.size() - std::min(rest_, text.size()));
}

std::string_view EditedHead::Rest() const {
    return std::string_view(box_.Text()).substr(Own().size());
}

QString EditedHead::Text() const {
    return Shown(Own());
}

// While the user edits the head, the rest behind it stays the same; any other change of the text is the program's. Laying out thousands of
// marks on one letter takes a time that grows with the square of their number.
QString EditedHead::Follow(const QString& held) {
    const std::size_t length = Length(Own());
    const bool has_its_length = length <= 2 * most_ && (IsAll() || length >= most_ / 2);
    const bool parts_break = Own().ends_with('\r') && Rest().starts_with('\n');
    if (has_its_length && !parts_break && Text() == held) return held;
    Cut(MostOf(box_));
    if (most_ > kMostOfLine && HoldsLongerPart(Text(), QTextBoundaryFinder::Grapheme, kMostOnALetter)) Cut(kMostOfLine);
    return Text();
}

std::string EditedHead::Whole(const QString& edited) const {
    return Unshown(edited).append(Rest());
}

QString EditedHead::WordsOnRest() const {
    if (IsAll()) return {};
    const auto characters = static_cast<qlonglong>(Length(Rest()));
    const QString number = QLocale(QLocale::English).toString(characters);
    return QStringLiteral("There is more, not shown here: %1 %2").arg(number, characters == 1 ? "character" : "characters");
}

// What the widgets show of the program's texts, and places and carets in it. The program counts characters and breaks lines with CR LF,
// two characters; a widget counts UTF-16 units and breaks lines with one LF.
#pragma once
#include <QString>
#include <QTextBoundaryFinder>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/controls.h"

QString Shown(std::string_view text);                  // a program's text as a widget holds it
std::string Unshown(const QString& shown);             // and back
int CharactersBefore(const QString& shown, int unit);  // the program's count of what stands before a widget's place
int UnitAfter(const QString& shown, int characters);   // the widget's place behind so many of the program's characters

// A file may bring texts of megabytes, and a widget takes time and memory for all that it is handed, seen or not. So it is handed no more
// characters than these; the program's own text stays whole.
constexpr std::size_t kMostOfArea = 100'000;  // in an editor of several lines
constexpr std::size_t kMostOfLine = 1'000;    // in one of a single line
constexpr std::size_t kMostAtRest = 5'000;    // of several lines that are only looked at
constexpr std::size_t kMostOfCaption = 300;   // of captions, names, tips and lines of lists

constexpr QChar kDots = u'\u2026';  // stand for the rest of a text

std::string_view Head(std::string_view text, std::size_t most);           // no line break is parted; `most` from 1
QString Brief(std::string_view text, std::size_t most = kMostOfCaption);  // the same for a widget; dots stand for the rest
QString BriefLines(std::string_view text, std::size_t most);              // the same, as Shown

// The head of a box's text, as its editor holds it. What the user does to it leaves the rest of the text as it is. Meanwhile it may grow to
// twice its length or shrink to half of it, so that the text stays in place under the user's hands; then it is cut anew.
class EditedHead {
public:
    explicit EditedHead(const TextHolder& box);

    QString Text() const;                            // as a widget holds it
    QString Follow(const QString& held);             // the same, after the box's text may have changed; `held`: what the editor still holds
    std::string Whole(const QString& edited) const;  // the box's text with this in place of its head
    bool IsAll() const { return rest_ == 0; }
    QString WordsOnRest() const;  // that there is more, and how much; empty if there is not

private:
    void Cut(std::size_t most);
    std::string_view Own() const;
    std::string_view Rest() const;

    const TextHolder& box_;
    std::size_t most_;      // characters, when it was cut
    std::size_t rest_ = 0;  // bytes of the text behind the head
};

std::size_t MostOf(const TextHolder& box);  // characters that its editor is handed

// Whether from one of these ends to the next there are more units than `most`.
bool HoldsLongerPart(const QString& text, QTextBoundaryFinder::BoundaryType ends, qsizetype most);

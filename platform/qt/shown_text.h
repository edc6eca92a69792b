// What the widgets show of the program's texts, and places and carets in it. The program counts characters and breaks lines with CR LF,
// two characters; a widget counts UTF-16 units and breaks lines with one LF.
#pragma once
#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

QString Shown(std::string_view text);                  // a program's text as a widget holds it
std::string Unshown(const QString& shown);             // and back
int CharactersBefore(const QString& shown, int unit);  // the program's count of what stands before a widget's place
int UnitAfter(const QString& shown, int characters);   // the widget's place behind so many of the program's characters

// A file may bring texts of megabytes, and a widget takes time and memory for all that it is handed, seen or not. So it is handed no more
// characters than these; the program's own text stays whole.
constexpr std::size_t kMostAtRest = 5'000;    // of several lines that are only looked at
constexpr std::size_t kMostOfCaption = 300;   // of captions, names, tips and lines of lists

std::string_view Head(std::string_view text, std::size_t most);           // no line break is parted; `most` from 1
QString Brief(std::string_view text, std::size_t most = kMostOfCaption);  // the same for a widget; dots stand for the rest
QString BriefLines(std::string_view text, std::size_t most);              // the same, as Shown

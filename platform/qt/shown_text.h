// Texts and carets between the program and the widgets. The program counts characters and breaks lines with CR LF, two characters;
// a widget counts UTF-16 units and breaks lines with one LF.
#pragma once
#include <QString>
#include <string>

QString Shown(const std::string& text);                // a program's text as a widget holds it
std::string Unshown(const QString& shown);             // and back
int CharactersBefore(const QString& shown, int unit);  // the program's count of what stands before a widget's place
int UnitAfter(const QString& shown, int characters);   // the widget's place behind so many of the program's characters

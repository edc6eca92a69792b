// How everything looks: one palette, whatever the desktop's own, so that words stand out from their ground in a dark theme too.
#pragma once
#include <QColor>
#include <QFont>
#include <QString>
#include <string>

#include "platform/control.h"

class QApplication;
class QPainter;
class QRectF;

constexpr QColor kAccent{0x1c, 0x6e, 0x8c};   // what is chosen, pressed, in focus
constexpr QColor kOutline{0xb4, 0xbc, 0xc4};  // around boxes, buttons and frames
constexpr QColor kButtonFace{0xfb, 0xfc, 0xfd};
constexpr QColor kRestingBox{0xe4, 0xe8, 0xeb};    // a white box that takes no text now
constexpr QColor kRestingWords{0x6c, 0x74, 0x7c};  // captions of what cannot be used now

inline constexpr const char* kScaledRange = "scaled range";  // the name of sliders and scroll bars that are drawn in the window's size

void ApplyLook(QApplication& application);

QColor ToQt(Colour colour);
QString ToQt(const std::string& utf8);
std::string FromQt(const QString& text);

// The font of a control in a window of so many pixels a twip: a point is 20 twips.
QFont ControlFont(const Properties& control, double factor);
QFont PlainFont(double factor);  // of menus, message boxes and file dialogs

QColor BoxGround(const Properties& control);  // of a text box: light grey instead of white while it is disabled
void PaintOutline(QPainter& painter, const QRectF& box, const QColor& colour, double width, double radius);

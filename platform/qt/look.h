// The colours and letters of everything that is shown, and how large the windows of the program come up.
#pragma once
#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>
#include <string>
#include <string_view>

#include "platform/control.h"

class QPainter;
class QRectF;
class QScreen;

constexpr QColor kAccent{0x1c, 0x6e, 0x8c};   // what is chosen, pressed, in focus
constexpr QColor kOutline{0xb4, 0xbc, 0xc4};  // around buttons, frames and boxes that take no text
constexpr QColor kBoxEdge{0x7b, 0x85, 0x8f};  // around boxes that take text
constexpr QColor kButtonFace{0xfb, 0xfc, 0xfd};
constexpr QColor kRestingBox{0xe4, 0xe8, 0xeb};    // a white box that takes no text now
constexpr QColor kRestingWords{0x6c, 0x74, 0x7c};  // captions of what cannot be used now

constexpr int kTabBehind = 107;  // percent: QColor::darker of its ground makes a tab that is not in front

inline constexpr const char* kScaledRange = "scaled range";  // the name of sliders and scroll bars that are drawn in the window's size

QColor ToQt(Colour colour);
QString ToQt(std::string_view utf8);
std::string FromQt(const QString& text);

// The font of a control in a window of so many pixels a twip: a point is 20 twips.
QFont ControlFont(const Properties& control, double factor);
QFont PlainFont(double factor);  // of menus, message boxes and file dialogs

QColor BoxGround(const Properties& control);  // of a text box: light grey instead of white while it is disabled
void PaintOutline(QPainter& painter, const QRectF& box, const QColor& colour, double width, double radius);

struct ButtonState {
    bool enabled = true;
    bool down = false;
    bool hovered = false;
    bool in_focus = false;
};
void PaintButton(QPainter& painter, const QRectF& box, const QColor& face, const ButtonState& state, double radius);
void PaintArrowButton(QPainter& painter, const QRectF& box, bool enabled, double thickness);  // of a list that drops down
void PaintStepButton(QPainter& painter, const QRectF& box, Qt::ArrowType arrow, bool enabled, bool down);

// The pixels a twip with which the window that takes the counter keys (without one: the largest) comfortably fills the screen, frame
// and menu bar included. All windows come up with it, so that letters are of one size everywhere.
double CommonFactor(const QScreen& screen);

// No larger than `wanted`, and such that a window of so many twips fits the room, in pixels, that its frame leaves on the screen.
double FactorThatFits(QSize room, QSize twips, double wanted);

QRect Scaled(const Box& box, double factor);  // two controls that touch in twips touch in pixels

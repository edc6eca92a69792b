// How large the windows of the program come up.
#pragma once
#include <QRect>
#include <QSize>

#include "platform/control.h"

class QScreen;

// The pixels a twip with which the window that takes the counter keys (without one: the largest) comfortably fills the screen, frame
// and menu bar included. All windows come up with it, so that letters are of one size everywhere.
double CommonFactor(const QScreen& screen);

// No larger than `wanted`, and such that a window of so many twips fits the room, in pixels, that its frame leaves on the screen.
double FactorThatFits(QSize room, QSize twips, double wanted);

QRect Scaled(const Box& box, double factor);  // two controls that touch in twips touch in pixels

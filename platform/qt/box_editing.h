// What the editors of text boxes and combo boxes have in common: how they tell the program, and how they look.
#pragma once
#include <QPainter>
#include <QPalette>
#include <QWidget>

#include "platform/controls.h"
#include "platform/qt/fitted_text.h"
#include "platform/qt/model_view.h"

// The user has changed the text: the program hears it as a whole, with the caret (in units of `shown`). The view shows what became of it.
void TellText(TextHolder& box, ModelView& view, const QString& shown, int caret);
void TellSelection(TextHolder& box, const QString& shown, int start, int length);  // in units of `shown`

int BoxMargin(double factor);  // pixels left and right of the text
void PrepareEditor(QWidget& editor, const TextHolder& box);
QPalette EditorPalette(const TextHolder& box);

// A box that does not hold the keyboard shows its whole text.
void PaintAtRest(QPainter& painter, const QRectF& room, const TextHolder& box, const QFont& font, double factor, FittedText& fitted,
                 int most_lines);
void PaintBoxOutline(QPainter& painter, const QRectF& room, bool in_focus);

#include "platform/qt/text_line.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "platform/qt/text_places.h"
#include "platform/window.h"

namespace {
constexpr int kMostLines = 2;
constexpr int kOwnMargin = 2;  // of a line edit
}  // namespace

TextLine::TextLine(QWidget* parent, TextHolder& box, ModelView& view) : QLineEdit(parent), box_(box) {
    PrepareEditor(*this, box);
    setFrame(false);
    setDragEnabled(false);
    if (box.IsCentred()) setAlignment(Qt::AlignCenter);
    connect(this, &QLineEdit::textEdited, this, [this, &view](const QString& text) { TellText(box_, view, text, cursorPosition()); });
    connect(this, &QLineEdit::cursorPositionChanged, this, &TextLine::TellCaret);
    connect(this, &QLineEdit::selectionChanged, this, &TextLine::TellCaret);
}

// The desktop may give the keyboard later than the program gives the focus, and what is typed by then must not go astray: the caret
// follows the program.
void TextLine::TellCaret() {
    if (HoldsFocus(box_)) TellSelection(box_, text(), hasSelectedText() ? selectionStart() : cursorPosition(), selectionLength());
}

void TextLine::Agree(const QFont& font, double factor) {
    const QSignalBlocker blocker(this);
    font_ = font;
    factor_ = factor;
    if (const QString wanted = Shown(box_.Text()); text() != wanted) setText(wanted);
    AgreeAboutCaret();
    if (hasFocus()) AgreeForEditing();
}

void TextLine::AgreeAboutCaret() {
    const int start = UnitAfter(text(), box_.SelStart());
    const int length = UnitAfter(text(), box_.SelStart() + box_.SelLength()) - start;
    if (selectionLength() == length && (length > 0 ? selectionStart() : cursorPosition()) == start) return;
    if (length > 0)
        setSelection(start, length);
    else
        setCursorPosition(start);
}

void TextLine::AgreeForEditing() {
    const QSignalBlocker blocker(this);
    setFont(font_);
    setPalette(EditorPalette(box_));
    const int margin = std::max(0, BoxMargin(factor_) - kOwnMargin);
    setTextMargins(margin, 0, margin, 0);
}

void TextLine::focusInEvent(QFocusEvent* event) {
    comes_in_ = true;
    AgreeForEditing();
    QLineEdit::focusInEvent(event);
}

// The click that comes into a box with a placeholder marks it; once in, clicks and drags are as in any other text.
void TextLine::mousePressEvent(QMouseEvent* event) {
    marks_ = std::exchange(comes_in_, false) && event->button() == Qt::LeftButton && box_.HoldsPlaceholder();
    if (marks_)
        selectAll();
    else
        QLineEdit::mousePressEvent(event);
}

void TextLine::mouseMoveEvent(QMouseEvent* event) {
    if (!marks_) QLineEdit::mouseMoveEvent(event);
}

void TextLine::paintEvent(QPaintEvent* event) {
    if (hasFocus()) {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        PaintBoxOutline(painter, rect(), true);
    } else {
        QPainter painter(this);
        PaintAtRest(painter, rect(), box_, font_, factor_, fitted_, kMostLines);
    }
}

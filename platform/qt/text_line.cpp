#include "platform/qt/text_line.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "platform/controls.h"
#include "platform/qt/text_places.h"

namespace {
constexpr int kMostLines = 2;
constexpr int kOwnMargin = 2;  // of a line edit
}  // namespace

TextLine::TextLine(QWidget* parent, Control& box, ModelView& view) : QLineEdit(parent), box_(box) {
    PrepareEditor(*this, box);
    setFrame(false);
    setDragEnabled(false);
    if (box.kind() == Kind::TextBox && static_cast<TextBox&>(box).centred) setAlignment(Qt::AlignCenter);
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
    if (const QString wanted = Shown(box_.State().text); text() != wanted) setText(wanted);
    AgreeAboutCaret();
    if (hasFocus()) AgreeForEditing();
}

void TextLine::AgreeAboutCaret() {
    const auto& holder = static_cast<const TextHolder&>(box_);
    const int start = UnitAfter(text(), holder.SelStart());
    const int length = UnitAfter(text(), holder.SelStart() + holder.SelLength()) - start;
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

bool TextLine::HoldsPlaceholder() const {
    return box_.kind() == Kind::TextBox && !text().isEmpty() && box_.State().text == static_cast<const TextBox&>(box_).placeholder;
}

// The click that comes into a box with a placeholder marks it; once in, clicks and drags are as in any other text.
void TextLine::mousePressEvent(QMouseEvent* event) {
    marks_ = std::exchange(comes_in_, false) && event->button() == Qt::LeftButton && HoldsPlaceholder();
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

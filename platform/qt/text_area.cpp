#include "platform/qt/text_area.h"

#include <QSignalBlocker>

#include "platform/qt/text_places.h"

namespace {
constexpr int kMostLines = 99;
}

TextArea::TextArea(QWidget* parent, TextBox& box, ModelView& view) : QPlainTextEdit(parent), box_(box) {
    PrepareEditor(*this, box);
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QPlainTextEdit::textChanged, this, [this, &view] {
        if (const QString text = toPlainText(); text != Shown(box_.Text())) TellText(box_, view, text, textCursor().position());
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &TextArea::TellCaret);
    connect(this, &QPlainTextEdit::selectionChanged, this, &TextArea::TellCaret);
}

void TextArea::TellCaret() {
    const QTextCursor cursor = textCursor();
    if (hasFocus()) TellSelection(box_, toPlainText(), cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void TextArea::Agree(const QFont& font, double factor) {
    const QSignalBlocker blocker(this);
    font_ = font;
    factor_ = factor;
    if (const QString wanted = Shown(box_.Text()); toPlainText() != wanted) setPlainText(wanted);
    if (hasFocus()) AgreeForEditing();
}

void TextArea::AgreeForEditing() {
    const QSignalBlocker blocker(this);
    setFont(font_);
    setPalette(EditorPalette(box_));
    QTextCursor cursor = textCursor();
    const int caret = UnitAfter(toPlainText(), box_.SelStart());
    if (cursor.hasSelection() || cursor.position() == caret) return;
    cursor.setPosition(caret);
    setTextCursor(cursor);
}

void TextArea::paintEvent(QPaintEvent* event) {
    if (hasFocus()) QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus())
        PaintBoxOutline(painter, viewport()->rect(), true);
    else
        PaintAtRest(painter, viewport()->rect(), box_, font_, factor_, fitted_, kMostLines);
}

void TextArea::focusInEvent(QFocusEvent* event) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    AgreeForEditing();
    QPlainTextEdit::focusInEvent(event);
    viewport()->update();
}

void TextArea::focusOutEvent(QFocusEvent* event) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPlainTextEdit::focusOutEvent(event);
    viewport()->update();
}

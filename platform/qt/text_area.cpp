#include "platform/qt/text_area.h"

#include <QSignalBlocker>
#include <QTextBoundaryFinder>
#include <utility>

#include "platform/qt/text_places.h"
#include "platform/window.h"

namespace {
constexpr int kMostLines = 99;
constexpr qsizetype kLongestWord = 1000;  // units from one place where a line can end to the next

bool HoldsLongerWord(const QString& text) {
    QTextBoundaryFinder places(QTextBoundaryFinder::Line, text);
    for (qsizetype start = 0, end = places.toNextBoundary(); end >= 0; start = std::exchange(end, places.toNextBoundary()))
        if (end - start > kLongestWord) return true;
    return false;
}
}  // namespace

TextArea::TextArea(QWidget* parent, TextBox& box, ModelView& view) : QPlainTextEdit(parent), box_(box) {
    PrepareEditor(*this, box);
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(document(), &QTextDocument::contentsChange, this, &TextArea::ChooseWrapping);
    connect(this, &QPlainTextEdit::textChanged, this, [this, &view] {
        if (const QString text = toPlainText(); text != Shown(box_.Text())) TellText(box_, view, text, textCursor().position());
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &TextArea::TellCaret);
    connect(this, &QPlainTextEdit::selectionChanged, this, &TextArea::TellCaret);
}

// Laying out a word takes a time that grows with the square of its length, unless its lines may end anywhere. The document tells of a
// change, whoever made it, before it lays out what has changed.
void TextArea::ChooseWrapping() {
    setWordWrapMode(HoldsLongerWord(toPlainText()) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void TextArea::TellCaret() {
    const QTextCursor cursor = textCursor();
    if (HoldsFocus(box_)) TellSelection(box_, toPlainText(), cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void TextArea::Agree(const QFont& font, double factor) {
    const QSignalBlocker blocker(this);
    font_ = font;
    factor_ = factor;
    if (const QString wanted = Shown(box_.Text()); toPlainText() != wanted) {
        QTextCursor whole(document());
        whole.select(QTextCursor::Document);
        whole.insertText(wanted);  // setPlainText would lay it out before the document tells of it
    }
    AgreeAboutCaret();
    if (hasFocus()) AgreeForEditing();
}

void TextArea::AgreeAboutCaret() {
    const QString text = toPlainText();
    const int start = UnitAfter(text, box_.SelStart());
    const int end = UnitAfter(text, box_.SelStart() + box_.SelLength());
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextArea::AgreeForEditing() {
    const QSignalBlocker blocker(this);
    setFont(font_);
    setPalette(EditorPalette(box_));
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

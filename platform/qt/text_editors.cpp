#include "platform/qt/text_editors.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "platform/qt/look.h"
#include "platform/services.h"
#include "platform/user.h"
#include "platform/window.h"

namespace {
constexpr double kMarginTwips = 40;
}  // namespace

void TellText(TextHolder& box, ModelView& view, const EditedHead& head, const QString& held, int caret) {
    view.Changed(Property::Text);  // a procedure may have refused it
    view.Events().Run([&] { EnterText(box, head.Whole(held), CharactersBefore(held, caret)); });
}

void TellPaste(TextHolder& box, ModelView& view, const EditedHead& head, QString held, int start, int length, const QString& pasted) {
    held.replace(start, length, pasted);
    TellText(box, view, head, held, start + static_cast<int>(pasted.size()));
}

void TellSelection(TextHolder& box, const QString& shown, int start, int length) {
    const int before = CharactersBefore(shown, start);
    const int selected = CharactersBefore(shown, start + length) - before;
    box.Select(before, selected);
}

int BoxMargin(double factor) {
    return static_cast<int>(kMarginTwips * factor);
}

// An input method would keep dead keys to itself.
void PrepareEditor(QWidget& editor, const TextHolder& box) {
    editor.setFocusPolicy(Qt::NoFocus);
    editor.setContextMenuPolicy(Qt::PreventContextMenu);
    editor.setAcceptDrops(false);
    if (box.TakesKeysAsInput()) editor.setAttribute(Qt::WA_InputMethodEnabled, false);
}

QPalette EditorPalette(const TextHolder& box) {
    QPalette palette;
    palette.setColor(QPalette::Base, BoxGround(box.State()));
    palette.setColor(QPalette::Text, ToQt(box.ForeColor()));
    return palette;
}

FittedText::Words WordsAtRest(const QRectF& box_room, const TextHolder& box, const QFont& font, double factor, int most_lines) {
    const int margin = BoxMargin(factor), above = box.BreaksLines() ? margin : 1;
    const QString words = BriefLines(box.Text(), box.BreaksLines() ? kMostAtRest : kMostOfCaption);
    return {words, font, box_room.adjusted(margin, above, -margin, -above), most_lines};
}

void PaintAtRest(QPainter& painter, const QRectF& box_room, const TextHolder& box, const FittedText::Words& words, FittedText& fitted) {
    painter.fillRect(box_room, BoxGround(box.State()));
    PaintOutline(painter, box_room, box.Enabled() && box.TakesText() ? kBoxEdge : kOutline, 1, 0);
    painter.setPen(ToQt(box.ForeColor()));
    const Qt::Alignment across = box.IsCentred() ? Qt::AlignHCenter : Qt::AlignLeft;
    fitted.Paint(painter, words, across | (box.BreaksLines() ? Qt::AlignTop : Qt::AlignVCenter));
}

QString TipOf(const TextHolder& box, const EditedHead& held) {
    const QString tip = Brief(box.ToolTip()), words = held.WordsOnRest();
    return tip.isEmpty() || words.isEmpty() ? tip + words : tip + u'\n' + words;
}

namespace {
// The double quotation mark would break the row of a sheet, and what dead keys and input methods make is no key press that the guard of the
// boxes could refuse.
void TakeMarksOut(QInputMethodEvent& event) {
    QString made = event.commitString();
    if (!made.contains(u'"')) return;
    services.sounds->Beep();
    event.setCommitString(made.remove(u'"'), event.replacementStart(), event.replacementLength());
}
}  // namespace

void PaintEdgeInFocus(QPainter& painter, const QRectF& room) {
    PaintOutline(painter, room, kAccent, 2, 0);
}

namespace {
constexpr int kMostLines = 2;
constexpr int kOwnMargin = 2;  // of a line edit
}  // namespace

TextLine::TextLine(QWidget* parent, TextHolder& box, ModelView& view, SizeGroup* group)
    : QLineEdit(parent), BoxEditor(box), box_(box), view_(view) {
    PrepareEditor(*this, box);
    if (group) fitted_.Join(*group, *this, [this] { return Words(); });
    setFrame(false);
    setDragEnabled(false);
    if (box.IsCentred()) setAlignment(Qt::AlignCenter);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        comes_in_ = false;
        TellText(box_, view_, head_, text, cursorPosition());
    });
    connect(this, &QLineEdit::cursorPositionChanged, this, &TextLine::TellCaret);
    connect(this, &QLineEdit::selectionChanged, this, &TextLine::TellCaret);
}

// The desktop may give the keyboard later than the program gives the focus, and what is typed by then must not go astray: the caret
// follows the program.
void TextLine::TellCaret() {
    if (HoldsFocus(box_)) TellSelection(box_, text(), hasSelectedText() ? selectionStart() : cursorPosition(), selectionLength());
}

void TextLine::Sync(const QFont& font, double factor) {
    const QSignalBlocker blocker(this);
    font_ = font;
    factor_ = factor;
    if (const QString wanted = head_.Follow(text()); text() != wanted) setText(wanted);
    SyncCaret();
    fitted_.Follow();
    if (hasFocus()) SyncForEditing();
}

FittedText::Words TextLine::Words() const {
    return WordsAtRest(rect(), box_, font_, factor_, kMostLines);
}

void TextLine::SyncCaret() {
    const int start = UnitAfter(text(), box_.SelStart());
    const int length = UnitAfter(text(), box_.SelStart() + box_.SelLength()) - start;
    if (selectionLength() == length && (length > 0 ? selectionStart() : cursorPosition()) == start) return;
    if (length > 0)
        setSelection(start, length);
    else
        setCursorPosition(start);
}

void TextLine::SyncForEditing() {
    const QSignalBlocker blocker(this);
    setFont(font_);
    setPalette(EditorPalette(box_));
    const int margin = std::max(0, BoxMargin(factor_) - kOwnMargin);
    setTextMargins(margin, 0, head_.IsAll() ? margin : margin + fontMetrics().horizontalAdvance(kDots), 0);
}

void TextLine::focusInEvent(QFocusEvent* event) {
    comes_in_ = true;
    SyncForEditing();
    QLineEdit::focusInEvent(event);
}

// The click that comes into a box with a placeholder or a name to be changed marks it; once in, clicks and drags are as in any other text.
void TextLine::mousePressEvent(QMouseEvent* event) {
    marks_ = std::exchange(comes_in_, false) && event->button() == Qt::LeftButton && box_.IsTypedOver();
    if (marks_)
        selectAll();
    else
        QLineEdit::mousePressEvent(event);
}

void TextLine::mouseMoveEvent(QMouseEvent* event) {
    if (!marks_) QLineEdit::mouseMoveEvent(event);
}

void TextLine::inputMethodEvent(QInputMethodEvent* event) {
    TakeMarksOut(*event);
    QLineEdit::inputMethodEvent(event);
}

// The selection of the desktop is pasted by the middle button, or by this chord.
void TextLine::keyPressEvent(QKeyEvent* event) {
    const bool of_selection = event->key() == Qt::Key_Insert && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    const bool pastes = event->matches(QKeySequence::Paste);
    if (!pastes || !PastesPast(of_selection ? QClipboard::Selection : QClipboard::Clipboard)) QLineEdit::keyPressEvent(event);
}

void TextLine::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton || !PastesPast(QClipboard::Selection)) QLineEdit::mouseReleaseEvent(event);
}

// What does not go in is told to the program alone: a line edit drops what lies behind 32767 units, and laying it out would take long.
bool TextLine::PastesPast(QClipboard::Mode clipboard) {
    const QString pasted = Shown(FromQt(QGuiApplication::clipboard()->text(clipboard)));
    if (text().size() + pasted.size() <= static_cast<qsizetype>(MostOf(box_))) return false;
    comes_in_ = false;
    TellPaste(box_, view_, head_, text(), hasSelectedText() ? selectionStart() : cursorPosition(), selectionLength(), pasted);
    return true;
}

void TextLine::paintEvent(QPaintEvent* event) {
    if (hasFocus()) {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        PaintEdgeInFocus(painter, rect());
        painter.setPen(kAccent);
        if (!head_.IsAll()) painter.drawText(rect().adjusted(0, 0, -BoxMargin(factor_), 0), Qt::AlignRight | Qt::AlignVCenter, kDots);
    } else {
        QPainter painter(this);
        PaintAtRest(painter, rect(), box_, Words(), fitted_);
    }
}

namespace {
constexpr int kMostLinesOfArea = 99;
constexpr qsizetype kLongestWord = 1000;  // units from one place where a line can end to the next
}  // namespace

TextArea::TextArea(QWidget* parent, TextBox& box, ModelView& view) : QPlainTextEdit(parent), BoxEditor(box), box_(box), view_(view) {
    PrepareEditor(*this, box);
    strip_ = new Painted<QWidget>(this, [this](QPainter& painter) { PaintStrip(painter); });
    strip_->setAttribute(Qt::WA_TransparentForMouseEvents);
    strip_->hide();
    setFrameShape(QFrame::NoFrame);
    setUndoRedoEnabled(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(document(), &QTextDocument::contentsChange, this, &TextArea::ChooseWrapping);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (const QString text = HeldText(); text != head_.Text()) TellText(box_, view_, head_, text, textCursor().position());
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &TextArea::TellCaret);
    connect(this, &QPlainTextEdit::selectionChanged, this, &TextArea::TellCaret);
}

// Character by character: toPlainText makes blanks of those that keep a number with its unit.
QString TextArea::HeldText() const {
    return document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

// Laying out a word takes a time that grows with the square of its length, unless its lines may end anywhere. The document tells of a
// change, whoever made it, before it lays out what has changed.
void TextArea::ChooseWrapping() {
    setWordWrapMode(HoldsLongerPart(HeldText(), QTextBoundaryFinder::Line, kLongestWord) ? QTextOption::WrapAnywhere
                                                                                         : QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void TextArea::TellCaret() {
    const QTextCursor cursor = textCursor();
    if (HoldsFocus(box_)) TellSelection(box_, HeldText(), cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart());
}

void TextArea::Sync(const QFont& font, double factor) {
    const QSignalBlocker blocker(this);
    font_ = font;
    factor_ = factor;
    if (const QString held = HeldText(), wanted = head_.Follow(held); held != wanted) {
        QTextCursor whole(document());
        whole.select(QTextCursor::Document);
        whole.insertText(wanted);  // setPlainText would lay it out before the document tells of it
    }
    SyncStrip();
    SyncCaret();
    if (hasFocus()) SyncForEditing();
}

void TextArea::SyncCaret() {
    const QString text = HeldText();
    const int start = UnitAfter(text, box_.SelStart());
    const int end = UnitAfter(text, box_.SelStart() + box_.SelLength());
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextArea::SyncForEditing() {
    const QSignalBlocker blocker(this);
    setFont(font_);
    setPalette(EditorPalette(box_));
}

void TextArea::paintEvent(QPaintEvent* event) {
    if (hasFocus()) QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus())
        PaintEdgeInFocus(painter, viewport()->rect());
    else
        PaintAtRest(painter, viewport()->rect(), box_, WordsAtRest(viewport()->rect(), box_, font_, factor_, kMostLinesOfArea), fitted_);
}

void TextArea::focusInEvent(QFocusEvent* event) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    SyncForEditing();
    QPlainTextEdit::focusInEvent(event);
    viewport()->update();
}

void TextArea::focusOutEvent(QFocusEvent* event) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPlainTextEdit::focusOutEvent(event);
    viewport()->update();
}

void TextArea::inputMethodEvent(QInputMethodEvent* event) {
    TakeMarksOut(*event);
    QPlainTextEdit::inputMethodEvent(event);
}

// A press on what is marked would begin a drag of it, and dropped in another program it would be gone from here.
void TextArea::mousePressEvent(QMouseEvent* event) {
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) setTextCursor(cursor);
    QPlainTextEdit::mousePressEvent(event);
}

// What does not go in is told to the program alone: laying it out would take long, and most of it would be cut off again.
void TextArea::insertFromMimeData(const QMimeData* source) {
    const QString text = HeldText(), pasted = Shown(FromQt(source->text()));
    if (text.size() + pasted.size() <= static_cast<qsizetype>(MostOf(box_))) return QPlainTextEdit::insertFromMimeData(source);
    const QTextCursor cursor = textCursor();
    TellPaste(box_, view_, head_, text, cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(), pasted);
}

void TextArea::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    const QRect text = viewport()->geometry();
    strip_->setGeometry(text.left(), text.bottom() + 1, text.width(), viewportMargins().bottom());
}

void TextArea::SyncStrip() {
    const int height = head_.IsAll() ? 0 : QFontMetrics(font_).height();
    if (viewportMargins().bottom() != height) setViewportMargins(0, 0, 0, height);
    strip_->setVisible(height > 0);
    strip_->update();
}

void TextArea::PaintStrip(QPainter& painter) {
    painter.fillRect(strip_->rect(), kRestingBox);
    painter.setPen(ToQt(kBlack));
    const int margin = BoxMargin(factor_);
    const QRect room = strip_->rect().adjusted(margin, 0, -margin, 0);
    fitted_strip_.Paint(painter, {head_.WordsOnRest(), font_, room}, Qt::AlignLeft | Qt::AlignVCenter);
}

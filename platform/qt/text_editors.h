// What the editors of text boxes and combo boxes have in common: how they tell the program, and how they look.
#pragma once
#include <QClipboard>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QPlainTextEdit>
#include <QString>
#include <QWidget>

#include "platform/controls.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/fitted_text.h"
#include "platform/qt/shown_text.h"

// The user has changed what the editor holds: the program hears the whole text, with the caret (in units of `held`). The view shows what
// became of it.
void TellText(TextHolder& box, ModelView& view, const EditedHead& head, const QString& held, int caret);
// The same where the user puts a text in place of `length` units behind `start`, and the editor is not to lay it out.
void TellPaste(TextHolder& box, ModelView& view, const EditedHead& head, QString held, int start, int length, const QString& pasted);
void TellSelection(TextHolder& box, const QString& shown, int start, int length);  // in units of `shown`

QString TipOf(const TextHolder& box, const EditedHead& held);  // of the box, and that there is more of its text
int BoxMargin(double factor);                                  // pixels left and right of the text
void PrepareEditor(QWidget& editor, const TextHolder& box);
QPalette EditorPalette(const TextHolder& box);

// A box that does not hold the keyboard shows all of its text that goes in.
FittedText::Words WordsAtRest(const QRectF& box_room, const TextHolder& box, const QFont& font, double factor, int most_lines);
void PaintAtRest(QPainter& painter, const QRectF& box_room, const TextHolder& box, const FittedText::Words& words, FittedText& fitted);
void PaintEdgeInFocus(QPainter& painter, const QRectF& room);

// An editor holds the head of its box's text.
class BoxEditor {
public:
    const EditedHead& Held() const { return head_; }

protected:
    explicit BoxEditor(const TextHolder& box) : head_(box) {}
    ~BoxEditor() = default;
    EditedHead head_;
};

// The editor of one line in a text box or combo box. While it holds the keyboard it is a line edit like any other, with dots behind it if
// there is more of the text; at rest it paints its text so that all of it can be read.
class TextLine : public QLineEdit, public BoxEditor {
public:
    TextLine(QWidget* parent, TextHolder& box, ModelView& view, SizeGroup* group);  // nullptr: letters of its own size
    void Sync(const QFont& font, double factor);                                    // with the box
    const FittedText& Fitted() const { return fitted_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    FittedText::Words Words() const;
    bool PastesPast(QClipboard::Mode clipboard);  // false: what is there goes in as it would anywhere
    void TellCaret();
    void SyncCaret();       // and about what is selected
    void SyncForEditing();  // what only matters while it holds the keyboard

    TextHolder& box_;
    ModelView& view_;
    QFont font_;
    double factor_ = 0;
    bool comes_in_ = false;  // the keyboard has come here, and nothing has been typed or clicked since
    bool marks_ = false;     // the mouse that is down has marked the whole text
    FittedText fitted_;
};

// The editor of several lines in a text box; like TextLine, it paints its text itself while it does not hold the keyboard.
// A line ends between words, unless the text holds a word too long to be laid out in time: then it may end anywhere. A strip below it tells
// that there is more of the text.
class TextArea : public QPlainTextEdit, public BoxEditor {
public:
    TextArea(QWidget* parent, TextBox& box, ModelView& view);
    void Sync(const QFont& font, double factor);
    const FittedText& Fitted() const { return fitted_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    QString HeldText() const;
    void ChooseWrapping();
    void SyncStrip();
    void PaintStrip(QPainter& painter);
    void TellCaret();
    void SyncCaret();       // and about what is selected
    void SyncForEditing();  // what only matters while it holds the keyboard

    TextBox& box_;
    ModelView& view_;
    QWidget* strip_;
    QFont font_;
    double factor_ = 0;
    FittedText fitted_, fitted_strip_;
};

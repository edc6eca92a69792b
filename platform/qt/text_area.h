// The editor of several lines in a text box; like TextLine, it paints its text itself while it does not hold the keyboard.
// A line ends between words, save where the text holds a word that nobody would write: then it may end anywhere.
#pragma once
#include <QPlainTextEdit>

#include "platform/controls.h"
#include "platform/qt/box_editing.h"

class TextArea : public QPlainTextEdit {
public:
    TextArea(QWidget* parent, TextBox& box, ModelView& view);
    void Agree(const QFont& font, double factor);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ChooseWrapping();
    void TellCaret();
    void AgreeAboutCaret();  // and about what is selected
    void AgreeForEditing();  // what only matters while it holds the keyboard

    TextBox& box_;
    QFont font_;
    double factor_ = 0;
    FittedText fitted_;
};

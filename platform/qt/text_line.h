// The editor of one line in a text box or combo box. While it holds the keyboard it is a line edit like any other; at rest it paints
// its text so that all of it can be read.
#pragma once
#include <QLineEdit>

#include "platform/qt/box_editing.h"

class TextLine : public QLineEdit {
public:
    TextLine(QWidget* parent, TextHolder& box, ModelView& view);
    void Agree(const QFont& font, double factor);  // with the box

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void TellCaret();
    void AgreeAboutCaret();  // and about what is selected
    void AgreeForEditing();  // what only matters while it holds the keyboard

    TextHolder& box_;
    QFont font_;
    double factor_ = 0;
    bool comes_in_ = false;  // the keyboard has just come here
    bool marks_ = false;     // the mouse that is down has marked a placeholder
    FittedText fitted_;
};

// A combo box: the editor of its text, an arrow, and the list that drops down.
#pragma once
#include "platform/controls.h"
#include "platform/qt/combo_list.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/text_line.h"
#include "platform/window.h"

class ComboBoxView : public ControlWidget {
public:
    ComboBoxView(ComboBox& box, ViewHost& window, ControlWidget* owner);

    QWidget* FocusWidget() override { return line_; }
    QWidget* MouseWidget() override { return line_; }
    bool TakeKey(QKeyEvent& key) override;  // the arrow keys up and down and F4 open the list, all else is typed
    ComboList& OpenList();
    ComboList* List() const { return list_; }  // nullptr: it has never been open

private:
    void ShowContent(Changes changes) override;
    void Press(const Mouse& mouse, QPointF at) override;
    bool PassesMouse() const override { return HoldsFocus(box_); }
    void PaintArrow(QPainter& painter);
    int ArrowWidth() const;

    ComboBox& box_;
    QWidget* field_;
    TextLine* line_;
    ComboList* list_ = nullptr;  // made when it first opens
};

// Text boxes and combo boxes on the screen, and the list that drops down from a combo box.
#pragma once
#include <QListView>
#include <functional>

#include "platform/controls.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/text_editors.h"
#include "platform/window.h"

// The list that drops down from a combo box. It reads the program's own list, ten thousand lines or more, and copies none of it.
class ComboList : public QListView {
public:
    ComboList(QWidget* parent, const ComboBox& box, std::function<void(int)> choose);

    void OpenBelow(const QWidget& field);  // wide enough for its lines, the line on show in view
    void ShowItems();                      // the list has changed while it is open
    void ChooseRow(int row);               // as a click on it
    static bool IsNavigation(int key);     // moves in the list, chooses or closes; every other key closes it and goes to the window

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void Choose(const QModelIndex& item);
    void SelectShown();
    int LineWidth() const;

    const ComboBox& box_;
    std::function<void(int)> choose_;
};

// A combo box: the editor of its text, an arrow, and the list that drops down.
class ComboBoxView : public ControlWidget {
public:
    ComboBoxView(ComboBox& box, ViewHost& window, ControlWidget* owner);

    QWidget* FocusWidget() override { return line_; }
    QWidget* MouseWidget() override { return line_; }
    bool UseKey(QKeyEvent& key) override;  // the arrow keys up and down and F4 open the list, all else is typed
    ComboList& OpenList();
    const EditedHead& Held() const { return line_->Held(); }
    ComboList* List() const { return list_; }  // nullptr: it has never been open

private:
    void ShowContent(Changes changes) override;
    QString Tip() const override { return TipOf(box_, Held()); }
    const FittedText* Fitted() const override { return &line_->Fitted(); }
    void Press(const Mouse& mouse, QPointF at) override;
    bool PassesMouse() const override { return HoldsFocus(box_); }
    void PaintArrow(QPainter& painter);
    int ArrowWidth() const;

    ComboBox& box_;
    QWidget* field_;
    TextLine* line_;
    ComboList* list_ = nullptr;  // made when it first opens
};

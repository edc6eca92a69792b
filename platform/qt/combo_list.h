// The list that drops down from a combo box. It reads the program's own list, ten thousand lines or more, and copies none of it.
#pragma once
#include <QListView>
#include <functional>

#include "platform/controls.h"

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

// The menus of a window: those on its bar, and those that pop up under the mouse.
//
// A menu that opens raises its Click before it is seen, so that its procedure can say which items can be used. A popup menu raises none
// for itself: the press that opened it has said all.
#pragma once
#include <QFont>
#include <QMenuBar>
#include <map>
#include <memory>
#include <vector>

#include "platform/qt/control_widget.h"
#include "platform/window.h"

class MenuItemView;

class MenuView {
public:
    MenuView(Window& window, QWidget& widget, UserEvents& events);
    ~MenuView();
    MenuView(const MenuView&) = delete;
    MenuView& operator=(const MenuView&) = delete;

    QMenuBar& Bar() const { return *bar_; }
    void SetFont(const QFont& font);
    void OpenPopup(MenuItem& menu, QPoint at);
    bool OpenByAccessKey(QChar letter);             // true: a menu on the bar has it
    QAction* ActionOf(const MenuItem& item);        // nullptr: it is on no menu that has been opened
    QMenu* MenuOf(const MenuItem& item);            // nullptr: it has no items
    MenuItem* ItemOf(const QAction& action) const;  // nullptr: it is no item's

private:
    std::vector<MenuItem*> ItemsOf(const MenuItem* menu) const;  // nullptr: of the window
    void Make(MenuItem& item, QWidget& place);                   // with all that it contains

    Window& window_;
    UserEvents& events_;
    QMenuBar* bar_;
    QFont font_;
    std::map<const MenuItem*, std::unique_ptr<MenuItemView>> items_;
};

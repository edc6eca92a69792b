// A window of the program on the screen: its frame, its menu bar and the ground on which its controls lie.
//
// All places are the program's twips times one factor. A larger window is the same one enlarged, words and all, in the middle of what
// room there is; a window whose size is the user's own keeps its factor and tells the program its size instead.
#pragma once
#include <QTimer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "platform/qt/control_widget.h"
#include "platform/qt/dead_keys.h"
#include "platform/qt/fitted_text.h"
#include "platform/window.h"

class MenuView;
class Veil;

class WindowWidget : public QWidget, public ViewHost {
public:
    WindowWidget(Window& window, UserEvents& events);
    ~WindowWidget() override;

    Window& window() const { return window_; }
    UserEvents& Events() const override { return events_; }
    double Factor() const override { return factor_; }
    QWidget* Ground() const override { return ground_; }
    MenuView& Menus() const { return *menus_; }
    ControlWidget* Find(const Control& control) const;  // nullptr: nothing of it is to be seen
    QWidget* WidgetOf(const Control& control) const override;
    SizeGroup* GroupOf(const Control& control) override;
    ControlWidget* ShownBy(const QWidget& widget) const;  // whose widget this is; nullptr: no control's

    void NoteChange(WindowProperty property);
    void Sync();  // about title, size and whether it can be used
    void SyncFocus();

    void ShowAbove(WindowWidget* below);  // nullptr: it stands for itself
    void PutAway();
    void BringToFront();
    bool WaitsForFront() const { return waits_.isActive(); }  // it has been asked for and the desktop has not answered
    bool StopsWaiting();                                      // true: it did wait
    void OpenPopup(MenuItem& menu);
    bool HasNewSize() const { return resize_soon_.isActive(); }  // the program has not been told of it
    void TellUserSize();                                         // to the program: the window is as large as its user has made it

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
#ifdef Q_OS_WIN
    bool nativeEvent(const QByteArray& type, void* message, qintptr* result) override;
    DeadKeys dead_keys_;
#endif

private:
    ControlWidget* Build(Control& control);
    void GiveUpWaiting();
    QRect Client() const;  // what is left below the menu bar
    QSize ClientSize(double factor) const;
    QSize RoomWanted() const;  // in twips: its own size, with what it unfolds to
    void MeasureFrame();
    QRect Room() const;  // of the screen, what its frame leaves
    bool IsAsUserLeftIt() const;
    void ChooseSize();
    void NoteUserSize();
    void Fit();      // the factor and all places, after a change of size
    void Enlarge();  // what lies in it, as far as there is room
    double FactorThatFills(QSize client) const;
    void LayOut();
    void PlaceAbove(const WindowWidget* below);
    void CoverScreen();
    void MoveAround(QPoint middle);  // its inner middle goes there, as far as the screen allows

    Window& window_;
    UserEvents& events_;
    double factor_ = 0;
    bool title_changed_ = true;
    bool size_changed_ = true;
    bool sized_ = false;      // it has a size of its own
    bool shown_ = false;      // it has been on the screen
    bool maximized_ = false;  // when it was put away
    QMargins frame_;          // what the desktop puts around it; an estimate until it has done so
    QWidget* ground_;
    Veil* veil_;  // over a window that takes no input
    std::unique_ptr<MenuView> menus_;
    std::map<int, SizeGroup> groups_;
    std::map<const Control*, std::unique_ptr<ControlWidget>> controls_;
    QTimer resize_soon_;
    QTimer waits_;
};

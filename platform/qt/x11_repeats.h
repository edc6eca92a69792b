// Under X11: which presses repeat a key that is held. The server is asked to send no release before it is one, so a held key sends
// presses alone; which of them are repeats follows from the order of the server's events, and from nothing that depends on time.
#pragma once
#include <QAbstractNativeEventFilter>
#include <QWindow>
#include <bitset>
#include <optional>

class QKeyEvent;

class X11Repeats : public QAbstractNativeEventFilter {
public:
    static std::optional<bool> IsRepeat(const QKeyEvent& key);  // none under another window system

    X11Repeats();  // joins the application; nothing under another window system
    ~X11Repeats() override;
    void Watch(QWindow& window);  // before it is mapped: the server tells which keys are down whenever it gets the keyboard
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    std::bitset<256> held_;  // by X key code, as of the last event read; empty while no window has the keyboard
};

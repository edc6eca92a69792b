// Which keys are held, each by its place on the keyboard, and where each was pressed. A held key belongs to the window or menu it was
// pressed in: what comes of it elsewhere, such as the repeats of the Enter that has closed a dialog, reaches nobody.
#pragma once
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include "platform/qt/x11_repeats.h"

class QKeyEvent;
class Renderer;

bool IsRepeat(const QKeyEvent& key);  // of a key that is held; a script's key never is

class HeldKeys : public QObject {
public:
    explicit HeldKeys(const Renderer& renderer);           // joins the application
    void HandOn(const QKeyEvent& key, QWindow* receiver);  // from now on the key counts as pressed there

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Belongs(const QKeyEvent& press, QWindow* receiver);

    const Renderer& renderer_;
    X11Repeats x11_;
    QHash<quint32, QPointer<QWindow>> pressed_in_;  // by native code; empty while no window of the program has the keyboard
};

// Takes every key before any widget: the window hears it first, then the control with the focus, and only then does it do what it does in
// a widget. While counting nothing is left for the widgets: a key ends when the program has heard it.
#pragma once
#include <QObject>
#include <memory>
#include <vector>

#include "platform/qt/held_keys.h"
#include "platform/window.h"

class QEvent;
class QKeyEvent;
class QWidget;
class Renderer;

class KeyFilter : public QObject {
public:
    explicit KeyFilter(Renderer& renderer);  // joins it and the application
    ~KeyFilter() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HearInPopup(QWidget& popup, QKeyEvent& key);
    bool KeepLate(QKeyEvent& key);
    void HearLate();
    void Press(QKeyEvent& key);
    void Dispatch(QKeyEvent& key);
    void Release(const QKeyEvent& key);
    bool OpensMenu(const QKeyEvent& key);
    void Finish(QKeyEvent& key, Control& focus);
    void Pass(QKeyEvent& key, Control& focus);

    Renderer& renderer_;
    HeldKeys held_;
    std::vector<std::unique_ptr<QKeyEvent>> late_;  // in their order
    const QEvent* passing_ = nullptr;               // the key that is on its way to a widget
};

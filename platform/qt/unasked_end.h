// What ends the program without its user: a signal, the end of the desktop session, a display that goes, a failure that nothing catches.
#pragma once
#include <QObject>
#include <functional>
#include <memory>

class QSocketNotifier;

// Before anything is written: from now on a write beyond a limit of the system, or to nobody, fails and ends nothing.
void LetWritesFail();

// One at a time, while there is an application. `last_act` is called before the program ends so, in the thread of the windows.
class UnaskedEnd : public QObject {
public:
    explicit UnaskedEnd(std::function<void()> last_act);
    ~UnaskedEnd() override;

    bool IsUnderWay() const { return is_under_way_; }  // the event that is running finds no user to answer it
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Act();
    void HearSignals();
    void EndBySignal();

    std::function<void()> last_act_;
    bool acts_ = false;
    bool is_under_way_ = false;
    std::unique_ptr<QSocketNotifier> signals_;
};

#include "platform/qt/unasked_end.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSemaphore>
#include <QSocketNotifier>
#include <QThread>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <memory>
#include <utility>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace {
constexpr int kMostToWaitMs = 5000;

// What the system calls knows no object.
std::function<void()> act_at_exit;  // empty: there is nothing to do
std::terminate_handler terminate_before = nullptr;
QtMessageHandler say_before = nullptr;

// The toolkit exits by itself when it has lost the display.
void ActAtExit() {
    if (const auto act = std::exchange(act_at_exit, nullptr)) act();
}

bool IsInThreadOfWindows() {
    return qGuiApp && QThread::currentThread() == qGuiApp->thread();
}

// In the thread of the windows, which may itself be waiting for the one that calls this: it waits for it as long as a disk may take.
void ActInThreadOfWindows() {
    if (IsInThreadOfWindows()) return ActAtExit();
    const auto done = std::make_shared<QSemaphore>();
    const auto act = [done] {
        ActAtExit();
        done->release();
    };
    QMetaObject::invokeMethod(qGuiApp, act, Qt::QueuedConnection);
    done->tryAcquire(1, kMostToWaitMs);
}

// Under Wayland it ends at once, and all that it does before is to say so, in the thread that noticed it first or in both.
void HearLastWords(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith(QLatin1String("The Wayland connection"))) ActInThreadOfWindows();
    if (type == QtFatalMsg && IsInThreadOfWindows()) ActAtExit();
    say_before(type, context, text);
}

[[noreturn]] void Terminate() {
    ActInThreadOfWindows();
    if (terminate_before) terminate_before();
    std::abort();
}

#ifndef Q_OS_WIN
int signal_sockets[2] = {-1, -1};  // a signal goes in at the first and is read from the second between events
constexpr int kEndingSignals[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT, SIGXCPU, SIGALRM, SIGUSR1, SIGUSR2};

void SendOn(int signal) {
    const char byte = static_cast<char>(signal);
    [[maybe_unused]] const ssize_t sent = write(signal_sockets[0], &byte, 1);
}
#endif
}  // namespace

void LetWritesFail() {
#ifndef Q_OS_WIN
    for (const int signal : {SIGXFSZ, SIGPIPE}) std::signal(signal, SIG_IGN);
#endif
}

UnaskedEnd::UnaskedEnd(std::function<void()> last_act) : last_act_(std::move(last_act)) {
    act_at_exit = [this] { Act(); };
    std::atexit(ActAtExit);
    terminate_before = std::set_terminate(Terminate);
    say_before = qInstallMessageHandler(HearLastWords);
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { Act(); }, Qt::DirectConnection);
    qGuiApp->installEventFilter(this);
    HearSignals();
}

UnaskedEnd::~UnaskedEnd() {
    act_at_exit = nullptr;
    std::set_terminate(terminate_before);
    qInstallMessageHandler(say_before);
#ifndef Q_OS_WIN
    struct sigaction now {};
    for (const int signal : kEndingSignals)
        if (sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SendOn) std::signal(signal, SIG_DFL);
    for (int& socket : signal_sockets) close(std::exchange(socket, -1));
#endif
}

// The desktop session ends: the toolkit would have all windows closed, as if their user had done it.
bool UnaskedEnd::eventFilter(QObject* watched, QEvent* event) {
#ifndef Q_OS_MACOS  // where it is the user's own Quit
    if (watched == qGuiApp && event->type() == QEvent::Quit) {
        Act();
        is_under_way_ = true;
        QCoreApplication::exit(0);
        return true;
    }
#endif
    return QObject::eventFilter(watched, event);
}

// What it does may itself be what ends the program.
void UnaskedEnd::Act() {
    if (std::exchange(acts_, true)) return;
    last_act_();
    acts_ = false;
}

void UnaskedEnd::HearSignals() {
#ifndef Q_OS_WIN
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, signal_sockets) != 0) return;
    for (const int socket : signal_sockets) fcntl(socket, F_SETFD, FD_CLOEXEC);
    signals_ = std::make_unique<QSocketNotifier>(signal_sockets[1], QSocketNotifier::Read);
    connect(signals_.get(), &QSocketNotifier::activated, this, &UnaskedEnd::EndBySignal);
    struct sigaction action {};
    action.sa_handler = SendOn;
    action.sa_flags = SA_RESTART;
    for (const int signal : kEndingSignals) {
        struct sigaction before {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);  // whoever started it may want it to outlive a terminal
    }
#endif
}

// Dies of the signal after all, so that whoever sent it sees it obeyed.
void UnaskedEnd::EndBySignal() {
#ifndef Q_OS_WIN
    char signal = 0;
    if (read(signal_sockets[1], &signal, 1) != 1) return;
    Act();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
#endif
}

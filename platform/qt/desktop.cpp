#include "platform/qt/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <ctime>

#include "events/program.h"
#include "platform/qt/accessible.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/lifeline.h"
#include "platform/qt/picture_painter.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/style.h"
#include "platform/qt/unasked_end.h"
#include "platform/qt/window_system.h"
#include "platform/qt/window_widget.h"

std::string LocalTime(std::time_t moment, const char* format) {
    const std::tm* const parts = std::localtime(&moment);
    char text[64];
    return parts ? std::string(text, std::strftime(text, sizeof text, format, parts)) : "";
}

std::string SystemClock::DateText() {
    return LocalTime(std::time(nullptr), "%d/%m/%Y");
}

std::string SystemClock::TimeText() {
    return LocalTime(std::time(nullptr), "%H:%M:%S");
}

void QtClipboard::PutImage(const PictureBox& picture) {
    QGuiApplication::clipboard()->setImage(CopyOf(picture));
}

// ---- The run ----

namespace {
// Under Wayland the toolkit asks for its window to be activated whenever the focus moves inside it. The desktop answers later, and the
// window would take the keyboard back from a box that has opened meanwhile.
void AskForNoActivation() {
    if (OnWayland()) QObject::disconnect(qApp, &QGuiApplication::focusObjectChanged, qApp, nullptr);
}
}  // namespace

int RunDesktop(int argc, char** argv) {
    argc = 1;  // no command line is read, not the toolkit's either
    LetWritesFail();
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("org.marlbrook.Marlbrook"));  // Wayland finds the icon by it
    AskForNoActivation();
    ApplyLook(application);
    OpenToReaders();
    QtHost host(FindProgramFolder());
    Renderer renderer([&host] { return host.HasEnded(); });
    renderer.WhenNothingIsShown([&host] { host.End(); });
    KeyFilter keys(renderer);
    QtMessageBoxes messages(renderer);
    if (!host.HasFolderAlone(messages)) return 0;

    DesktopServices desktop(host, renderer);
    Lifeline lifeline(host, renderer);
    renderer.Run([&lifeline] {
        StartProgram();
        lifeline.Offer();
    });
    const int status = QApplication::exec();
    lifeline.End();
    return status;
}

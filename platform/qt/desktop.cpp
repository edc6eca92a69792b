#include "platform/qt/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QPixmap>

#include "events/program.h"
#include "platform/qt/accessible.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/renderer.h"
#include "platform/qt/window_system.h"
#include "platform/qt/window_widget.h"

void QtClipboard::PutImage(const PictureBox& picture) {
    renderer_.Sync();  // the picture is to be as it stands now, in the middle of the event
    WindowWidget* const window = renderer_.WidgetOf(*picture.window);
    QWidget* const shown = window ? window->WidgetOf(picture) : nullptr;
    if (shown) QGuiApplication::clipboard()->setPixmap(shown->grab());
}

void QtPopups::Open(MenuItem& menu) {
    renderer_.OpenPopupAfterEvent(menu);
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
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("org.marlbrook.Marlbrook"));  // Wayland finds the icon by it
    AskForNoActivation();
    ApplyLook(application);
    OpenToReaders();
    QtHost host;
    Renderer renderer([&host] { return host.HasEnded(); });
    renderer.WhenNothingIsShown([&host] { host.End(); });
    KeyFilter keys(renderer);
    QtMessageBoxes messages(renderer);
    if (!host.HasFolderAlone(messages)) return 0;

    DesktopServices desktop(host, renderer);
    renderer.Run(StartProgram);
    return QApplication::exec();
}

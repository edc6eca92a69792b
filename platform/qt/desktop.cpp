#include "platform/qt/desktop.h"

#include <QApplication>

#include "events/program.h"
#include "platform/qt/key_filter.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_host.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/qt_sounds.h"
#include "platform/qt/renderer.h"
#include "platform/services.h"

int RunDesktop(int argc, char** argv) {
    argc = 1;  // no command line is read, not the toolkit's either
    QApplication application(argc, argv);
    ApplyLook(application);
    QtHost host;
    Renderer renderer([&host] { return host.HasEnded(); });
    renderer.WhenNothingIsShown([&host] { host.End(); });
    KeyFilter keys;
    if (!host.HasFolderAlone()) return 0;

    QtSounds sounds;
    QtMessageBoxes messages;
    QtFileDialogs dialogs;
    QtClock clock;
    QtClipboard clipboard;
    QtPopups popups;
    QtFiles files;
    services = {&messages, &dialogs, &sounds, &clock, &clipboard, &popups, &files, &host};

    renderer.Run(StartProgram);
    return QApplication::exec();
}

// The services of the desktop, together.
#pragma once
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_keyboard.h"
#include "platform/qt/qt_sounds.h"

struct DesktopServices {
    QtMessageBoxes messages;
    QtFileDialogs dialogs;
    QtSounds sounds;
    QtClock clock;
    QtClipboard clipboard;
    QtPopups popups;
    QtFiles files;
    QtKeyboard keyboard;

    // Puts them all into `services`, with `host`; they must live as long as the program uses them.
    DesktopServices(ProgramHost& host, Renderer& renderer) : messages(renderer), dialogs(renderer), clipboard(renderer), popups(renderer) {
        services = {&messages, &dialogs, &sounds, &clock, &clipboard, &popups, &files, &host, &keyboard};
    }
};

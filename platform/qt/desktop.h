// The program on the desktop: the services that it has there, and its run.
#pragma once
#include <ctime>
#include <string>

#include "platform/qt/look.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_keyboard.h"
#include "platform/qt/qt_sounds.h"
#include "platform/qt/renderer.h"
#include "platform/services.h"

// Without the toolkit, whose dates are empty while a process ends that has lost its display.
class SystemClock : public Clock {
public:
    std::string DateText() override;
    std::string TimeText() override;
};

// Of a moment, in the words of strftime, 63 bytes at most; empty where the calendar of the system does not reach.
std::string LocalTime(std::time_t moment, const char* format);

class QtClipboard : public Clipboard {
public:
    void PutImage(const PictureBox& picture) override;
};

// A popup opens under the mouse when the event that asks for it is over. All of it stands here, so that a program that has popups alone is
// linked without the sounds.
class QtPopups : public Popups {
public:
    explicit QtPopups(Renderer& renderer) : renderer_(renderer) {}
    void Open(MenuItem& menu) override { renderer_.OpenPopupAfterEvent(menu); }

private:
    Renderer& renderer_;
};

// All of them together.
struct DesktopServices {
    QtMessageBoxes messages;
    QtFileDialogs dialogs;
    QtSounds sounds;
    SystemClock clock;
    QtClipboard clipboard;
    QtPopups popups;
    QtFiles files;
    QtKeyboard keyboard;

    // Puts them all into `services`, with `host`; they must live as long as the program uses them.
    DesktopServices(ProgramHost& host, Renderer& renderer) : messages(renderer), dialogs(renderer), popups(renderer) {
        services = {&messages, &dialogs, &sounds, &clock, &clipboard, &popups, &files, &host, &keyboard};
    }
};

// The program on the desktop: its windows, sounds and files, until the user ends it. Returns the exit status of the process.
int RunDesktop(int argc, char** argv);

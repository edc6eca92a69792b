// All the services of a program that nobody watches, together. A test or the driver makes one, sets what it wants, and looks at what
// the program has asked for.
#pragma once
#include <string>

#include "platform/headless/files.h"
#include "platform/headless/recorders.h"
#include "platform/headless/scripted_dialogs.h"
#include "platform/services.h"

struct HeadlessServices {
    ScriptedMessageBoxes messages;
    ScriptedFileDialogs dialogs;
    RecordedSounds sounds;
    ScriptedClock clock;
    RecordedClipboard clipboard;
    UnseenPopups popups;
    DiskFiles disk;
    ScriptedFiles files{disk};
    RecordedHost host;
    ScriptedKeyboard keyboard;

    // Puts them all into `services`; they must live as long as the program uses them.
    explicit HeadlessServices(const std::string& program_folder) {
        host.folder = program_folder;
        services = {&messages, &dialogs, &sounds, &clock, &clipboard, &popups, &files, &host, &keyboard};
    }
    ~HeadlessServices() { services = {}; }
    HeadlessServices(const HeadlessServices&) = delete;
    HeadlessServices& operator=(const HeadlessServices&) = delete;
};

// The services of a program that nobody watches: those that only take note of what the program asks for, a clock that stands still, and
// message boxes and file dialogs whose answers are laid down beforehand. A test or the driver makes them all together, sets what it
// wants, and looks at what the program has asked for.
#pragma once
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/headless/files.h"
#include "platform/services.h"

class RecordedSounds : public Sounds {
public:
    std::vector<std::string> played;  // names of waves and "Beep", in order
    bool has_device = true;

    void Play(const Wave& wave) override { played.push_back(wave.name); }
    void Beep() override { played.push_back("Beep"); }
    void IfSilent(std::function<void()> procedure) override {
        if (!has_device) procedure();
    }
};

class ScriptedKeyboard : public Keyboard {
public:
    std::map<int, std::string> characters;

    std::map<int, std::string> Characters() override { return characters; }
};

class ScriptedClock : public Clock {
public:
    std::string date = "14/11/2026";
    std::string time = "10:11:12";

    std::string DateText() override { return date; }
    std::string TimeText() override { return time; }
};

class RecordedClipboard : public Clipboard {
public:
    const PictureBox* picture = nullptr;  // whose image was put in last

    void PutImage(const PictureBox& shown) override { picture = &shown; }
};

// A popup needs nothing here: which one is open is known to platform/user.
class UnseenPopups : public Popups {
public:
    void Open(MenuItem&) override {}
};

class RecordedHost : public ProgramHost {
public:
    std::string folder;   // what the program takes for its own
    bool ended = false;   // by the program itself or by a failure
    std::string failure;  // the word of the first failure that nothing caught; empty: none
    bool has_manual = false;
    int manuals_shown = 0;

    std::string Folder() override { return folder; }
    Box ScreenSize() override { return {0, 0, 1024 * kTwipsPerPixel, 768 * kTwipsPerPixel}; }
    bool CanShow(const std::string& picture) override;  // goes by its first bytes
    bool HasManual() override { return has_manual; }
    void ShowManual() override { ++manuals_shown; }
    void End() override { ended = true; }
    void Fail(const char* word) override {
        if (failure.empty()) failure = word;
        ended = true;
    }
};

// A question that finds no answer, or one that does not fit it, is noted in `unanswered` and goes on as if its box had been closed;
// whoever runs the program looks there after each event and stops.
class ScriptedMessageBoxes : public MessageBoxes {
public:
    std::deque<Answer> answers;  // to the next boxes, the first at the front; a box with OK alone needs none, but takes an OK that waits
    std::vector<Message> shown;  // every box so far
    std::string unanswered;      // the first question without an answer, in words; empty: none

    Answer Show(const Message& message) override;
};

class ScriptedFileDialogs : public FileDialogs {
public:
    std::deque<std::optional<std::string>> answers;  // a path, or nothing for Cancel
    std::vector<FileQuestion> asked;
    std::string unanswered;

    std::optional<std::string> Ask(const FileQuestion& question) override;
};

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

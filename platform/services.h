// What the program asks of the machine beyond windows. A platform fills in the services before the start and keeps them to the end.
#pragma once
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/files.h"
#include "platform/picture_box.h"

enum class Icon { None, Exclamation, Information, Question };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    bool loses_work = false;  // Yes does: the button that Enter presses is No
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual Answer Show(const Message& message) = 0;  // returns when the user has answered; closing the box is its Cancel, No or OK
};

struct FileQuestion {
    enum class Kind { Open, Save } kind = Kind::Save;
    std::string filter;         // "DataFile(*.csv)|*.csv"
    std::string proposed_name;  // may be empty
    bool ask_before_overwriting = false;
    std::string first_folder = {};  // where to begin; empty: where the proposed name lies, or the platform would
};

class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    virtual std::optional<std::string> Ask(const FileQuestion& question) = 0;  // a path; nothing if the user cancels
};

// A whole wave file in memory.
struct Wave {
    const char* name;  // "WaveKey1"
    std::string bytes;
};

class Sounds {
public:
    virtual ~Sounds() = default;
    virtual void Play(const Wave& wave) = 0;  // returns at once; cuts off the wave that plays. Silent without a device
    virtual void Beep() = 0;                  // the system's own signal
    // Calls the procedure, at once or later, if there turns out to be no device. A later procedure replaces it.
    virtual void IfSilent(std::function<void()> procedure) = 0;
};

class Keyboard {
public:
    virtual ~Keyboard() = default;
    // What the keys type without Shift on the layout in use, by the virtual-key number that the program hears from each; UTF-8. Empty
    // if the system does not tell.
    virtual std::map<int, std::string> Characters() = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual std::string DateText() = 0;  // dd/mm/yyyy
    virtual std::string TimeText() = 0;  // hh:mm:ss, 24 hours
};

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void PutImage(const PictureBox& picture) = 0;  // the picture as it stands, overlays included
};

class Popups {
public:
    virtual ~Popups() = default;
    virtual void Open(MenuItem& menu) = 0;  // its items can be reached until one is clicked
};

class ProgramHost {
public:
    virtual ~ProgramHost() = default;
    virtual std::string Folder() = 0;  // the program's own folder, where References and Sound files lie; no separator at its end
    virtual Box ScreenSize() = 0;      // of the screen that windows come up on, in twips
    virtual bool CanShow(const std::string& picture) = 0;  // the bytes of a file: a picture of a kind that the platform can draw
    virtual bool HasManual() = 0;                          // it was installed with the program
    virtual void ShowManual() = 0;                         // in the browser of the system
    virtual void End() = 0;                                // the program ends when the event that runs is over
    virtual void Fail(const char* word) = 0;               // shows the word of a failure that nothing caught, then ends the program
};

struct Services {
    MessageBoxes* messages = nullptr;
    FileDialogs* dialogs = nullptr;
    Sounds* sounds = nullptr;
    Clock* clock = nullptr;
    Clipboard* clipboard = nullptr;
    Popups* popups = nullptr;
    Files* files = nullptr;
    ProgramHost* host = nullptr;
    Keyboard* keyboard = nullptr;
};
extern Services services;

// The shape of the mouse pointer is state that procedures read: 0 default, 1 arrow, 3 I-beam, 7 size, 11 busy.
constexpr int kPointerDefault = 0;
constexpr int kPointerArrow = 1;
constexpr int kPointerIBeam = 3;
constexpr int kPointerSize = 7;
constexpr int kPointerBusy = 11;
extern int MousePointer;

// A path below the program's folder, by its parts: "References/KeySetting.csv".
std::string ProgramFile(const std::string& parts);

// The file dialog of a window. It remembers the name from its last use.
class CommonDialog {
public:
    std::string FileName;
    std::string first_folder;  // of the next file to be opened; empty: that of the last file, or the platform's own
    bool AskForSaving();       // false: cancelled, and FileName is as it was
    bool AskForOpening();

private:
    bool Ask(FileQuestion::Kind kind);
};

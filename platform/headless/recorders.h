// The services that only take note of what the program asks for, and the clock that stands still.
#pragma once
#include <functional>
#include <map>
#include <string>
#include <vector>

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

    std::string Folder() override { return folder; }
    Box ScreenSize() override { return {0, 0, 1024 * kTwipsPerPixel, 768 * kTwipsPerPixel}; }
    bool CanShow(const std::string& picture) override;  // goes by its first bytes
    void End() override { ended = true; }
    void Fail(const char* word) override {
        if (failure.empty()) failure = word;
        ended = true;
    }
};

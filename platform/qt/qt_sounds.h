// Sounds from memory, one at a time, on a device that stays open. Without a device there is silence and nothing else changes.
//
// The device opens on a thread of its own, for that can take longer than the first window; what is played meanwhile sounds once it is
// open. When it goes away, headphones that are pulled for instance, the one that the system offers next takes its place; while there is
// none, what is played is lost, for a late sound would pass for a count that was just made. A process has one device, and so one of these
// at a time.
#pragma once
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>

#include "platform/services.h"

struct Mix_Chunk;
union SDL_Event;

class QtSounds : public Sounds {
public:
    QtSounds();
    ~QtSounds() override;
    QtSounds(const QtSounds&) = delete;
    QtSounds& operator=(const QtSounds&) = delete;

    void Play(const Wave& wave) override;
    void Beep() override;
    void IfSilent(std::function<void()> procedure) override;

private:
    struct Loaded {
        std::string bytes;  // the chunk was made from them
        Mix_Chunk* chunk = nullptr;
    };
    void KeepOpen();
    void Open();
    void Close();
    bool WaitForChange();  // of the devices; false when the program ends
    static int NoteDevice(void* sounds, SDL_Event* event);
    void PlayNow(const Wave* wave, const std::string& bytes);
    void TellOfSilence();

    std::mutex mutex_;
    std::condition_variable changes_;
    bool is_open_ = false;
    bool is_silent_ = false;  // there is no device that would open
    bool begins_ = true;      // the first opening is under way
    bool is_gone_ = false;    // the device
    bool has_come_ = false;   // another one
    bool ends_ = false;
    std::function<void()> if_silent_;
    const Wave* waits_ = nullptr;  // asked for before the device was open
    std::string waiting_bytes_;    // a copy: the program may read its waves anew meanwhile
    std::map<const Wave*, Loaded> loaded_;
    std::thread keeper_;
};

#include "platform/qt/qt_sounds.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <QApplication>
#include <QMetaObject>
#include <chrono>
#include <utility>

#include "platform/qt/load_wave.h"

namespace {
constexpr int kRate = 44100;
constexpr int kOneChannel = 1;
constexpr int kStereo = 2;
constexpr std::chrono::milliseconds kSettling{500};

// 256 frames are 9 ms from key to ear; some devices take no less than twice as many.
bool OpenDevice() {
    for (const int frames : {256, 512})
        if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, kStereo, frames, nullptr, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE) == 0) return true;
    return false;
}
}  // namespace

QtSounds::QtSounds() : keeper_([this] { KeepOpen(); }) {}

// SDL would catch SIGTERM, and the program would not end on it.
void QtSounds::KeepOpen() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Marlbrook");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Keys");
    SDL_Init(SDL_INIT_AUDIO);
    SDL_SetEventFilter(NoteDevice, this);
    Open();
    while (WaitForChange()) {
        Close();
        Open();
    }
    Close();
}

void QtSounds::Open() {
    const bool opens = SDL_WasInit(SDL_INIT_AUDIO) && OpenDevice();
    if (opens) Mix_AllocateChannels(kOneChannel);
    const std::lock_guard lock(mutex_);
    is_open_ = opens;
    is_silent_ = !opens;
    if (is_open_) has_come_ = false;  // it was told of meanwhile, and is this one or was not chosen
    if (is_silent_) TellOfSilence();
    if (is_open_ && waits_) PlayNow(waits_, waiting_bytes_);
    waits_ = nullptr;
    begins_ = false;
}

void QtSounds::Close() {
    std::map<const Wave*, Loaded> unloaded;
    {
        const std::lock_guard lock(mutex_);
        if (!is_open_) return;
        is_open_ = false;
        unloaded.swap(loaded_);
    }
    Mix_HaltChannel(-1);
    for (auto& [wave, loaded] : unloaded) Mix_FreeChunk(loaded.chunk);
    Mix_CloseAudio();
}

// The system needs a moment to offer another device, and one that goes again and again does not keep the processor busy.
bool QtSounds::WaitForChange() {
    std::unique_lock lock(mutex_);
    changes_.wait(lock, [this] { return ends_ || is_gone_ || (has_come_ && !is_open_); });
    changes_.wait_for(lock, kSettling, [this] { return ends_; });
    is_gone_ = has_come_ = false;
    return !ends_;
}

// No event is kept: nobody takes them.
int QtSounds::NoteDevice(void* sounds, SDL_Event* event) {
    auto& self = *static_cast<QtSounds*>(sounds);
    const std::lock_guard lock(self.mutex_);
    if (event->adevice.iscapture != 0) return 0;
    if (event->type == SDL_AUDIODEVICEREMOVED && event->adevice.which != 0) self.is_gone_ = true;  // 0: one that was not open
    if (event->type == SDL_AUDIODEVICEADDED) self.has_come_ = true;
    self.changes_.notify_one();
    return 0;
}

void QtSounds::IfSilent(std::function<void()> procedure) {
    const std::lock_guard lock(mutex_);
    if_silent_ = std::move(procedure);
    if (is_silent_) TellOfSilence();
}

// The program hears of it on its own thread.
void QtSounds::TellOfSilence() {
    if (if_silent_) QMetaObject::invokeMethod(qApp, if_silent_, Qt::QueuedConnection);
}

QtSounds::~QtSounds() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changes_.notify_one();
    keeper_.join();
    SDL_SetEventFilter(nullptr, nullptr);
    SDL_Quit();
}

void QtSounds::Play(const Wave& wave) {
    const std::lock_guard lock(mutex_);
    if (is_open_) return PlayNow(&wave, wave.bytes);
    if (!begins_) return;
    waits_ = &wave;
    waiting_bytes_ = wave.bytes;
}

void QtSounds::PlayNow(const Wave* wave, const std::string& bytes) {
    Loaded& loaded = loaded_[wave];
    if (loaded.bytes != bytes) {
        if (loaded.chunk) Mix_FreeChunk(loaded.chunk);  // halts it first
        loaded.bytes = bytes;
        loaded.chunk = LoadWave(bytes);
    }
    if (!loaded.chunk || Mix_PlayChannel(0, loaded.chunk, 0) < 0) Mix_HaltChannel(0);  // broken or too short, it cuts the old one off too
}

void QtSounds::Beep() {
    QApplication::beep();
}

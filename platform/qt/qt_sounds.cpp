#include "platform/qt/qt_sounds.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <QApplication>
#include <QMetaObject>
#include <utility>

#include "platform/qt/load_wave.h"

namespace {
constexpr int kRate = 44100;
constexpr int kOneChannel = 1;
constexpr int kStereo = 2;

// 256 frames are 9 ms from key to ear; some devices take no less than twice as many.
bool OpenDevice() {
    for (const int frames : {256, 512})
        if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, kStereo, frames, nullptr, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE) == 0) return true;
    return false;
}
}  // namespace

QtSounds::QtSounds() : opening_([this] { Open(); }) {}

// SDL would catch SIGTERM, and the program would not end on it.
void QtSounds::Open() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Marlbrook");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Keys");
    const bool opens = SDL_Init(SDL_INIT_AUDIO) == 0 && OpenDevice();
    if (opens) Mix_AllocateChannels(kOneChannel);
    const std::lock_guard lock(mutex_);
    is_open_ = opens;
    is_silent_ = !opens;
    if (is_silent_) TellOfSilence();
    if (is_open_ && waits_) PlayNow(waits_, waiting_bytes_);
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
    opening_.join();
    if (is_open_) {
        Mix_HaltChannel(-1);
        for (auto& [wave, loaded] : loaded_) Mix_FreeChunk(loaded.chunk);
        Mix_CloseAudio();
    }
    SDL_Quit();
}

void QtSounds::Play(const Wave& wave) {
    const std::lock_guard lock(mutex_);
    if (is_open_) return PlayNow(&wave, wave.bytes);
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

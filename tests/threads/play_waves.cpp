// Plays as the program does, and worse: before the device is open, many keys at once, waves that are read anew while they sound, broken
// ones, on a device that goes away, and ends at any moment. Nothing is checked here but that a device opens and that a file named as the
// argument, which SDL's disk driver writes, holds something; the rest, the sanitizer sees that it is built with.
#include <SDL.h>
#include <SDL_mixer.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <thread>

#include "platform/qt/qt_sounds.h"
#include "unit/wave_bytes.h"

namespace {
void Rest(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// Without a device nothing would be mixed, and so nothing tried.
bool DeviceOpens() {
    constexpr int kLongestWait = 20000;  // milliseconds: the machine may have much else to do
    for (int waited = 0; waited < kLongestWait; waited += 20) {
        if (Mix_QuerySpec(nullptr, nullptr, nullptr) > 0) return true;
        Rest(20);
    }
    return false;
}

void TakeDeviceAway() {
    SDL_Event is_gone{};
    is_gone.type = SDL_AUDIODEVICEREMOVED;
    is_gone.adevice.which = 1;
    SDL_PushEvent(&is_gone);
}

void PlayMany(Sounds& sounds, Wave (&waves)[3], std::mt19937& dice, int keys) {
    for (int key = 0; key < keys; ++key) {
        Wave& wave = waves[dice() % 3];
        if (dice() % 8 == 0) wave.bytes = dice() % 4 == 0 ? "broken" : SilentWave(100 + dice() % 4000);
        sounds.Play(wave);
        if (dice() % 4 == 0) Rest(static_cast<int>(dice() % 12));
    }
}
}  // namespace

int main(int argc, char** argv) {
    const unsigned seed = std::random_device()();
    std::cout << "seed " << seed << "\n";
    std::mt19937 dice(seed);
    Wave waves[] = {{"WaveKey1", SilentWave(3000)}, {"WaveKey2", SilentWave(500)}, {"WaveAlarm", SilentWave(40000)}};
    for (int start = 0; start < 20; ++start) {
        QtSounds sounds;
        PlayMany(sounds, waves, dice, start % 5 == 0 ? 0 : 10);  // some end before the device is open
        if (start % 2 == 0) continue;
        if (!DeviceOpens()) {
            std::cout << "no sound device opens\n";
            return 1;
        }
        Rest(100);
        PlayMany(sounds, waves, dice, 250);
        if (start % 4 == 1) TakeDeviceAway();
        PlayMany(sounds, waves, dice, 500);
    }
    if (argc > 1 && std::filesystem::file_size(argv[1]) == 0) {
        std::cout << "nothing was heard\n";
        return 1;
    }
}

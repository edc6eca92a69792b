// Whatever bytes a wave is, it is broken, or the sound library loads it whole and into no more memory than its length takes. The device
// is SDL's own that plays into nothing.
#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/qt/load_wave.h"
#include "platform/wave_format.h"

namespace {
constexpr int kRate = 44100;
constexpr int kFrame = 4;  // bytes of 16-bit stereo

void Check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

struct Device {
    Device() {
        SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
        Check(SDL_Init(SDL_INIT_AUDIO) == 0 && Mix_OpenAudio(kRate, AUDIO_S16SYS, 2, 512) == 0, "a device opens");
    }
    ~Device() {
        Mix_CloseAudio();
        SDL_Quit();
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;
};

// Of a file of so many bytes: none has more frames than one of 8 bits in one channel, and none is stretched more than at the lowest rate.
std::uint64_t LongestSound(std::size_t size) {
    return kFrame * (std::uint64_t{size} * kRate / kLowestWaveRate + 1);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Device device;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Mix_Chunk* chunk = LoadWave(bytes);
    Check((chunk != nullptr) == IsPlayableWave(bytes), "what is playable is loaded, and nothing else");
    if (!chunk) return 0;
    Check(chunk->alen % kFrame == 0 && chunk->alen <= LongestSound(size), "the sound is as long as its wave");
    Mix_FreeChunk(chunk);
    Check(Mix_Init(0) == 0, "no decoder of music is loaded");
    return 0;
}

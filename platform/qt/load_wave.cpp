#include "platform/qt/load_wave.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/wave_format.h"

Mix_Chunk* LoadWave(const std::string& bytes) {
    if (!IsPlayableWave(bytes)) return nullptr;
    return Mix_LoadWAV_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1);
}

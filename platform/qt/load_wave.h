// Waves from memory to what the sound library plays.
#pragma once
#include <string>

struct Mix_Chunk;

// In the format of the open device, in memory of its own: Mix_FreeChunk gives it back. Null if the wave is broken.
Mix_Chunk* LoadWave(const std::string& bytes);

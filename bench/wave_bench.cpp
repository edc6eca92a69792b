// What a wave takes when it is played for the first time: the installed ones, and the longest that play, by rate, channels and bits. The
// device is SDL's own that plays into nothing, at the rate of WAVE_BENCH_RATE or 44100 a second.
#include <SDL.h>
#include <SDL_mixer.h>
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "platform/headless/files.h"
#include "platform/qt/load_wave.h"
#include "platform/wave_format.h"
#include "unit/wave_bytes.h"

namespace {
void OpenDevice() {
    const char* rate = std::getenv("WAVE_BENCH_RATE");
    SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_AUDIO) != 0 || Mix_OpenAudio(rate ? std::atoi(rate) : 44100, AUDIO_S16SYS, 2, 512) != 0) std::abort();
}

// What the process holds now, or held at the most since ForgetPeak, in megabytes: a line of the system's own list.
double Megabytes(const std::string& name) {
    std::ifstream list("/proc/self/status");
    std::string word;
    while (list >> word && word != name) continue;
    double kilobytes = 0;
    list >> kilobytes;
    return kilobytes / 1000;
}

void ForgetPeak() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
}

void Load(benchmark::State& state, const std::string& wave) {
    ForgetPeak();
    const double before = Megabytes("VmRSS:");
    for (auto _ : state) {
        Mix_Chunk* chunk = LoadWave(wave);
        state.counters["sound_MB"] = chunk->alen / 1e6;
        Mix_FreeChunk(chunk);
    }
    state.counters["peak_MB"] = Megabytes("VmHWM:") - before;
    state.counters["file_MB"] = static_cast<double>(wave.size()) / 1e6;
}

void Installed(benchmark::State& state, const char* name) {
    Load(state, DiskFiles().ReadAll(WAVES_FOLDER "/" + std::string(name) + ".wav"));
}

void Longest(benchmark::State& state) {
    const WaveFormat format{.channels = static_cast<int>(state.range(1)),
                            .rate = static_cast<std::uint32_t>(state.range(0)),
                            .bits = static_cast<int>(state.range(2))};
    Load(state, SilentWave(kLongestWave * format.rate, format));
}

BENCHMARK_CAPTURE(Installed, Key1, "Key-1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Installed, Alarm, "Alarm")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Installed, Opening, "Opening")->Unit(benchmark::kMillisecond);
BENCHMARK(Longest)
    ->ArgsProduct({{8000, 44100, 48000, 96000, 192000}, {1, 2}, {8, 16}})
    ->ArgNames({"rate", "channels", "bits"})
    ->Unit(benchmark::kMillisecond);
}  // namespace

int main(int argc, char** argv) {
    OpenDevice();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    Mix_CloseAudio();
    SDL_Quit();
}

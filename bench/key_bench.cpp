// A press and release of counter keys, as the window sees them: what stands between the key and its sound.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "bench/headless_program.h"
#include "files/new_sheet.h"
#include "session/key_dispatch.h"
#include "session/state/sheet_state.h"

namespace {
using Clock = std::chrono::steady_clock;

double Quantile(std::vector<double>& times, double part) {
    const auto place = times.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(times.size() - 1));
    std::nth_element(times.begin(), place, times.end());
    return *place;
}

// The keys in turn, so that the total grows and each hundredth press writes a back-up.
void PressKeys(benchmark::State& state) {
    std::vector<double> times;
    int key = 0;
    for (auto _ : state) {
        key = key % kKeys + 1;
        const int code = static_cast<int>(KeySettings[key][kKeyCode].Number());
        const auto begin = Clock::now();
        DispatchKeyDown(code);
        DispatchKeyUp(code);
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
    state.counters["median_us"] = Quantile(times, 0.5);
    state.counters["p99_us"] = Quantile(times, 0.99);
    state.counters["max_us"] = Quantile(times, 1);
}

void PressKeysOnSmallSheet(benchmark::State& state) {
    TheProgram().services.messages.answers = {Answer::Yes};
    NewSheet();
    PressKeys(state);
}

void PressKeysOnLargeSheet(benchmark::State& state) {
    TheProgram().Open(SheetOf(kSampleLimit));
    PressKeys(state);
}

constexpr int kPresses = 1000;  // a large sample; the curve is drawn anew at each, so the last ones take longest
BENCHMARK(PressKeysOnSmallSheet)->Iterations(kPresses)->Unit(benchmark::kMicrosecond);
BENCHMARK(PressKeysOnLargeSheet)->Iterations(kPresses)->Unit(benchmark::kMicrosecond);
}  // namespace

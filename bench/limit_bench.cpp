// What the machine takes for the least that a job must do: the jobs of the program are told beside it.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "bench/growing.h"
#include "bench/headless_program.h"
#include "diagram/data/percentages.h"
#include "files/save_sheet.h"
#include "session/state/sheet_state.h"

namespace {
// As the program saves it.
const std::string& BytesOfSheet(int samples) {
    TheProgram().Open(SheetOf(samples));
    SaveSheet(kSave);
    return TheProgram().files.bytes[SheetOf(samples)];
}

// Opening: each cell is found, and read where it is a number.
void ReadNumbers(benchmark::State& state) {
    const std::string bytes = BytesOfSheet(Samples(state));
    for (auto _ : state) {
        const char* const end = bytes.data() + bytes.size();
        for (const char* cell = bytes.data(); cell < end; ++cell) {
            std::int32_t number = 0;
            std::from_chars(cell, end, number);
            benchmark::DoNotOptimize(number);
            cell = std::find(cell, end, ',');
        }
    }
}

// Saving and back-up: each count is written as a number.
void WriteNumbers(benchmark::State& state) {
    std::string bytes = BytesOfSheet(Samples(state));
    for (auto _ : state) {
        char* place = bytes.data();
        for (int slot = 1; slot <= kSlots; ++slot)
            for (int sample = 1; sample <= SampleCount; ++sample) {
                place = std::to_chars(place, bytes.data() + bytes.size(), Counts[slot][sample]).ptr;
                *place++ = ',';
            }
        benchmark::ClobberMemory();
    }
}

// A table of percentages: each count is divided, rounded and written as a decimal number.
void WriteDecimals(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    std::string bytes(static_cast<std::size_t>(kSlots * Samples(state)) * 32, ' ');
    for (auto _ : state) {
        char* place = bytes.data();
        for (int slot = 1; slot <= kSlots; ++slot)
            for (int sample = 1; sample <= SampleCount; ++sample) {
                const double percent = std::nearbyint(Counts[slot][sample] / 6700.0 * 1e6) / 1e4;
                place = std::to_chars(place, bytes.data() + bytes.size(), percent).ptr;
                *place++ = ',';
            }
        benchmark::ClobberMemory();
    }
}

// Percentages: each count is read and divided.
void DivideCounts(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    for (auto _ : state) {
        for (int slot = 1; slot <= kSlots; ++slot)
            for (int sample = 1; sample <= SampleCount; ++sample)
                SamplePercent[slot][sample] = static_cast<float>(Counts[slot][sample] / 6700.0);
        benchmark::ClobberMemory();
    }
}

// Clustering: the shares of each two neighbours are compared.
void CompareNeighbours(benchmark::State& state) {
    TheProgram().Open(SheetOf(Samples(state)));
    ComputeDiagramData();
    for (auto _ : state) {
        float sum = 0;
        for (int slot = 1; slot <= kSlots; ++slot)
            for (int sample = 2; sample <= SampleCount; ++sample) {
                const float difference = SamplePercent[slot][sample] - SamplePercent[slot][sample - 1];
                sum += difference * difference;
            }
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK(ReadNumbers)->Apply(Growing);
BENCHMARK(WriteNumbers)->Apply(Growing);
BENCHMARK(WriteDecimals)->Apply(Growing);
BENCHMARK(DivideCounts)->Apply(Growing);
BENCHMARK(CompareNeighbours)->Apply(Growing);
}  // namespace

// Benchmarks that are run with 10, 50, 100 and 250 samples.
#pragma once
#include <benchmark/benchmark.h>

inline void Growing(benchmark::internal::Benchmark* bench) {
    bench->Arg(10)->Arg(50)->Arg(100)->Arg(250)->Unit(benchmark::kMicrosecond);
}

inline int Samples(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

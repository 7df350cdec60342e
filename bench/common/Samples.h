// Benchmarks over many different values, so that no branch is learnt by heart.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

// Runs AStep on one sample after the other.
template <class TSamples, class TStep>
void OverSamples(benchmark::State& AState, const TSamples& ASamples, TStep AStep) {
    std::size_t Next = 0;
    for (auto _ : AState)
        AStep(ASamples[Next++ % ASamples.size()]);
}

// Has the compiler believe that the values are used.
template <class... T> void Keep(T... AValues) {
    (benchmark::DoNotOptimize(AValues), ...);
}

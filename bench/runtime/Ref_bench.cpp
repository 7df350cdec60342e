// A copy of a Ref beside a copy of a std::shared_ptr, while a second thread makes both count atomically.
#include <benchmark/benchmark.h>

#include <memory>

#include <qz/runtime/objects/InterfacedObject.h>

namespace {

void RefCopy(benchmark::State& AState) {
    const qz::Ref<qz::IInterface> Source = qz::TInterfacedObject::Create();
    for (auto _ : AState) {
        qz::Ref<qz::IInterface> Copy = Source;
        benchmark::DoNotOptimize(Copy);
    }
}

void SharedPtrCopy(benchmark::State& AState) {
    const auto Source = std::make_shared<int>(1);
    for (auto _ : AState) {
        std::shared_ptr<int> Copy = Source;
        benchmark::DoNotOptimize(Copy);
    }
}

BENCHMARK(RefCopy)->Threads(2);
BENCHMARK(SharedPtrCopy)->Threads(2);

} // namespace

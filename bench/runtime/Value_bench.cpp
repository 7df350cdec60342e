// A number and a text in a TValue beside std::any, std::variant and POCO's dynamic value.
#include <benchmark/benchmark.h>

#include <any>
#include <string>
#include <variant>

#include <Poco/Dynamic/Var.h>

#include <qz/runtime/values/Value.h>

namespace {

using TStdVariant = std::variant<std::monostate, int, double, std::u16string>;

constexpr int cNumber = 123456789;
const std::u16string cText = u"a text that is too long to lie within the string object";
const std::string cNarrowText = "a text that is too long to lie within the string object";

template <class T> void Box(benchmark::State& AState) {
    int Number = cNumber;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Number);
        T Boxed = Number;
        benchmark::DoNotOptimize(Boxed);
    }
}

// AUnbox gives the number in a T.
template <class T, class TUnbox> void Unbox(benchmark::State& AState, TUnbox AUnbox) {
    T Boxed = cNumber;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Boxed);
        int Number = AUnbox(Boxed);
        benchmark::DoNotOptimize(Number);
    }
}

template <class T> void CopyAndDestroy(benchmark::State& AState, const T& ASource) {
    T Source = ASource;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Source);
        T Copy = Source;
        benchmark::DoNotOptimize(Copy);
    }
}

void UnboxNumber(benchmark::State& AState) {
    Unbox<qz::TValue>(AState, [](const qz::TValue& AValue) { return AValue.AsInteger(); });
}
void UnboxNumberStdAny(benchmark::State& AState) {
    Unbox<std::any>(AState, [](const std::any& AValue) { return std::any_cast<int>(AValue); });
}
void UnboxNumberStdVariant(benchmark::State& AState) {
    Unbox<TStdVariant>(AState, [](const TStdVariant& AValue) { return std::get<int>(AValue); });
}
void UnboxNumberPoco(benchmark::State& AState) {
    Unbox<Poco::Dynamic::Var>(AState, [](const Poco::Dynamic::Var& AValue) { return AValue.extract<int>(); });
}

BENCHMARK(Box<qz::TValue>)->Name("BoxNumber");
BENCHMARK(Box<std::any>)->Name("BoxNumberStdAny");
BENCHMARK(Box<TStdVariant>)->Name("BoxNumberStdVariant");
BENCHMARK(Box<Poco::Dynamic::Var>)->Name("BoxNumberPoco");
BENCHMARK(UnboxNumber);
BENCHMARK(UnboxNumberStdAny);
BENCHMARK(UnboxNumberStdVariant);
BENCHMARK(UnboxNumberPoco);
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedNumber, qz::TValue(cNumber));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedNumberStdAny, std::any(cNumber));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedNumberStdVariant, TStdVariant(cNumber));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedNumberPoco, Poco::Dynamic::Var(cNumber));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedText, qz::TValue(cText));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedTextStdAny, std::any(cText));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedTextStdVariant, TStdVariant(cText));
BENCHMARK_CAPTURE(CopyAndDestroy, BoxedTextPoco, Poco::Dynamic::Var(cNarrowText));

} // namespace

// Copies of variants beside std::any, std::variant and POCO's dynamic value, and conversions beside the
// latter's.
#include <benchmark/benchmark.h>

#include <any>
#include <string>
#include <variant>

#include <Poco/Dynamic/Var.h>

#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

namespace {

using TStdVariant = std::variant<std::monostate, std::int64_t, double, std::u16string>;

const std::u16string cText = u"a text that is too long to lie within the string object";
const std::string cNarrowText = "a text that is too long to lie within the string object";

template <class T> void Copy(benchmark::State& AState, const T& ASource) {
    for (auto _ : AState) {
        T Copied = ASource;
        benchmark::DoNotOptimize(Copied);
    }
}

void CopyText(benchmark::State& AState) {
    Copy(AState, qz::Variant(cText));
}
void CopyTextStdAny(benchmark::State& AState) {
    Copy(AState, std::any(cText));
}
void CopyTextStdVariant(benchmark::State& AState) {
    Copy(AState, TStdVariant(cText));
}
void CopyTextPoco(benchmark::State& AState) {
    Copy(AState, Poco::Dynamic::Var(cNarrowText));
}

void CopyNumber(benchmark::State& AState) {
    Copy(AState, qz::Variant(123456789));
}
void CopyNumberStdAny(benchmark::State& AState) {
    Copy(AState, std::any(123456789));
}
void CopyNumberStdVariant(benchmark::State& AState) {
    Copy(AState, TStdVariant(std::int64_t{123456789}));
}
void CopyNumberPoco(benchmark::State& AState) {
    Copy(AState, Poco::Dynamic::Var(123456789));
}

void IntegerToText(benchmark::State& AState) {
    const qz::Variant Value = AState.range(0);
    for (auto _ : AState) {
        qz::UnicodeString Text = qz::VarToStr(Value);
        benchmark::DoNotOptimize(Text.data());
    }
}
void IntegerToTextPoco(benchmark::State& AState) {
    const Poco::Dynamic::Var Value = AState.range(0);
    for (auto _ : AState) {
        auto Text = Value.convert<std::string>();
        benchmark::DoNotOptimize(Text.data());
    }
}

void TextToInteger(benchmark::State& AState) {
    const qz::Variant Value = u"123456789";
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::VarToInteger(Value));
}
void TextToIntegerPoco(benchmark::State& AState) {
    const Poco::Dynamic::Var Value = std::string("123456789");
    for (auto _ : AState)
        benchmark::DoNotOptimize(Value.convert<std::int32_t>());
}

void TextToReal(benchmark::State& AState) {
    const qz::Variant Value = u"12345.6789";
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::VarToReal(Value));
}
void TextToRealPoco(benchmark::State& AState) {
    const Poco::Dynamic::Var Value = std::string("12345.6789");
    for (auto _ : AState)
        benchmark::DoNotOptimize(Value.convert<double>());
}

void FillArray(benchmark::State& AState) {
    for (auto _ : AState) {
        qz::Variant Array = qz::VarArrayCreate({0, 999}, qz::varInteger);
        for (int I = 0; I < 1000; ++I)
            qz::VarArrayPut(Array, I, I);
        benchmark::DoNotOptimize(Array);
    }
}
void FillArrayPoco(benchmark::State& AState) {
    for (auto _ : AState) {
        Poco::Dynamic::Var Array = std::vector<Poco::Dynamic::Var>(1000);
        for (int I = 0; I < 1000; ++I)
            Array[static_cast<std::size_t>(I)] = I;
        benchmark::DoNotOptimize(Array);
    }
}

BENCHMARK(CopyText);
BENCHMARK(CopyTextStdAny);
BENCHMARK(CopyTextStdVariant);
BENCHMARK(CopyTextPoco);
BENCHMARK(CopyNumber);
BENCHMARK(CopyNumberStdAny);
BENCHMARK(CopyNumberStdVariant);
BENCHMARK(CopyNumberPoco);
BENCHMARK(IntegerToText)->Arg(123456789)->Arg(1234567890123456789);
BENCHMARK(IntegerToTextPoco)->Arg(123456789)->Arg(1234567890123456789);
BENCHMARK(TextToInteger);
BENCHMARK(TextToIntegerPoco);
BENCHMARK(TextToReal);
BENCHMARK(TextToRealPoco);
BENCHMARK(FillArray);
BENCHMARK(FillArrayPoco);

} // namespace

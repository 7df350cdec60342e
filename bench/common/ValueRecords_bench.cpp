// Arithmetic with value records beside plain numbers, and their text forms beside libxml2's built-in types.
#include <benchmark/benchmark.h>

#include <libxml/xmlschemastypes.h>

#include <qz/common/uQzXSTypes.h>

namespace {

using TInt = qz::TXsInteger<int>;

template <class T> std::vector<T> Numbers() {
    std::vector<T> Result;
    for (int I = 0; I < 1000000; ++I)
        Result.push_back(I * 7919 % 1000);
    return Result;
}

template <class T> void Add(benchmark::State& AState) {
    std::vector<T> Values = Numbers<T>();
    for (auto _ : AState) {
        for (T& Value : Values)
            Value += 1;
        benchmark::ClobberMemory();
    }
    AState.SetItemsProcessed(static_cast<std::int64_t>(AState.iterations() * Values.size()));
}
BENCHMARK(Add<int>);
BENCHMARK(Add<TInt>);

template <class T> void AddUp(benchmark::State& AState) {
    const std::vector<T> Values = Numbers<T>();
    for (auto _ : AState) {
        T Sum = 0;
        for (const T& Value : Values)
            Sum += Value;
        benchmark::DoNotOptimize(Sum);
    }
    AState.SetItemsProcessed(static_cast<std::int64_t>(AState.iterations() * Values.size()));
}
BENCHMARK(AddUp<int>);
BENCHMARK(AddUp<TInt>);

template <class T> void Compare(benchmark::State& AState) {
    const std::vector<T> Values = Numbers<T>();
    for (auto _ : AState) {
        int Count = 0;
        for (const T& Value : Values)
            if (Value > 500)
                ++Count;
        benchmark::DoNotOptimize(Count);
    }
    AState.SetItemsProcessed(static_cast<std::int64_t>(AState.iterations() * Values.size()));
}
BENCHMARK(Compare<int>);
BENCHMARK(Compare<TInt>);

void BoxAndBack(benchmark::State& AState) {
    const TInt Value = 17;
    for (auto _ : AState) {
        const qz::TValue Box = Value;
        TInt Back = Box.AsType<TInt>();
        benchmark::DoNotOptimize(Back);
    }
}
BENCHMARK(BoxAndBack);

constexpr const char* cIntegers[] = {"0", "42", "-2147483648", "1234567"};
constexpr const char* cDecimals[] = {"0.5", "42", "-21474.83648", "1234567.25"};

// From text of 16 bits, with limits that are checked.
template <class R> void Read(benchmark::State& AState, const char* const (&ATexts)[4]) {
    const std::vector<qz::UnicodeString> Texts(std::begin(ATexts), std::end(ATexts));
    R Read, Checked;
    Checked.Restrictions = {.MinInclusive = -2147483647 - 1, .MaxInclusive = 2147483647};
    for (auto _ : AState)
        for (const qz::UnicodeString& Text : Texts) {
            Read.FromString(Text);
            Checked = Read.FValue;
            benchmark::DoNotOptimize(Checked);
        }
}
void ReadLibxml2(benchmark::State& AState, xmlSchemaValType AType, const char* const (&ATexts)[4]) {
    xmlSchemaInitTypes();
    xmlSchemaType* Type = xmlSchemaGetBuiltInType(AType);
    for (auto _ : AState)
        for (const char* Text : ATexts) {
            xmlSchemaVal* Value = nullptr;
            if (xmlSchemaValPredefTypeNodeNoNorm(Type, reinterpret_cast<const xmlChar*>(Text), &Value,
                                                 nullptr) != 0)
                AState.SkipWithError("not a value");
            xmlSchemaFreeValue(Value);
        }
}
void ReadInt(benchmark::State& AState) {
    Read<TInt>(AState, cIntegers);
}
BENCHMARK(ReadInt);
BENCHMARK_CAPTURE(ReadLibxml2, int, XML_SCHEMAS_INT, cIntegers);
void ReadDecimal(benchmark::State& AState) {
    Read<qz::TXsRational<qz::Extended>>(AState, cDecimals);
}
BENCHMARK(ReadDecimal);
BENCHMARK_CAPTURE(ReadLibxml2, decimal, XML_SCHEMAS_DECIMAL, cDecimals);

} // namespace

// Text in code pages, long and short, beside iconv, ICU and a plain loop over a table of the page.
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <iconv.h>
#include <unicode/ucnv.h>

#include <qz/platform/CodePages.h>

namespace {

using namespace qz::platform;

std::u16string Repeated(std::u16string_view APiece, size_t ALength) {
    std::u16string Result;
    while (Result.size() < ALength)
        Result += APiece;
    Result.resize(ALength);
    return Result;
}

// The text that a benchmark is about, by the page that it is in.
std::u16string Text(int64_t APage, int64_t ALength) {
    const auto Length = static_cast<size_t>(ALength);
    switch (APage) {
    case 1251: return Repeated(u"Съешь же ещё этих мягких французских булок, да выпей чаю. ", Length);
    case 932: return Repeated(u"いろはにほへと ちりぬるを ABC, 色は匂へど散りぬるを。", Length);
    default:
        return Repeated(u"Garçon, où est la façade dévêtue? Ça dépend: là-bas, à côté du café. ", Length);
    }
}

std::string Encoded(int64_t APage, std::u16string_view AText) {
    std::string Result(AText.size() * 2, '\0');
    Result.resize(*Utf16ToCodePage(static_cast<uint32_t>(APage), AText, Result, TComposing::Plain));
    return Result;
}

void Decode(benchmark::State& AState) {
    const std::string Bytes = Encoded(AState.range(0), Text(AState.range(0), AState.range(1)));
    const auto Page = static_cast<uint32_t>(AState.range(0));
    std::vector<char16_t> Out(Bytes.size());
    for (auto _ : AState) {
        benchmark::DoNotOptimize(
            *CodePageToUtf16(Page, std::as_bytes(std::span(Bytes)), Out, TDecoding::Lenient));
        benchmark::DoNotOptimize(Out.data());
        benchmark::ClobberMemory();
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

void Encode(benchmark::State& AState) {
    const std::u16string Source = Text(AState.range(0), AState.range(1));
    const auto Page = static_cast<uint32_t>(AState.range(0));
    std::vector<char> Out(Source.size() * 2);
    for (auto _ : AState) {
        benchmark::DoNotOptimize(*Utf16ToCodePage(Page, Source, Out, TComposing::Plain));
        benchmark::DoNotOptimize(Out.data());
        benchmark::ClobberMemory();
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

void DecodeByLoop(benchmark::State& AState) {
    const std::string Bytes = Encoded(AState.range(0), Text(AState.range(0), AState.range(1)));
    std::array<char16_t, 256> Table{};
    for (size_t Byte = 0; Byte < Table.size(); ++Byte)
        Table[Byte] = static_cast<char16_t>(Byte);
    benchmark::DoNotOptimize(Table);
    std::vector<char16_t> Out(Bytes.size());
    for (auto _ : AState) {
        for (size_t I = 0; I < Bytes.size(); ++I)
            Out[I] = Table[static_cast<unsigned char>(Bytes[I])];
        benchmark::DoNotOptimize(Out.data());
        benchmark::ClobberMemory();
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

void EncodeByLoop(benchmark::State& AState) {
    const std::u16string Source = Text(AState.range(0), AState.range(1));
    std::vector<unsigned char> Table(0x10000, '?');
    benchmark::DoNotOptimize(Table.data());
    std::vector<unsigned char> Out(Source.size());
    for (auto _ : AState) {
        for (size_t I = 0; I < Source.size(); ++I)
            Out[I] = Table[Source[I]];
        benchmark::DoNotOptimize(Out.data());
        benchmark::ClobberMemory();
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

void ByIconv(benchmark::State& AState, bool ADecodes) {
    const std::u16string Wide = Text(AState.range(0), AState.range(1));
    std::string Bytes = Encoded(AState.range(0), Wide);
    const std::string Name = "CP" + std::to_string(AState.range(0));
    const iconv_t Converter =
        ADecodes ? iconv_open("UTF-16LE", Name.c_str()) : iconv_open(Name.c_str(), "UTF-16LE");
    std::string Source = Bytes;
    if (!ADecodes)
        Source.assign(reinterpret_cast<const char*>(Wide.data()), Wide.size() * 2);
    std::vector<char> Out(Wide.size() * 4);
    for (auto _ : AState) {
        char* From = Source.data();
        char* To = Out.data();
        size_t Left = Source.size();
        size_t Room = Out.size();
        if (iconv(Converter, &From, &Left, &To, &Room) != 0 || Left != 0)
            AState.SkipWithError("not converted");
        benchmark::ClobberMemory();
    }
    iconv_close(Converter);
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

void ByIcu(benchmark::State& AState, bool ADecodes) {
    const std::u16string Wide = Text(AState.range(0), AState.range(1));
    const std::string Bytes = Encoded(AState.range(0), Wide);
    UErrorCode Status = U_ZERO_ERROR;
    UConverter* Converter = ucnv_open(("windows-" + std::to_string(AState.range(0))).c_str(), &Status);
    std::vector<char16_t> Units(Wide.size() + 1);
    std::vector<char> Out(Bytes.size() + 1);
    for (auto _ : AState) {
        if (ADecodes)
            ucnv_toUChars(Converter, Units.data(), static_cast<int32_t>(Units.size()), Bytes.data(),
                          static_cast<int32_t>(Bytes.size()), &Status);
        else
            ucnv_fromUChars(Converter, Out.data(), static_cast<int32_t>(Out.size()), Wide.data(),
                            static_cast<int32_t>(Wide.size()), &Status);
        benchmark::ClobberMemory();
    }
    if (U_FAILURE(Status))
        AState.SkipWithError("not converted");
    ucnv_close(Converter);
    AState.SetItemsProcessed(AState.iterations() * AState.range(1));
}

const std::vector<std::vector<int64_t>> cAll = {{1252, 1251, 932}, {20, 100, 1 << 20}};
const std::vector<std::vector<int64_t>> cSingle = {{1252, 1251}, {20, 100, 1 << 20}};

BENCHMARK(Decode)->ArgsProduct(cAll);
BENCHMARK(DecodeByLoop)->ArgsProduct(cSingle);
BENCHMARK_CAPTURE(ByIconv, decode, true)->ArgsProduct(cAll);
BENCHMARK_CAPTURE(ByIcu, decode, true)->ArgsProduct(cAll);
BENCHMARK(Encode)->ArgsProduct(cAll);
BENCHMARK(EncodeByLoop)->ArgsProduct(cSingle);
BENCHMARK_CAPTURE(ByIconv, encode, false)->ArgsProduct(cAll);
BENCHMARK_CAPTURE(ByIcu, encode, false)->ArgsProduct(cAll);

} // namespace

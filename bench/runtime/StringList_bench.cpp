// Look-up in a sorted TStringList beside std::lower_bound over std::u16string with the same comparison.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/StringList.h>

namespace {

constexpr std::size_t cLines = 10000;

// Names with common beginnings, in no order.
std::vector<std::u16string> Names() {
    std::mt19937 Random(1);
    std::vector<std::u16string> Result;
    for (std::size_t I = 0; I < cLines; ++I) {
        std::u16string Name = I % 2 == 0 ? u"Configuration." : u"Item.";
        for (int Length = 0; Length < 8; ++Length)
            Name += static_cast<char16_t>((Length % 2 == 0 ? u'a' : u'A') + Random() % 26);
        Result.push_back(std::move(Name));
    }
    return Result;
}

int Compare(std::u16string_view ALeft, std::u16string_view ARight, bool AUseLocale) {
    return AUseLocale ? qz::AnsiCompareText(ALeft, ARight) : qz::CompareText(ALeft, ARight);
}

void Find(benchmark::State& AState, bool AUseLocale) {
    const std::vector<std::u16string> Wanted = Names();
    qz::TStringList List;
    List.SetUseLocale(AUseLocale);
    for (const std::u16string& Each : Wanted)
        List.Add(Each);
    List.SetSorted(true);
    std::size_t Next = 0;
    for (auto _ : AState) {
        int Place = 0;
        benchmark::DoNotOptimize(List.Find(Wanted[Next], Place));
        benchmark::DoNotOptimize(Place);
        Next = (Next + 1) % cLines;
    }
}

void FindPeer(benchmark::State& AState, bool AUseLocale) {
    const std::vector<std::u16string> Wanted = Names();
    std::vector<std::u16string> Lines = Wanted;
    const auto Less = [AUseLocale](const std::u16string& A, const std::u16string& B) {
        return Compare(A, B, AUseLocale) < 0;
    };
    std::sort(Lines.begin(), Lines.end(), Less);
    std::size_t Next = 0;
    for (auto _ : AState) {
        const auto Place = std::lower_bound(Lines.begin(), Lines.end(), Wanted[Next], Less);
        benchmark::DoNotOptimize(Place);
        Next = (Next + 1) % cLines;
    }
}

BENCHMARK_CAPTURE(Find, ByUnits, false);
BENCHMARK_CAPTURE(FindPeer, ByUnits, false);
BENCHMARK_CAPTURE(Find, ByLocale, true);
BENCHMARK_CAPTURE(FindPeer, ByLocale, true);

} // namespace

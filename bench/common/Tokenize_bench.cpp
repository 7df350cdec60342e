// Taking texts apart and replacing in them, beside what one would take otherwise: boost::split, and loops of
// find and replace over std::u16string.
#include <benchmark/benchmark.h>

#include <array>
#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <string>
#include <vector>

#include <qz/common/uQzSysUtils/Strings.h>
#include <qz/common/uQzSysUtils/Tokenize.h>

namespace {

constexpr std::size_t cTotal = std::size_t{1} << 20;

// Words of AState.range(0) letters.
std::u16string Words(std::size_t ALength) {
    std::u16string Result;
    for (char16_t Letter = u'a'; Result.size() < cTotal; Letter = Letter == u'z' ? u'a' : Letter + 1)
        Result.append(ALength, Letter) += Letter % 3 == 0 ? u',' : u' ';
    return Result;
}

void SetBytes(benchmark::State& AState, std::size_t ALength) {
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(ALength * sizeof(char16_t)));
}

void BM_Tokenize_ours(benchmark::State& AState) {
    const qz::UnicodeString Text(Words(static_cast<std::size_t>(AState.range(0))));
    for (auto _ : AState) {
        qz::TStringList List;
        qz::QzTokenize(Text, List, u" ,;");
        benchmark::DoNotOptimize(List.Count());
    }
    SetBytes(AState, Text.size());
}
BENCHMARK(BM_Tokenize_ours)->Arg(4)->Arg(12)->Arg(40)->Unit(benchmark::kMillisecond);

void BM_Tokenize_boost(benchmark::State& AState) {
    const std::u16string Text = Words(static_cast<std::size_t>(AState.range(0)));
    const std::u16string Delimiters = u" ,;";
    for (auto _ : AState) {
        std::vector<std::u16string> List;
        boost::split(List, Text, boost::is_any_of(Delimiters), boost::token_compress_on);
        benchmark::DoNotOptimize(List.size());
    }
    SetBytes(AState, Text.size());
}
BENCHMARK(BM_Tokenize_boost)->Arg(4)->Arg(12)->Arg(40)->Unit(benchmark::kMillisecond);

// Ten pairs, half of which occur in the text.
template <class T> const std::array<T, 10>& Old() {
    static const std::array<T, 10> Result = {u"aaaa", u"cccc", u"eeee", u"gggg", u"iiii",
                                             u"xyxy", u"yzyz", u"q1q1", u"r2r2", u"s3s3"};
    return Result;
}
template <class T> const std::array<T, 10>& New() {
    static const std::array<T, 10> Result = {u"1",      u"22",   u"four", u"longer", u"<much longer>",
                                             u"absent", u"none", u"no",   u"never",  u"nothing"};
    return Result;
}

void BM_Replace_ours(benchmark::State& AState) {
    const qz::UnicodeString Text(Words(4).substr(0, static_cast<std::size_t>(AState.range(0))));
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::QzStringReplace(Text, Old<qz::UnicodeString>(), New<qz::UnicodeString>(),
                                                     {qz::rfReplaceAll}));
    SetBytes(AState, Text.size());
}
BENCHMARK(BM_Replace_ours)->Arg(20'000)->Arg(cTotal)->Unit(benchmark::kMicrosecond);

// Builds each result anew; a replace in place moves the rest of the text for every hit.
void BM_Replace_loop(benchmark::State& AState) {
    const std::u16string Text = Words(4).substr(0, static_cast<std::size_t>(AState.range(0)));
    for (auto _ : AState) {
        std::u16string Result = Text;
        for (std::size_t I = 0; I < Old<std::u16string>().size(); ++I) {
            const std::u16string& What = Old<std::u16string>()[I];
            std::u16string Next;
            std::size_t Done = 0;
            for (std::size_t At = Result.find(What); At != Result.npos; At = Result.find(What, Done)) {
                Next.append(Result, Done, At - Done) += New<std::u16string>()[I];
                Done = At + What.size();
            }
            if (Done != 0)
                Result = std::move(Next.append(Result, Done));
        }
        benchmark::DoNotOptimize(Result.data());
    }
    SetBytes(AState, Text.size());
}
BENCHMARK(BM_Replace_loop)->Arg(20'000)->Arg(cTotal)->Unit(benchmark::kMicrosecond);

// A short text, as most are: each replacement in place.
void BM_ReplaceShort_ours(benchmark::State& AState) {
    const qz::UnicodeString Text(Words(4).substr(0, 200));
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::QzStringReplace(Text, Old<qz::UnicodeString>(), New<qz::UnicodeString>(),
                                                     {qz::rfReplaceAll}));
}
BENCHMARK(BM_ReplaceShort_ours);

void BM_ReplaceShort_loop(benchmark::State& AState) {
    const std::u16string Text = Words(4).substr(0, 200);
    for (auto _ : AState) {
        std::u16string Result = Text;
        for (std::size_t I = 0; I < Old<std::u16string>().size(); ++I) {
            const std::u16string& What = Old<std::u16string>()[I];
            const std::u16string& By = New<std::u16string>()[I];
            for (std::size_t At = Result.find(What); At != Result.npos;
                 At = Result.find(What, At + By.size()))
                Result.replace(At, What.size(), By);
        }
        benchmark::DoNotOptimize(Result.data());
    }
}
BENCHMARK(BM_ReplaceShort_loop);

} // namespace

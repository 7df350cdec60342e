// Look-ups among 10,000 registered types, beside those of RTTR among 200: of one name again and again, of
// names all over the registry, and from eight threads.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <deque>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <rttr/type>

#include <qz/common/uQzTypes.h>
#include <qz/runtime/text/NumberText.h>

namespace {

using namespace qz;

constexpr std::size_t cTypes = 10000;
constexpr std::size_t cPeerTypes = 200;

struct TSample {
    TTypeInfo Info;
    UnicodeString Name, FullName, SchemaName;
};

// In an order that the processor cannot foresee.
const std::deque<TSample>& Samples() {
    static const auto* const Result = [] {
        auto* const Types = new std::deque<TSample>(cTypes);
        for (std::size_t Index = 0; Index < cTypes; ++Index) {
            TSample& Each = (*Types)[Index];
            const UnicodeString Number = IntToStr(static_cast<std::int64_t>(Index * 7919 % cTypes));
            Each.Name = u"TType" + Number;
            Each.FullName = u"uBench." + Each.Name;
            Each.SchemaName = u"uBench_Type" + Number;
            Each.Info = *TypeInfo<TGUID>();
            Each.Info.Unit = u"uBench";
            Each.Info.Name = Each.Name;
            TQzTypes::GetTypeInfo(&Each.Info);
        }
        return Types;
    }();
    return *Result;
}

template <std::size_t> struct TPeer {
    struct TType {};
};
template <std::size_t... Index> std::vector<std::string> PeerNames(std::index_sequence<Index...>) {
    return {rttr::type::get<typename TPeer<Index>::TType>().get_name().to_string()...};
}
const std::vector<std::string>& PeerNames() {
    static const auto Names = [] {
        auto Result = PeerNames(std::make_index_sequence<cPeerTypes>());
        std::shuffle(Result.begin(), Result.end(), std::minstd_rand(1));
        return Result;
    }();
    return Names;
}

// ALookUp of one sample, or with an argument of 1 of one after another.
template <class TSamples, class TLookUp>
void Run(benchmark::State& AState, const TSamples& ASamples, const TLookUp& ALookUp) {
    const auto Step = static_cast<std::size_t>(AState.range(0));
    std::size_t Index = 17;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(ALookUp(ASamples[Index]));
        Index = Index + Step == ASamples.size() ? 0 : Index + Step;
    }
}

void BM_TypeByHandle_ours(benchmark::State& AState) {
    Run(AState, Samples(), [](const TSample& AType) { return TQzTypes::GetTypeInfo(&AType.Info); });
}
void BM_TypeByFullName_ours(benchmark::State& AState) {
    Run(AState, Samples(),
        [](const TSample& AType) { return TQzTypes::GetTypeInfo(AType.FullName, tntQualifiedName); });
}
void BM_TypeByShortName_ours(benchmark::State& AState) {
    Run(AState, Samples(),
        [](const TSample& AType) { return TQzTypes::GetTypeInfo(AType.Name, tntTypeName); });
}
void BM_TypeBySchemaName_ours(benchmark::State& AState) {
    Run(AState, Samples(),
        [](const TSample& AType) { return TQzTypes::GetTypeInfo(AType.SchemaName, tntSchemaName); });
}
void BM_TypeByName_rttr(benchmark::State& AState) {
    Run(AState, PeerNames(), [](const std::string& AName) { return rttr::type::get_by_name(AName); });
}
void BM_TypeOfInt_ours(benchmark::State& AState) {
    const std::u16string Names[] = {u"int"};
    Samples();
    for (auto _ : AState)
        benchmark::DoNotOptimize(TQzTypes::GetTypeInfo(Names[0], tntSchemaName));
}

BENCHMARK(BM_TypeByHandle_ours)->Arg(0)->Arg(1)->Threads(1)->Threads(8);
BENCHMARK(BM_TypeByFullName_ours)->Arg(0)->Arg(1);
BENCHMARK(BM_TypeByShortName_ours)->Arg(0)->Arg(1);
BENCHMARK(BM_TypeBySchemaName_ours)->Arg(0)->Arg(1)->Threads(1)->Threads(8);
BENCHMARK(BM_TypeByName_rttr)->Arg(0)->Arg(1)->Threads(1)->Threads(8);
BENCHMARK(BM_TypeOfInt_ours);

} // namespace

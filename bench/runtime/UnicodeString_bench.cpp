// UnicodeString beside std::u16string, and its counted copy beside that of std::shared_ptr.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <qz/runtime/base/UnicodeString.h>

namespace {

void Copy(benchmark::State& AState) {
    const qz::UnicodeString Text = u"a text that several handles share";
    for (auto _ : AState) {
        qz::UnicodeString Same = Text;
        benchmark::DoNotOptimize(Same);
    }
}

void CopyPeer(benchmark::State& AState) {
    const auto Text = std::make_shared<const std::u16string>(u"a text that several handles share");
    for (auto _ : AState) {
        std::shared_ptr<const std::u16string> Same = Text;
        benchmark::DoNotOptimize(Same);
    }
}

template <class TText> void AppendCharacters(benchmark::State& AState) {
    for (auto _ : AState) {
        TText Text;
        for (int I = 0; I < AState.range(0); ++I)
            Text += static_cast<char16_t>(u'a' + I % 26);
        benchmark::DoNotOptimize(Text.data());
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

template <class TText> void AppendPieces(benchmark::State& AState) {
    const std::u16string_view Piece = u"seventeen letters";
    for (auto _ : AState) {
        TText Text;
        for (int I = 0; I < AState.range(0); ++I)
            Text += Piece;
        benchmark::DoNotOptimize(Text.data());
    }
    AState.SetItemsProcessed(AState.iterations() * AState.range(0));
}

template <class TText> void Concatenate(benchmark::State& AState) {
    const TText Name = u"the name of something";
    const TText Value = u"and the value of it";
    for (auto _ : AState) {
        TText Text = Name + u" = " + Value + u';';
        benchmark::DoNotOptimize(Text.data());
    }
}

void FromUtf8(benchmark::State& AState, std::string_view APiece) {
    std::string Narrow;
    while (Narrow.size() < 1000)
        Narrow += APiece;
    for (auto _ : AState) {
        qz::UnicodeString Text = Narrow;
        benchmark::DoNotOptimize(Text.data());
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(Narrow.size()));
}

void ToUtf8(benchmark::State& AState, std::string_view APiece) {
    qz::UnicodeString Text;
    while (Text.size() < 1000)
        Text += APiece;
    for (auto _ : AState) {
        std::string Narrow(Text);
        benchmark::DoNotOptimize(Narrow.data());
    }
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(2 * Text.size()));
}

BENCHMARK(Copy);
BENCHMARK(CopyPeer);
BENCHMARK_TEMPLATE(AppendCharacters, qz::UnicodeString)->Arg(16)->Arg(1000);
BENCHMARK_TEMPLATE(AppendCharacters, std::u16string)->Arg(16)->Arg(1000);
BENCHMARK_TEMPLATE(AppendPieces, qz::UnicodeString)->Arg(10)->Arg(1000);
BENCHMARK_TEMPLATE(AppendPieces, std::u16string)->Arg(10)->Arg(1000);
BENCHMARK_TEMPLATE(Concatenate, qz::UnicodeString);
BENCHMARK_TEMPLATE(Concatenate, std::u16string);
BENCHMARK_CAPTURE(FromUtf8, Ascii, "plain letters only, ");
BENCHMARK_CAPTURE(FromUtf8, German,
                  "gr\xC3\xB6\xC3\x9F"
                  "te \xC3\x9C"
                  "bung, ");
BENCHMARK_CAPTURE(FromUtf8, Chinese, "\xE6\x96\x87\xE5\xAD\x97");
BENCHMARK_CAPTURE(ToUtf8, Ascii, "plain letters only, ");
BENCHMARK_CAPTURE(ToUtf8, Chinese, "\xE6\x96\x87\xE5\xAD\x97");

} // namespace

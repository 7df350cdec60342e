// Streams in memory beside what a user would write by hand: many small writes beside std::vector growing by
// the same step, and texts written into a UTF-8 stream beside ICU's conversion appended to a std::string.
#include <benchmark/benchmark.h>
#include <unicode/ustring.h>

#include <array>
#include <string>
#include <vector>

#include <qz/common/uQzClasses/QzStringStream.h>

namespace {

constexpr std::size_t cTotal = std::size_t{16} << 20;
constexpr std::size_t cStep = std::size_t{64} << 10;
constexpr std::size_t cPiece = 64;

void BM_AppendSmallPieces_ours(benchmark::State& AState) {
    const std::string Piece(cPiece, 'x');
    for (auto _ : AState) {
        qz::TQzMemoryStream Stream(cStep);
        for (std::size_t Done = 0; Done < cTotal; Done += cPiece)
            Stream.Write(Piece.data(), cPiece);
        benchmark::DoNotOptimize(Stream.FBufferStart);
    }
    AState.SetBytesProcessed(static_cast<std::int64_t>(cTotal) * AState.iterations());
}
BENCHMARK(BM_AppendSmallPieces_ours)->Unit(benchmark::kMillisecond);

void BM_AppendSmallPieces_vector(benchmark::State& AState) {
    const std::string Piece(cPiece, 'x');
    for (auto _ : AState) {
        std::vector<char> Bytes;
        for (std::size_t Done = 0; Done < cTotal; Done += cPiece) {
            if (Bytes.size() + cPiece > Bytes.capacity())
                Bytes.reserve(Bytes.size() + cStep);
            Bytes.insert(Bytes.end(), Piece.begin(), Piece.end());
        }
        benchmark::DoNotOptimize(Bytes.data());
    }
    AState.SetBytesProcessed(static_cast<std::int64_t>(cTotal) * AState.iterations());
}
BENCHMARK(BM_AppendSmallPieces_vector)->Unit(benchmark::kMillisecond);

// 80 characters each.
const std::array<qz::UnicodeString, 3> cTexts = {
    qz::UnicodeString(u"2026-11-22 10:00:00 INFO  connection to database closed after 12 queries, 3 rows"),
    qz::UnicodeString(u"2026-11-22 10:00:00 Größenänderung für den Übertragungspuffer nötig, außerplanmäß"),
    qz::UnicodeString(u"2026-11-22 10:00:00 Соединение с базой данных закрыто после двенадцати запросов!"),
};
constexpr int cWrites = 1000;

void BM_WriteTexts_ours(benchmark::State& AState) {
    const qz::UnicodeString& Text = cTexts[static_cast<std::size_t>(AState.range(0))];
    for (auto _ : AState) {
        qz::TQzStringStream Stream(65001, cStep);
        for (int I = 0; I < cWrites; ++I)
            Stream.Write(Text);
        benchmark::DoNotOptimize(Stream.FContentSize);
    }
    AState.SetItemsProcessed(AState.iterations() * cWrites);
}
BENCHMARK(BM_WriteTexts_ours)->DenseRange(0, 2);

void BM_WriteTexts_icu(benchmark::State& AState) {
    const qz::UnicodeString& Text = cTexts[static_cast<std::size_t>(AState.range(0))];
    for (auto _ : AState) {
        std::string Bytes;
        Bytes.reserve(cStep);
        std::array<char, 512> Buffer;
        for (int I = 0; I < cWrites; ++I) {
            std::int32_t Length = 0;
            UErrorCode Status = U_ZERO_ERROR;
            u_strToUTF8(Buffer.data(), Buffer.size(), &Length, Text.data(), Text.Length(), &Status);
            Bytes.append(Buffer.data(), static_cast<std::size_t>(Length));
        }
        benchmark::DoNotOptimize(Bytes.data());
    }
    AState.SetItemsProcessed(AState.iterations() * cWrites);
}
BENCHMARK(BM_WriteTexts_icu)->DenseRange(0, 2);

} // namespace

// Compression, UU text, percent-encoding and distinguished names. The peer of compression is zlib itself over
// the same blocks.
#include <benchmark/benchmark.h>
#include <zlib.h>

#include <memory>
#include <string>
#include <vector>

#include <qz/common/uQzClasses/DistinguishedName.h>
#include <qz/common/uQzNetEncoding/UrlEncoding.h>
#include <qz/common/uQzUUCode.h>
#include <qz/common/uQzZLib.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace {

constexpr uInt cBlock = 64 << 10;

void CountBytes(benchmark::State& AState, std::size_t ASize) {
    AState.SetBytesProcessed(AState.iterations() * static_cast<std::int64_t>(ASize));
}

const std::string& Text() {
    static std::string Result;
    for (unsigned Number = 1; Result.size() < (4 << 20); Number = Number * 1664525 + 1013904223)
        Result += "2026-11-24 connection " + std::to_string(Number >> 20) + " closed; " +
            std::to_string(Number % 977) + " queries\r\n";
    return Result;
}

void Fill(qz::TStream& AStream, std::string_view ABytes) {
    AStream.SetPosition(0);
    AStream.WriteBuffer(ABytes.data(), static_cast<std::int64_t>(ABytes.size()));
    AStream.SetPosition(0);
}

std::string Packed() {
    std::string Result(compressBound(Text().size()), '\0');
    uLongf Size = Result.size();
    compress(reinterpret_cast<Bytef*>(Result.data()), &Size, reinterpret_cast<const Bytef*>(Text().data()),
             Text().size());
    Result.resize(Size);
    return Result;
}

void BM_Compress_ours(benchmark::State& AState) {
    qz::TMemoryStream Source, Target;
    Fill(Source, Text());
    for (auto _ : AState) {
        Target.SetPosition(0);
        qz::ZlCompressStream(Source, Target, qz::clDefault, true);
    }
    CountBytes(AState, Text().size());
}

void BM_Compress_zlib(benchmark::State& AState) {
    qz::TMemoryStream Target;
    const auto Block = std::make_unique<Bytef[]>(cBlock);
    for (auto _ : AState) {
        Target.SetPosition(0);
        z_stream State{};
        deflateInit(&State, Z_DEFAULT_COMPRESSION);
        State.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(Text().data()));
        State.avail_in = static_cast<uInt>(Text().size());
        for (int Code = Z_OK; Code != Z_STREAM_END;) {
            State.next_out = Block.get();
            State.avail_out = cBlock;
            Code = deflate(&State, Z_FINISH);
            Target.WriteBuffer(Block.get(), std::int64_t{cBlock - State.avail_out});
        }
        deflateEnd(&State);
    }
    CountBytes(AState, Text().size());
}

void BM_Decompress_ours(benchmark::State& AState) {
    qz::TMemoryStream Source, Target;
    Fill(Source, Packed());
    for (auto _ : AState) {
        Target.SetPosition(0);
        qz::ZlDecompressStream(Source, Target, true);
    }
    CountBytes(AState, Text().size());
}

void BM_Decompress_zlib(benchmark::State& AState) {
    std::string Source = Packed();
    qz::TMemoryStream Target;
    const auto Block = std::make_unique<Bytef[]>(cBlock);
    for (auto _ : AState) {
        Target.SetPosition(0);
        z_stream State{};
        State.next_in = reinterpret_cast<Bytef*>(Source.data());
        State.avail_in = static_cast<uInt>(Source.size());
        inflateInit(&State);
        for (int Code = Z_OK; Code != Z_STREAM_END;) {
            State.next_out = Block.get();
            State.avail_out = cBlock;
            Code = inflate(&State, Z_NO_FLUSH);
            Target.WriteBuffer(Block.get(), std::int64_t{cBlock - State.avail_out});
        }
        inflateEnd(&State);
    }
    CountBytes(AState, Text().size());
}

void BM_UUEncode(benchmark::State& AState) {
    qz::TMemoryStream Source, Target;
    Fill(Source, Text());
    for (auto _ : AState) {
        Source.SetPosition(0);
        Target.SetPosition(0);
        qz::QzUUEncode(Source, Target, u"name", 644);
    }
    CountBytes(AState, Text().size());
}

void BM_UUDecode_Stream(benchmark::State& AState) {
    qz::TMemoryStream Source, Target;
    Fill(Source, qz::QzUUEncode(qz::AnsiString(Text()), u"name", 644).View());
    for (auto _ : AState) {
        Source.SetPosition(0);
        Target.SetPosition(0);
        qz::QzUUDecode(Source, Target);
    }
    CountBytes(AState, Text().size());
}

void BM_UUDecode_Lines(benchmark::State& AState) {
    qz::TMemoryStream Target;
    qz::TStringList Lines;
    Lines.SetText(qz::QzUUEncode(qz::AnsiString(Text()), u"name", 644).View());
    for (auto _ : AState) {
        Target.SetPosition(0);
        qz::QzUUDecode(Lines, Target);
    }
    CountBytes(AState, Text().size());
}

// Words of plain characters with a blank or another unsafe character after each 40; sizes are of the text.
qz::UnicodeString PlainText(std::size_t ASize) {
    std::string Result;
    while (Result.size() < ASize)
        Result +=
            "mostly-plain.text_that-goes.into_an-URL~" + std::string(Result.size() % 3 == 0 ? "&" : " ");
    return Result;
}

void BM_PercentEncode(benchmark::State& AState) {
    const qz::UnicodeString Plain = PlainText(static_cast<std::size_t>(AState.range(0)));
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::TURLEncoding().Encode(Plain));
    CountBytes(AState, Plain.size());
}

void BM_PercentDecode(benchmark::State& AState) {
    const qz::UnicodeString Plain =
        qz::TURLEncoding().Encode(PlainText(static_cast<std::size_t>(AState.range(0))));
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::TURLEncoding().Decode(Plain));
    CountBytes(AState, Plain.size());
}

constexpr std::u16string_view cName = u"CN=Anna Schmidt,OU=Sales,O=Smith\\, Jones and Sons,L=Berlin,C=DE";

void BM_DistinguishedName_Parse(benchmark::State& AState) {
    for (auto _ : AState)
        benchmark::DoNotOptimize(qz::TQzDN(cName));
}

void BM_DistinguishedName_Write(benchmark::State& AState) {
    const qz::TQzDN Name = cName;
    for (auto _ : AState)
        benchmark::DoNotOptimize(static_cast<qz::UnicodeString>(Name));
}

void BM_DistinguishedName_EqualInAnotherOrder(benchmark::State& AState) {
    const qz::TQzDN Name = cName;
    const qz::TQzDN Other = u"c=de,l=berlin,o=SMITH\\, JONES AND SONS,ou=sales,cn=ANNA SCHMIDT";
    for (auto _ : AState)
        benchmark::DoNotOptimize(Name == Other);
}

BENCHMARK(BM_Compress_ours)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Compress_zlib)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Decompress_ours)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Decompress_zlib)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UUEncode);
BENCHMARK(BM_UUDecode_Stream);
BENCHMARK(BM_UUDecode_Lines);
BENCHMARK(BM_PercentEncode)->Arg(60)->Arg(1 << 20);
BENCHMARK(BM_PercentDecode)->Arg(60)->Arg(1 << 20);
BENCHMARK(BM_DistinguishedName_Parse);
BENCHMARK(BM_DistinguishedName_Write);
BENCHMARK(BM_DistinguishedName_EqualInAnotherOrder);

} // namespace

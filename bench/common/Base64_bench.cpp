// Base64 and hexadecimal text beside OpenSSL's EVP_EncodeBlock and EVP_DecodeBlock, from block to block.
// Speeds are of bytes, not of characters. EVP_DecodeBlock refuses line breaks, so that its text has none. The
// class is measured with the array that it makes.
#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <random>
#include <string>
#include <vector>

#include <qz/common/uQzNetEncoding.h>
#include <qz/runtime/text/BinaryText.h>

namespace {

using TData = std::vector<std::uint8_t>;

TData Random(std::size_t ASize) {
    TData Result(ASize);
    std::mt19937 Source(1);
    for (std::uint8_t& Each : Result)
        Each = static_cast<std::uint8_t>(Source());
    return Result;
}

std::string Base64Of(const TData& AData) {
    std::string Result(qz::Base64Length(AData.size(), qz::TBase64Alphabet::Standard), '\0');
    qz::BytesToBase64(std::as_bytes(std::span(AData)), qz::TBase64Alphabet::Standard, Result.data());
    return Result;
}

std::string InLines(const std::string& AText) {
    std::string Result;
    for (std::size_t I = 0; I < AText.size(); I += 76)
        Result += AText.substr(I, 76) + "\r\n";
    return Result;
}

void CountBytes(benchmark::State& AState) {
    AState.SetBytesProcessed(AState.range(0) * AState.iterations());
}

std::size_t Size(const benchmark::State& AState) {
    return static_cast<std::size_t>(AState.range(0));
}

void Sizes(benchmark::internal::Benchmark* ABenchmark) {
    for (const std::int64_t Each : {1, 3, 16, 57, 1000, 1 << 20})
        ABenchmark->Arg(Each);
}

void BM_Base64Encode_ours(benchmark::State& AState) {
    const TData Data = Random(Size(AState));
    std::string Text = Base64Of(Data);
    for (auto _ : AState) {
        const auto Bytes = std::as_bytes(std::span(Data));
        benchmark::DoNotOptimize(qz::BytesToBase64(Bytes, qz::TBase64Alphabet::Standard, Text.data()));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}
BENCHMARK(BM_Base64Encode_ours)->Apply(Sizes);

void BM_Base64Encode_openssl(benchmark::State& AState) {
    const TData Data = Random(Size(AState));
    std::vector<unsigned char> Text(Base64Of(Data).size() + 1);
    for (auto _ : AState) {
        benchmark::DoNotOptimize(EVP_EncodeBlock(Text.data(), Data.data(), static_cast<int>(Data.size())));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}
BENCHMARK(BM_Base64Encode_openssl)->Apply(Sizes);

void Decode(benchmark::State& AState, const std::string& AText) {
    std::vector<std::byte> Bytes(qz::Base64Room(AText.size()));
    for (auto _ : AState) {
        benchmark::DoNotOptimize(qz::Base64ToBytes(AText, Bytes.data()));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}

void BM_Base64Decode_ours(benchmark::State& AState) {
    Decode(AState, Base64Of(Random(Size(AState))));
}
BENCHMARK(BM_Base64Decode_ours)->Apply(Sizes);

void BM_Base64Decode_openssl(benchmark::State& AState) {
    const std::string Text = Base64Of(Random(Size(AState)));
    std::vector<unsigned char> Bytes(Text.size());
    for (auto _ : AState) {
        benchmark::DoNotOptimize(EVP_DecodeBlock(Bytes.data(),
                                                 reinterpret_cast<const unsigned char*>(Text.data()),
                                                 static_cast<int>(Text.size())));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}
BENCHMARK(BM_Base64Decode_openssl)->Apply(Sizes);

void BM_Base64DecodeLines_ours(benchmark::State& AState) {
    Decode(AState, InLines(Base64Of(Random(Size(AState)))));
}
BENCHMARK(BM_Base64DecodeLines_ours)->Arg(1000)->Arg(1 << 20);

void BM_HexEncode_ours(benchmark::State& AState) {
    const TData Data = Random(Size(AState));
    std::string Text(2 * Data.size(), '\0');
    for (auto _ : AState) {
        benchmark::DoNotOptimize(qz::BytesToHex(std::as_bytes(std::span(Data)), Text.data()));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}
BENCHMARK(BM_HexEncode_ours)->Apply(Sizes);

void BM_HexDecode_ours(benchmark::State& AState) {
    const TData Data = Random(Size(AState));
    std::string Text(2 * Data.size(), '\0');
    std::vector<std::byte> Bytes(Data.size());
    qz::BytesToHex(std::as_bytes(std::span(Data)), Text.data());
    for (auto _ : AState) {
        benchmark::DoNotOptimize(qz::HexToBytes(Text, Bytes.data()));
        benchmark::ClobberMemory();
    }
    CountBytes(AState);
}
BENCHMARK(BM_HexDecode_ours)->Apply(Sizes);

} // namespace

// SHA-1 and MD5 beside OpenSSL: EVP_Q_digest, which fetches the algorithm at each call, the functions SHA1
// and MD5 for one message, and the three calls of the low-level interface on a context on the stack, which
// are its fastest way.
#define OPENSSL_SUPPRESS_DEPRECATED

#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <openssl/md5.h>
#include <openssl/sha.h>

#include <vector>

#include <qz/common/uQzMD5.h>
#include <qz/common/uQzSha1.h>

namespace {

template <class TDigest> void Measure(benchmark::State& AState, TDigest ADigest) {
    const std::vector<unsigned char> Data(static_cast<std::size_t>(AState.range(0)), 'x');
    for (auto _ : AState)
        ADigest(Data.data(), Data.size());
    AState.SetBytesProcessed(AState.range(0) * AState.iterations());
}

void Sizes(benchmark::internal::Benchmark* ABenchmark) {
    for (const std::int64_t Each : {20, 55, 64, 100, 1000, 1 << 20})
        ABenchmark->Arg(Each);
}

void BM_Sha1_ours(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        benchmark::DoNotOptimize(qz::QzHashBuffer(AData, static_cast<std::int32_t>(ASize)));
    });
}
BENCHMARK(BM_Sha1_ours)->Apply(Sizes);

void BM_Sha1_openssl_low(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[SHA_DIGEST_LENGTH];
        SHA_CTX Context;
        SHA1_Init(&Context);
        SHA1_Update(&Context, AData, ASize);
        benchmark::DoNotOptimize(SHA1_Final(Digest, &Context));
    });
}
BENCHMARK(BM_Sha1_openssl_low)->Apply(Sizes);

void BM_Sha1_openssl_once(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[SHA_DIGEST_LENGTH];
        benchmark::DoNotOptimize(SHA1(AData, ASize, Digest));
    });
}
BENCHMARK(BM_Sha1_openssl_once)->Apply(Sizes);

void BM_Sha1_openssl_evp(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[SHA_DIGEST_LENGTH];
        benchmark::DoNotOptimize(EVP_Q_digest(nullptr, "SHA1", nullptr, AData, ASize, Digest, nullptr));
    });
}
BENCHMARK(BM_Sha1_openssl_evp)->Apply(Sizes);

void BM_MD5_ours(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        benchmark::DoNotOptimize(qz::MD5Hash(AData, static_cast<std::int32_t>(ASize)));
    });
}
BENCHMARK(BM_MD5_ours)->Apply(Sizes);

void BM_MD5_openssl_low(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[MD5_DIGEST_LENGTH];
        MD5_CTX Context;
        MD5_Init(&Context);
        MD5_Update(&Context, AData, ASize);
        benchmark::DoNotOptimize(MD5_Final(Digest, &Context));
    });
}
BENCHMARK(BM_MD5_openssl_low)->Apply(Sizes);

void BM_MD5_openssl_once(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[MD5_DIGEST_LENGTH];
        benchmark::DoNotOptimize(MD5(AData, ASize, Digest));
    });
}
BENCHMARK(BM_MD5_openssl_once)->Apply(Sizes);

void BM_MD5_openssl_evp(benchmark::State& AState) {
    Measure(AState, [](const unsigned char* AData, std::size_t ASize) {
        unsigned char Digest[MD5_DIGEST_LENGTH];
        benchmark::DoNotOptimize(EVP_Q_digest(nullptr, "MD5", nullptr, AData, ASize, Digest, nullptr));
    });
}
BENCHMARK(BM_MD5_openssl_evp)->Apply(Sizes);

} // namespace

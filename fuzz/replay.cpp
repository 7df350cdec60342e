// Runs a fuzz target without a fuzzer: replay_NAME CORPUS_FOLDER Every file of the folder (which need not
// exist) is an input, and so are a fixed number of inputs made from a fixed seed: noise, text from a small
// alphabet, and files of the folder with a few bytes changed.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize);

namespace {

using TInput = std::vector<std::uint8_t>;

constexpr int cGeneratedInputs = 3000;
constexpr std::size_t cLongestInput = 512;

std::vector<TInput> ReadCorpus(const std::filesystem::path& AFolder) {
    std::vector<TInput> Result;
    std::error_code Missing;
    for (const auto& Entry : std::filesystem::directory_iterator(AFolder, Missing)) {
        std::ifstream File(Entry.path(), std::ios::binary);
        Result.emplace_back(std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>());
    }
    return Result;
}

class TGenerator {
public:
    explicit TGenerator(const std::vector<TInput>& ACorpus) : FCorpus(ACorpus) {}

    TInput Next() {
        switch (Below(3)) {
        case 0: return Noise();
        case 1: return Text();
        default: return FCorpus.empty() ? Noise() : Changed(FCorpus[Below(FCorpus.size())]);
        }
    }

private:
    std::size_t Below(std::size_t ABound) { return static_cast<std::size_t>(FRandom() % ABound); }

    TInput Noise() {
        TInput Result(Below(Below(cLongestInput) + 1));
        for (auto& Byte : Result)
            Byte = static_cast<std::uint8_t>(Below(256));
        return Result;
    }

    TInput Text() {
        constexpr std::string_view cAlphabet =
            "aZ09 .,:;-+*?%$#&<>()[]{}|\\/'\"\t\r\n=_\xC3\xA4\xF0\x9F\x98\x80";
        TInput Result = Noise();
        for (auto& Byte : Result)
            Byte = static_cast<std::uint8_t>(cAlphabet[Byte % cAlphabet.size()]);
        return Result;
    }

    TInput Changed(TInput AInput) {
        for (std::size_t Count = Below(4) + 1; Count > 0 && !AInput.empty(); --Count) {
            const std::size_t Index = Below(AInput.size());
            switch (Below(3)) {
            case 0: AInput[Index] = static_cast<std::uint8_t>(Below(256)); break;
            case 1: AInput.resize(Index); break;
            default: AInput.insert(AInput.begin(), AInput[Index]); break;
            }
        }
        return AInput;
    }

    const std::vector<TInput>& FCorpus;
    std::mt19937_64 FRandom{20260101};
};

void Run(const TInput& AInput) {
    static constexpr std::uint8_t cNothing = 0;
    LLVMFuzzerTestOneInput(AInput.empty() ? &cNothing : AInput.data(), AInput.size());
}

} // namespace

int main(int ArgumentCount, char** Arguments) {
    if (ArgumentCount != 2) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER\n", Arguments[0]);
        return 2;
    }
    const std::vector<TInput> Corpus = ReadCorpus(Arguments[1]);
    for (const TInput& Input : Corpus)
        Run(Input);
    TGenerator Generator(Corpus);
    for (int Count = 0; Count < cGeneratedInputs; ++Count)
        Run(Generator.Next());
    std::printf("%zu inputs of the corpus and %d generated ones replayed\n", Corpus.size(), cGeneratedInputs);
    return 0;
}

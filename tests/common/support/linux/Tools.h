// Programs of the machine as oracles.
#pragma once

#include <cstdlib>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/runtime/streams/Streams.h>

// Skips the test on a machine that lacks the program.
#define QZ_NEED_TOOL(ATool)                                       \
    if (std::system("command -v " ATool " >/dev/null 2>&1") != 0) \
    GTEST_SKIP() << ATool " is not installed"

namespace qz {

// A directory in which a shell runs, with random files of many lengths: in0, in1, in2 ...
class TToolFiles {
public:
    static constexpr std::size_t cSizes[] = {0,  1,  2,  3,  4,    44,    45,    46,
                                             47, 89, 90, 91, 1000, 46080, 46081, 300'000};

    TToolFiles() {
        std::mt19937 Random(11);
        for (std::size_t I = 0; I < std::size(cSizes); ++I) {
            std::string Bytes(cSizes[I], '\0');
            for (char& Byte : Bytes)
                Byte = static_cast<char>(I % 2 == 0 ? Random() : Random() % 4);
            Save("in", I, Bytes);
        }
    }
    UnicodeString Path(std::string_view AName, std::size_t AIndex) const {
        return FDirectory / UnicodeString(std::string(AName) + std::to_string(AIndex)).View();
    }
    std::string Load(std::string_view AName, std::size_t AIndex) const {
        TMemoryStream File;
        File.LoadFromFile(Path(AName, AIndex));
        return {static_cast<const char*>(File.Memory()), File.Content().size()};
    }
    void Save(std::string_view AName, std::size_t AIndex, std::string_view ABytes) const {
        TFileStream(Path(AName, AIndex), fmCreate)
            .WriteBuffer(ABytes.data(), static_cast<std::int64_t>(ABytes.size()));
    }
    void Run(const std::string& ACommand) const {
        EXPECT_EQ(
            std::system(("cd " + std::string(UnicodeString(FDirectory.Path())) + " && " + ACommand).c_str()),
            0);
    }

private:
    platform::TTemporaryDirectory FDirectory;
};

} // namespace qz

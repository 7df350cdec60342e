// Every way of converting that this machine can go, beside plain bit arithmetic. Sources are of their exact
// size, so that a sanitizer sees a read beyond them; targets have a canary after the room that the contract
// asks for.
#include <qz/runtime/text/detail/BinaryPaths.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace qz {
namespace {

using detail::TBinaryPath;

// The alphabets of RFC 4648.
constexpr std::string_view cAlphabets[] = {
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/",
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_"};

// What AWrite(target) gives in ARoom bytes.
template <class T, class TWrite> std::string Written(std::size_t ARoom, TWrite AWrite) {
    std::vector<T> Target(ARoom + 40, static_cast<T>(0x5A));
    const auto Count = static_cast<std::size_t>(AWrite(Target.data()) - Target.data());
    EXPECT_LE(Count, ARoom);
    EXPECT_EQ(std::count(Target.end() - 40, Target.end(), static_cast<T>(0x5A)), 40) << "beyond " << ARoom;
    return {reinterpret_cast<const char*>(Target.data()), Count};
}

// The definition of RFC 4648 as a string of bits.
std::string Bits(std::string_view ABytes) {
    std::string Result;
    for (const char Byte : ABytes)
        for (int I = 7; I >= 0; --I)
            Result += static_cast<char>('0' + (Byte >> I & 1));
    return Result;
}

std::string ReferenceBase64(std::string_view ABytes, TBase64Alphabet AAlphabet) {
    std::string All = Bits(ABytes), Result;
    All.resize((All.size() + 5) / 6 * 6, '0');
    for (std::size_t I = 0; I < All.size(); I += 6)
        Result += cAlphabets[static_cast<std::size_t>(AAlphabet)][std::stoul(All.substr(I, 6), nullptr, 2)];
    if (AAlphabet == TBase64Alphabet::Standard)
        Result.resize((Result.size() + 3) / 4 * 4, '=');
    return Result;
}

std::string ReferenceBytes(std::string_view AText) {
    std::string All, Result;
    for (const char Char : AText) {
        const std::size_t Value = std::min(cAlphabets[0].find(Char), cAlphabets[1].find(Char));
        if (Value != std::string_view::npos)
            All += Bits(std::string(1, static_cast<char>(Value))).substr(2);
    }
    for (std::size_t I = 0; I + 8 <= All.size(); I += 8)
        Result += static_cast<char>(std::stoul(All.substr(I, 8), nullptr, 2));
    return Result;
}

std::span<const std::byte> BytesOf(const std::vector<char>& AText) {
    return std::as_bytes(std::span(AText));
}

class BinaryPaths : public testing::Test {
protected:
    std::string Random(std::size_t ALength) {
        std::string Result(ALength, '\0');
        for (char& Each : Result)
            Each = static_cast<char>(FRandom());
        return Result;
    }

    static void CheckDecoding(std::string_view AText) {
        const std::vector<char> Exact(AText.begin(), AText.end());
        const std::string Expected = ReferenceBytes(AText);
        for (const TBinaryPath* Path : detail::BinaryPaths())
            ASSERT_EQ(Written<std::byte>(Base64Room(AText.size()),
                                         [&](std::byte* ATo) {
                                             return Path->Base64ToBytes({Exact.data(), Exact.size()}, ATo);
                                         }),
                      Expected)
                << Path->Name << ": " << testing::PrintToString(AText);
    }

    std::mt19937 FRandom{20260101};
};

TEST_F(BinaryPaths, Base64OfEachLength) {
    for (std::size_t Length = 0; Length < 200; ++Length) {
        const std::string Text = Random(Length);
        const std::vector<char> Exact(Text.begin(), Text.end());
        for (const auto Alphabet : {TBase64Alphabet::Standard, TBase64Alphabet::Url}) {
            const std::string Expected = ReferenceBase64(Text, Alphabet);
            ASSERT_EQ(Base64Length(Length, Alphabet), Expected.size());
            for (const TBinaryPath* Path : detail::BinaryPaths()) {
                const auto Write = [&](char* ATo) {
                    return Path->BytesToBase64(BytesOf(Exact), Alphabet, ATo);
                };
                ASSERT_EQ(Written<char>(Expected.size(), Write), Expected) << Path->Name << ", " << Length;
            }
            CheckDecoding(Expected);
        }
    }
}

// Each byte at each place of a vector, and more of them at random.
TEST_F(BinaryPaths, Base64SkipsWhatIsNotInTheAlphabet) {
    const std::string Clean = ReferenceBase64(Random(150), TBase64Alphabet::Standard);
    for (int Byte = 0; Byte < 256; ++Byte) {
        std::string Text = Clean;
        for (std::size_t Place = 0; Place < 70; ++Place) {
            Text[Place] = static_cast<char>(Byte);
            CheckDecoding(Text);
            Text[Place] = Clean[Place];
        }
    }
    // Characters before a byte that fills the last group, whose lowest bits are not 0.
    for (std::size_t Length = 1; Length < 100; ++Length)
        for (const char* Filler : {"=", "==", "\x82", "z\x82", "===", "=z"})
            CheckDecoding(std::string(Length, '/') + Filler);
    for (int Round = 0; Round < 3000; ++Round) {
        std::string Text = Clean.substr(0, FRandom() % Clean.size());
        for (std::size_t Count = FRandom() % 8; Count > 0; --Count)
            Text.insert(FRandom() % (Text.size() + 1), FRandom() % 4 + 1, " \r\n=*\x80\xFF"[FRandom() % 7]);
        CheckDecoding(Text);
    }
}

TEST_F(BinaryPaths, HexOfEachLengthAndWithAnyCharacter) {
    for (std::size_t Length = 0; Length < 150; ++Length) {
        const std::string Text = Random(Length);
        const std::vector<char> Exact(Text.begin(), Text.end());
        std::string Digits, Decoded;
        for (const char Byte : Text) {
            Digits += "0123456789ABCDEF"[Byte >> 4 & 0xF];
            Digits += "0123456789ABCDEF"[Byte & 0xF];
        }
        const auto Value = [](char ADigit) {
            const std::size_t Place = std::string_view("0123456789abcdef0123456789ABCDEF").find(ADigit);
            return Place == std::string_view::npos ? 0 : static_cast<int>(Place % 16);
        };
        for (std::size_t I = 0; I + 1 < Length; I += 2)
            Decoded += static_cast<char>(16 * Value(Text[I]) + Value(Text[I + 1]));
        for (const TBinaryPath* Path : detail::BinaryPaths()) {
            SCOPED_TRACE(Path->Name);
            const auto Encode = [&](char* ATo) { return Path->BytesToHex(BytesOf(Exact), ATo); };
            ASSERT_EQ(Written<char>(2 * Length, Encode), Digits);
            const auto Decode = [&](const auto& AText) {
                return Written<std::byte>(AText.size() / 2, [&](std::byte* ATo) {
                    return Path->HexToBytes({AText.data(), AText.size()}, ATo);
                });
            };
            ASSERT_EQ(Decode(Exact), Decoded);
            ASSERT_EQ(Decode(std::vector<char>(Digits.begin(), Digits.end())), Text);
        }
    }
}

} // namespace
} // namespace qz

// Every way of converting that this machine can go, beside a plain decoder. Sources are of their exact size,
// so that a sanitizer sees a read beyond them; targets have a canary behind what is promised to be enough.
#include <qz/runtime/base/detail/UtfPaths.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "tests/runtime/base/UtfReference.h"

namespace qz {
namespace {

using detail::TUtfPath;
constexpr std::endian cOrders[] = {std::endian::little, std::endian::big};

// A copy that ends where its block of memory does, AShift units after an aligned address.
template <class T> class TExactCopy {
public:
    TExactCopy(std::basic_string_view<T> AText, std::size_t AShift)
        : FUnits(AShift + AText.size()),
          FShift(AShift) {
        std::copy(AText.begin(), AText.end(), FUnits.begin() + static_cast<std::ptrdiff_t>(AShift));
    }
    std::basic_string_view<T> View() const { return {FUnits.data() + FShift, FUnits.size() - FShift}; }
    std::span<const std::byte> Bytes() const { return std::as_bytes(std::span(View())); }

private:
    std::vector<T> FUnits;
    std::size_t FShift;
};

// What AWrite(target) gives, which is to have ALength units.
template <class T, class TWrite> std::basic_string<T> Written(std::size_t ALength, TWrite AWrite) {
    constexpr T cCanary = static_cast<T>(0x5A);
    std::vector<T> Target(ALength + 40, cCanary);
    const T* End = AWrite(Target.data());
    EXPECT_EQ(End - Target.data(), static_cast<std::ptrdiff_t>(ALength));
    EXPECT_EQ(std::count(Target.end() - 40, Target.end(), cCanary), 40) << "written beyond " << ALength;
    Target.resize(ALength);
    return {Target.begin(), Target.end()};
}

void CheckUtf8(std::string_view AText, std::size_t AShift = 0) {
    const TExactCopy<char> Copy(AText, AShift);
    const std::string_view Text = Copy.View();
    bool IsValid = false;
    const std::u16string Expected = reference::ToUtf16(reference::FromUtf8(AText, IsValid));
    const auto First =
        std::find_if(AText.begin(), AText.end(), [](char AByte) { return (AByte & 0x80) != 0; });
    for (const TUtfPath* Path : detail::UtfPaths()) {
        const std::size_t Length = Path->Utf8ToUtf16Length(Text);
        const bool IsRight = Length == Expected.size() && Path->IsValidUtf8(Text) == IsValid &&
            Path->AsciiBytes(Text) == static_cast<std::size_t>(First - AText.begin()) &&
            Written<char16_t>(Length, [&](char16_t* ATo) { return Path->Utf8ToUtf16(Text, ATo); }) ==
                Expected;
        ASSERT_TRUE(IsRight) << Path->Name << ", shift " << AShift << ": " << testing::PrintToString(Text);
    }
}

void CheckUtf32(std::string_view ABytes, std::size_t AShift) {
    const TExactCopy<char> Copy(ABytes, AShift);
    for (const std::endian Order : cOrders) {
        bool IsValid = false;
        const std::u16string Expected = reference::ToUtf16(reference::FromUtf32(ABytes, Order, IsValid));
        for (const TUtfPath* Path : detail::UtfPaths()) {
            const std::size_t Length = Path->Utf32ToUtf16Length(Copy.Bytes(), Order);
            const auto Write = [&](char16_t* ATo) { return Path->Utf32ToUtf16(Copy.Bytes(), Order, ATo); };
            ASSERT_TRUE(Length == Expected.size() && Path->IsValidUtf32(Copy.Bytes(), Order) == IsValid &&
                        Written<char16_t>(Length, Write) == Expected)
                << Path->Name << ", shift " << AShift << ": " << testing::PrintToString(ABytes);
        }
    }
}

void CheckUtf16(std::u16string_view AText, std::size_t AShift = 0) {
    const TExactCopy<char16_t> Copy(AText, AShift);
    const std::u16string_view Text = Copy.View();
    bool IsValid = false;
    const std::u32string Codes = reference::FromUtf16(AText, IsValid);
    const std::string Expected = reference::ToUtf8(Codes);
    for (const TUtfPath* Path : detail::UtfPaths()) {
        const std::size_t Length = Path->Utf16ToUtf8Length(Text);
        const bool IsRight = Length == Expected.size() && Path->IsValidUtf16(Text) == IsValid &&
            Path->Utf16ToUtf32Length(Text) == Codes.size() &&
            Written<char>(Length, [&](char* ATo) { return Path->Utf16ToUtf8(Text, ATo); }) == Expected;
        ASSERT_TRUE(IsRight) << Path->Name << ", shift " << AShift << ": " << testing::PrintToString(Text);
        for (const std::endian Order : cOrders) {
            const auto Write = [&](char* ATo) {
                return reinterpret_cast<char*>(
                    Path->Utf16ToUtf32(Text, Order, reinterpret_cast<std::byte*>(ATo)));
            };
            ASSERT_EQ(Written<char>(4 * Codes.size(), Write), reference::ToUtf32(Codes, Order))
                << Path->Name << ": " << testing::PrintToString(Text);
        }
    }
}

// Code points of all sizes, those at the borders of ranges more often; AKinds limits the sizes.
class TTextMaker {
public:
    std::size_t Below(std::size_t ABound) { return FRandom() % ABound; }

    char32_t Code(std::size_t AKinds) {
        static constexpr char32_t cEnds[] = {0, 0x80, 0x800, 0xD800, 0xE000, 0x10000, 0x110000};
        static constexpr std::size_t cKinds[] = {0, 1, 2, 4, 5};
        const std::size_t Kind = cKinds[Below(AKinds)];
        const char32_t Size = cEnds[Kind + 1] - cEnds[Kind];
        const auto Offset =
            static_cast<char32_t>(Below(8) == 0 ? (Below(2) == 0 ? 0 : Size - 1) : Below(Size));
        return cEnds[Kind] + Offset;
    }

    std::u32string Codes(std::size_t ACount) {
        std::u32string Result;
        const std::size_t Kinds = 1 + Below(5);
        while (Result.size() < ACount)
            Result += Code(Kinds);
        return Result;
    }

    // Changes a few units, or none, to what is likely to be wrong.
    template <class T> std::basic_string<T> Spoilt(std::basic_string<T> AText) {
        static constexpr unsigned cBytes[] = {0x80, 0xBF, 0xC0, 0xC2, 0xE0, 0xED,
                                              0xF0, 0xF4, 0xF5, 0xFF, 'a'};
        static constexpr unsigned cUnits[] = {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xFFFF, 'a', 0x7FF, 0x800};
        for (std::size_t Count = Below(4); Count > 0 && !AText.empty(); --Count)
            AText[Below(AText.size())] =
                static_cast<T>(sizeof(T) == 1 ? cBytes[Below(11)] : cUnits[Below(8)]);
        return AText;
    }

private:
    std::mt19937 FRandom{20260401};
};

// Each alone, so that no fault beside it decides.
TEST(UtfPaths, SequencesAtTheBordersOfWhatIsWellFormed) {
    const unsigned cBorders[] = {0x00, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xFF};
    for (unsigned Lead = 0x7F; Lead < 0x100; ++Lead) {
        for (const unsigned Second : cBorders) {
            for (const unsigned Third : cBorders) {
                for (const unsigned Fourth : cBorders)
                    CheckUtf8(std::string{static_cast<char>(Lead), static_cast<char>(Second),
                                          static_cast<char>(Third), static_cast<char>(Fourth)});
            }
        }
        ASSERT_FALSE(HasFatalFailure());
    }
}

// With faults at random places: of 19,000 texts of each form, enough for each place of a vector.
TEST(UtfPaths, MixturesOfEveryLengthAndAlignment) {
    EXPECT_EQ(detail::UtfPaths().back(), &detail::BestUtfPath());
    TTextMaker Maker;
    for (std::size_t Shift = 0; Shift < 32; ++Shift) {
        for (std::size_t Length = 0; Length <= 200; ++Length) {
            const std::u32string Codes = Maker.Codes(Length);
            // Cut to the length, most often within a character.
            CheckUtf8(Maker.Spoilt(reference::ToUtf8(Codes).substr(0, Length)), Shift);
            CheckUtf8(reference::ToUtf8(Codes), Shift);
            CheckUtf16(Maker.Spoilt(reference::ToUtf16(Codes).substr(0, Length)), Shift);
            CheckUtf32(Maker.Spoilt(reference::ToUtf32(Codes, cOrders[Length % 2])).substr(0, Length), Shift);
            CheckUtf32(reference::ToUtf32(Codes, cOrders[Length % 2]), Shift);
        }
        ASSERT_FALSE(HasFatalFailure());
    }
}

// Long enough for sums within vectors to overflow, were they not taken out in time.
TEST(UtfPaths, LengthsOfLongTexts) {
    const std::u16string Wide(700'001, u'\u20AC');
    const std::u16string Lone(700'001, static_cast<char16_t>(0xDC00));
    for (const TUtfPath* Path : detail::UtfPaths()) {
        EXPECT_EQ(Path->Utf16ToUtf8Length(Wide), 3 * Wide.size()) << Path->Name;
        EXPECT_EQ(Path->Utf16ToUtf8Length(Lone), 3 * Lone.size()) << Path->Name;
        EXPECT_EQ(Path->Utf16ToUtf32Length(Lone), Lone.size()) << Path->Name;
        EXPECT_FALSE(Path->IsValidUtf16(Lone)) << Path->Name;
    }
}

TEST(UtfPaths, PrefixesEndAtTheFirstUnitThatIsTooHigh) {
    for (std::size_t Length = 0; Length < 150; ++Length) {
        for (std::size_t Place = 0; Place <= Length; ++Place) {
            std::u16string Text(Length, u'\x7F');
            if (Place < Length)
                Text[Place] = 0x80;
            const TExactCopy<char16_t> Ascii(Text, Length % 16);
            std::replace(Text.begin(), Text.end(), u'\x7F', u'\xFF');
            std::replace(Text.begin(), Text.end(), u'\x80', u'\u0100');
            const TExactCopy<char16_t> Latin1(Text, Length % 16);
            for (const TUtfPath* Path : detail::UtfPaths()) {
                ASSERT_EQ(Path->AsciiUnits(Ascii.View()), Place) << Path->Name;
                ASSERT_EQ(Path->Latin1Units(Latin1.View()), Place) << Path->Name;
            }
        }
    }
}

TEST(UtfPaths, UnitsWidenedNarrowedAndSwapped) {
    for (std::size_t Length = 0; Length < 150; ++Length) {
        std::u16string Wide(Length, u'\0');
        for (std::size_t I = 0; I < Length; ++I)
            Wide[I] = static_cast<char16_t>(I * 37 % 0x100);
        const TExactCopy<char> Narrow(std::string(Wide.begin(), Wide.end()), Length % 32);
        for (const TUtfPath* Path : detail::UtfPaths()) {
            SCOPED_TRACE(Path->Name);
            const auto Widen = [&](char16_t* ATo) {
                return Path->WidenBytes(Narrow.View(), ATo), ATo + Length;
            };
            ASSERT_EQ(Written<char16_t>(Length, Widen), Wide);
            std::u16string Swapped(Length, u'\0');
            const auto Swap = [&](char* ATo) {
                std::memcpy(ATo + 1, Wide.data(), 2 * Length);
                Path->SwapUnits(ATo + 1, Length, ATo + 1);
                std::memcpy(Swapped.data(), ATo + 1, 2 * Length);
                return ATo + 2 * Length + 1;
            };
            Written<char>(2 * Length + 1, Swap);
            for (std::size_t I = 0; I < Length; ++I)
                ASSERT_EQ(Swapped[I], Wide[I] << 8);
            const auto Narrowed = [&](char* ATo) { return Path->NarrowUnits(Wide, ATo), ATo + Length; };
            ASSERT_EQ(Written<char>(Length, Narrowed), Narrow.View());
        }
    }
}

} // namespace
} // namespace qz

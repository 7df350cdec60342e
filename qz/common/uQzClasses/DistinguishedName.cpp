#include <qz/common/uQzClasses/DistinguishedName.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/Strings.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// Above this count equality sorts the lines.
constexpr std::size_t cFewEntries = 64;

// The capital form of a unit. A unit whose capital form is an ASCII letter stays as it is, unless it is
// ASCII: a dotless i must not pass for an i.
char16_t Folded(char16_t AChar) noexcept {
    const char16_t Upper = detail::UpperUnit(AChar);
    return AChar >= 0x80 && Upper < 0x80 ? AChar : Upper;
}

bool SameUnits(TView ALeft, TView ARight) noexcept {
    return std::equal(ALeft.begin(), ALeft.end(), ARight.begin(), ARight.end(),
                      [](char16_t A, char16_t B) { return A == B || Folded(A) == Folded(B); });
}

UnicodeString LineOf(const TQzRDN& AEntry) {
    return AEntry.FName + u'=' + AEntry.FValue;
}

// Whether the two have the same line. "a=b" with the value "c" and "a" with "b=c" do.
bool SameLine(const TQzRDN& ALeft, const TQzRDN& ARight) {
    if (ALeft.FName.size() + ALeft.FValue.size() != ARight.FName.size() + ARight.FValue.size())
        return false;
    if (ALeft.FName.size() == ARight.FName.size())
        return SameUnits(ALeft.FValue, ARight.FValue) && SameUnits(ALeft.FName, ARight.FName);
    return SameUnits(LineOf(ALeft), LineOf(ARight));
}

std::vector<std::u16string> SortedLines(const TQzDN& AName) {
    std::vector<std::u16string> Result;
    Result.reserve(AName.size());
    for (const TQzRDN& Entry : AName) {
        std::u16string& Line = Result.emplace_back(LineOf(Entry).View());
        std::ranges::transform(Line, Line.begin(), Folded);
    }
    std::ranges::sort(Result);
    return Result;
}

// Each entry of the left name takes one of the right name that no other took.
bool HasSameEntries(const TQzDN& ALeft, const TQzDN& ARight) {
    const std::size_t Count = ALeft.size();
    std::uint64_t Taken = 0;
    for (std::size_t I = 0; I < Count; ++I) {
        std::size_t Other = 0;
        while (Other < Count &&
               ((Taken >> Other & 1) != 0 || !SameLine(ALeft.begin()[I], ARight.begin()[Other])))
            ++Other;
        if (Other == Count)
            return false;
        Taken |= std::uint64_t{1} << Other;
    }
    return true;
}

} // namespace

TQzDN::TQzDN(const TStrings& AStrings) {
    Load(AStrings);
}

UnicodeString TQzDN::ValuesFromName(const TStringArg& AName, char16_t ASeparator) const {
    UnicodeString Result;
    bool Found = false;
    for (const TQzRDN& Entry : FData) {
        if (!SameText(Entry.FName, AName.View()))
            continue;
        if (std::exchange(Found, true))
            Result += ASeparator;
        Result += Entry.FValue;
    }
    return Result;
}

int TQzDN::Add(const UnicodeString& AName, const UnicodeString& AValue) {
    TQzRDN Entry(AName, AValue);
    const std::size_t Index = FData.Length();
    FData.SetLength(Index + 1);
    FData[Index] = std::move(Entry);
    return Count();
}

int TQzDN::Delete(int AIndex) {
    if (AIndex < 0 || AIndex >= Count())
        return Count();
    TDynArray<TQzRDN> Fresh = FData.Copy();
    std::move(Fresh.begin() + AIndex + 1, Fresh.end(), Fresh.begin() + AIndex);
    Fresh.SetLength(Fresh.Length() - 1);
    FData.Swap(Fresh);
    return Count();
}

void TQzDN::Save(TStrings& AStrings) const {
    for (const TQzRDN& Entry : FData)
        AStrings.Add(LineOf(Entry));
}

void TQzDN::Load(const TStrings& AStrings) {
    TQzDN Fresh;
    for (int I = 0; I < AStrings.Count(); ++I)
        Fresh.Add(Trim(AStrings.Names(I)), Trim(AStrings.ValueFromIndex(I)));
    FData.Swap(Fresh.FData);
}

UnicodeString TQzDN::Text(const TStringArg& ASeparator) const {
    UnicodeString Result;
    for (const TQzRDN& Entry : FData) {
        if (&Entry != begin())
            Result.Append(ASeparator);
        Result += LineOf(Entry);
    }
    return Result;
}

bool operator==(const TQzDN& ALeft, const TQzDN& ARight) {
    if (ALeft.FData.IsSameArray(ARight.FData))
        return true;
    if (ALeft.size() != ARight.size())
        return false;
    if (ALeft.size() <= cFewEntries)
        return HasSameEntries(ALeft, ARight);
    return SortedLines(ALeft) == SortedLines(ARight);
}

std::weak_ordering operator<=>(const TQzDN& ALeft, const TQzDN& ARight) {
    const std::vector<std::u16string> Left = SortedLines(ALeft);
    const std::vector<std::u16string> Right = SortedLines(ARight);
    return std::lexicographical_compare_three_way(Left.begin(), Left.end(), Right.begin(), Right.end());
}

std::size_t TQzDN::Hash() const noexcept {
    constexpr std::uint64_t cStart = 0xCBF29CE484222325, cFactor = 0x100000001B3; // of FNV-1a
    std::uint64_t Sum = FData.Length();
    for (const TQzRDN& Entry : FData) {
        std::uint64_t Line = cStart;
        const auto Take = [&Line](TView AText) {
            for (const char16_t Char : AText)
                Line = (Line ^ Folded(Char)) * cFactor;
        };
        Take(Entry.FName);
        Take(u"=");
        Take(Entry.FValue);
        // The sum ignores the order. Each line is mixed, so that sums of different lines rarely meet.
        Line ^= Line >> 32;
        Sum += Line * 0x9E3779B97F4A7C15;
    }
    return static_cast<std::size_t>(Sum ^ Sum >> 29);
}

} // namespace qz

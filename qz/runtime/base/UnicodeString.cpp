#include <qz/runtime/base/UnicodeString.h>

#include <algorithm>
#include <ostream>

namespace qz {
namespace {

using TBlock = detail::TStringBlock;
using TTraits = std::char_traits<char16_t>;

constexpr std::uint16_t cUtf16Page = 1200;

char16_t* NewText(std::size_t ALength, std::size_t ACapacity) {
    return TBlock::Allocate(sizeof(char16_t), cUtf16Page, ALength, ACapacity)->Data<char16_t>();
}

} // namespace

UnicodeString::UnicodeString(std::u16string_view AText, TMake) {
    if (AText.empty())
        return;
    FData = NewText(AText.size(), AText.size());
    TTraits::copy(FData, AText.data(), AText.size());
}

UnicodeString::UnicodeString(std::string_view AText, TMake) {
    if (AText.empty())
        return;
    const std::size_t Length = IsAscii(AText) ? AText.size() : Utf8ToUtf16Length(AText);
    FData = NewText(Length, Length);
    Utf8ToUtf16(AText, FData);
}

UnicodeString::UnicodeString(std::size_t ACount, char16_t AChar) {
    if (ACount == 0)
        return;
    FData = NewText(ACount, ACount);
    TTraits::assign(FData, ACount, AChar);
}

UnicodeString UnicodeString::ForOverwrite(std::size_t ALength) {
    UnicodeString Result;
    if (ALength != 0)
        Result.FData = NewText(ALength, ALength);
    return Result;
}

UnicodeString UnicodeString::Concat(std::u16string_view ALeft, std::u16string_view ARight) {
    UnicodeString Result;
    const std::size_t Length = ALeft.size() + ARight.size();
    if (Length == 0)
        return Result;
    Result.FData = NewText(Length, Length);
    TTraits::copy(Result.FData, ALeft.data(), ALeft.size());
    TTraits::copy(Result.FData + ALeft.size(), ARight.data(), ARight.size());
    return Result;
}

// Makes the text private, with at least the given capacity.
void UnicodeString::MakeUnique(std::size_t ACapacity) {
    if (FData != nullptr && Block()->IsUnique()) {
        if (ACapacity > capacity())
            FData = TBlock::Reallocate(Block(), ACapacity)->Data<char16_t>();
        return;
    }
    const std::size_t Length = size();
    UnicodeString Fresh;
    Fresh.FData = NewText(Length, ACapacity);
    TTraits::copy(Fresh.FData, data(), Length);
    Fresh.Swap(*this);
}

void UnicodeString::Reserve(std::size_t ACapacity) {
    if (ACapacity > capacity() || (FData != nullptr && !Block()->IsUnique()))
        MakeUnique(std::max(ACapacity, size()));
}

void UnicodeString::SetLength(std::size_t ALength) {
    if (ALength == 0)
        return Clear();
    const std::size_t Old = size();
    if (FData == nullptr || !Block()->IsUnique() || ALength > capacity()) {
        if (ALength < Old) {
            *this = UnicodeString(std::u16string_view(FData, ALength));
            return;
        }
        MakeUnique(ALength);
    }
    if (ALength > Old)
        TTraits::assign(FData + Old, ALength - Old, u'\0');
    FData[ALength] = u'\0';
    Block()->Length = static_cast<int>(ALength);
}

char16_t* UnicodeString::AppendRoom(std::size_t ACount) {
    const std::size_t Old = size();
    if (ACount == 0)
        return UniqueData() == nullptr ? nullptr : FData + Old;
    if (FData == nullptr || !Block()->IsUnique() || capacity() - Old < ACount)
        MakeUnique(TBlock::Grown(capacity(), Old + ACount));
    FData[Old + ACount] = u'\0';
    Block()->Length = static_cast<int>(Old + ACount);
    return FData + Old;
}

// The piece may lie in this very text, whose block is about to move: a second handle keeps the old one alive.
void UnicodeString::AppendGrown(std::u16string_view AText) {
    if (AText.empty())
        return;
    const bool IsOwn = FData != nullptr && std::less_equal<>()(FData, AText.data()) &&
        std::less_equal<>()(AText.data(), FData + size());
    const UnicodeString Keeper = IsOwn ? *this : UnicodeString();
    TTraits::copy(AppendRoom(AText.size()), AText.data(), AText.size());
}

UnicodeString& UnicodeString::Append(std::size_t ACount, char16_t AChar) {
    if (ACount != 0)
        TTraits::assign(AppendRoom(ACount), ACount, AChar);
    return *this;
}

UnicodeString& UnicodeString::AppendUtf8(std::string_view AText) {
    if (!AText.empty())
        Utf8ToUtf16(AText, AppendRoom(Utf8ToUtf16Length(AText)));
    return *this;
}

std::ostream& operator<<(std::ostream& AStream, const UnicodeString& AText) {
    return AStream << Utf16ToUtf8(AText);
}

void PrintTo(const UnicodeString& AText, std::ostream* AStream) {
    *AStream << '"' << AText << '"';
}

} // namespace qz

#include <qz/runtime/text/AnsiString.h>

#include <algorithm>
#include <cstring>
#include <ostream>

namespace qz {
namespace {

using TBlock = detail::TStringBlock;

} // namespace

TByteText::TByteText(std::string_view AText, std::uint16_t ACodePage) {
    if (AText.empty())
        return;
    FData = TBlock::Allocate(1, ACodePage, AText.size(), AText.size())->Data<char>();
    std::memcpy(FData, AText.data(), AText.size());
}

TByteText TByteText::ForOverwrite(std::size_t ALength, std::uint16_t ACodePage) {
    TByteText Result;
    if (ALength != 0)
        Result.FData = TBlock::Allocate(1, ACodePage, ALength, ALength)->Data<char>();
    return Result;
}

UnicodeString TByteText::ToUnicode() const {
    return CodePageToUnicode(CodePage(), Bytes());
}

TByteText TByteText::Encode(std::u16string_view AText, std::uint16_t ACodePage,
                            platform::TComposing AComposing) {
    if (AText.empty())
        return {};
    const std::size_t Length = RequireConverted(ACodePage, EncodeCodePage(ACodePage, AText, {}, AComposing));
    TByteText Result = ForOverwrite(Length, ACodePage);
    if (Length != 0)
        RequireConverted(ACodePage, EncodeCodePage(ACodePage, AText, {Result.FData, Length}, AComposing));
    return Result;
}

TByteText TByteText::Recode(const TByteText& AText, std::uint16_t ACodePage) {
    if (AText.CodePage() == ACodePage)
        return AText;
    if (RealCodePage(AText.CodePage()) == RealCodePage(ACodePage))
        return TByteText(AText.View(), ACodePage);
    return Encode(AText.ToUnicode(), ACodePage);
}

void TByteText::SetLength(std::size_t ALength, std::uint16_t ACodePage) {
    const std::size_t Old = size();
    if (ALength == 0) {
        *this = TByteText();
        return;
    }
    if (FData == nullptr || !Block()->IsUnique()) {
        TByteText Fresh;
        Fresh.FData =
            TBlock::Allocate(1, FData == nullptr ? ACodePage : CodePage(), ALength, ALength)->Data<char>();
        std::memcpy(Fresh.FData, data(), std::min(ALength, Old));
        std::swap(FData, Fresh.FData);
    } else if (ALength > static_cast<std::size_t>(Block()->Capacity)) {
        FData = TBlock::Reallocate(Block(), TBlock::Grown(Old, ALength))->Data<char>();
    }
    if (ALength > Old)
        std::memset(FData + Old, 0, ALength - Old);
    FData[ALength] = '\0';
    Block()->Length = static_cast<std::int32_t>(ALength);
}

char* TByteText::UniqueData() {
    if (FData != nullptr && !Block()->IsUnique())
        *this = TByteText(View(), CodePage());
    return FData;
}

void TByteText::RelabelCodePage(std::uint16_t ACodePage) {
    if (UniqueData() != nullptr)
        Block()->CodePage = ACodePage;
}

void TByteText::AppendBytes(std::string_view AText, std::uint16_t ACodePage) {
    if (AText.empty())
        return;
    const std::size_t Old = size();
    const std::size_t Needed = Old + AText.size();
    if (FData != nullptr && Block()->IsUnique() && static_cast<std::size_t>(Block()->Capacity) >= Needed) {
        std::memmove(FData + Old, AText.data(), AText.size());
    } else {
        TByteText Fresh;
        Fresh.FData = TBlock::Allocate(1, FData == nullptr ? ACodePage : CodePage(), Needed,
                                       FData == nullptr ? Needed : TBlock::Grown(Old, Needed))
                          ->Data<char>();
        std::memcpy(Fresh.FData, data(), Old);
        std::memcpy(Fresh.FData + Old, AText.data(), AText.size());
        std::swap(FData, Fresh.FData);
    }
    FData[Needed] = '\0';
    Block()->Length = static_cast<std::int32_t>(Needed);
}

std::ostream& operator<<(std::ostream& AStream, const TByteText& AText) {
    return AStream.write(AText.data(), static_cast<std::streamsize>(AText.size()));
}

void PrintTo(const TByteText& AText, std::ostream* AStream) {
    *AStream << '"' << AText << "\" in code page " << AText.CodePage();
}

} // namespace qz

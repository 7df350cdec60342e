#include "runtime/text/AnsiString.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <vector>

#include "platform/CodePages.h"
#include "runtime/errors/Exceptions.h"
#include "runtime/text/Format.h"

namespace qz {
namespace {

using TBlock = detail::TStringBlock;

std::uint16_t RealPage(std::uint16_t APage) noexcept {
    return APage == cSystemCodePage || APage == cNoCodePage ? DefaultSystemCodePage() : APage;
}

[[noreturn]] void RaiseNoCodePage(std::uint16_t APage) {
    throw EConvertError(Format(u"The code page %d cannot be converted", {APage}));
}

} // namespace

TByteText::TByteText(std::string_view AText, std::uint16_t ACodePage) {
    if (AText.empty())
        return;
    FData = TBlock::Allocate(1, ACodePage, AText.size(), AText.size())->Data<char>();
    std::memcpy(FData, AText.data(), AText.size());
}

UnicodeString TByteText::ToUnicode() const {
    const std::uint16_t Page = RealPage(CodePage());
    if (Page == cUtf8CodePage)
        return View();
    std::u16string Wide;
    platform::TError Error;
    if (!platform::CodePageToUtf16(Page, Bytes(), Wide, Error))
        RaiseNoCodePage(Page);
    return Wide;
}

TByteText TByteText::Encode(std::u16string_view AText, std::uint16_t ACodePage) {
    const std::uint16_t Page = RealPage(ACodePage);
    if (Page == cUtf8CodePage) {
        TByteText Result;
        if (AText.empty())
            return Result;
        const std::size_t Length = Utf16ToUtf8Length(AText);
        Result.FData = TBlock::Allocate(1, ACodePage, Length, Length)->Data<char>();
        Utf16ToUtf8(AText, Result.FData);
        return Result;
    }
    std::string Narrow;
    platform::TError Error;
    if (!platform::Utf16ToCodePage(Page, AText, Narrow, Error))
        RaiseNoCodePage(Page);
    return TByteText(Narrow, ACodePage);
}

TByteText TByteText::Recode(const TByteText& AText, std::uint16_t ACodePage) {
    if (AText.CodePage() == ACodePage)
        return AText;
    if (RealPage(AText.CodePage()) == RealPage(ACodePage))
        return TByteText(AText.View(), ACodePage);
    return Encode(AText.ToUnicode(), ACodePage);
}

void TByteText::SetLength(std::size_t ALength) {
    const std::size_t Old = size();
    if (ALength == 0) {
        *this = TByteText();
        return;
    }
    if (FData == nullptr || !Block()->IsUnique()) {
        TByteText Fresh;
        Fresh.FData = TBlock::Allocate(1, CodePage(), ALength, ALength)->Data<char>();
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

std::uint16_t DefaultSystemCodePage() noexcept {
    static const auto Page = static_cast<std::uint16_t>(platform::SystemCodePage());
    return Page;
}

} // namespace qz

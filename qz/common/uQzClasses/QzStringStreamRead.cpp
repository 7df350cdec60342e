// The reading half of TQzStringStream.
#include <algorithm>
#include <cstring>

#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/base/Utf.h>

namespace qz {
namespace {

constexpr bool IsContinuation(std::uint8_t AByte) {
    return (AByte & 0xC0) == 0x80;
}

} // namespace

// Whether the position is where a unit pair of UTF-8 is torn: the first of the two units moves on by three bytes, as any
// lone surrogate takes, so that the fourth byte of the form stands for the second unit.
bool TQzStringStream::IsAtLowSurrogate() const noexcept {
    if (RealCodePage(FCodePage) != cUtf8CodePage || FCurPos - FBufferStart < 3 || Rest() == 0)
        return false;
    const std::string_view Form(reinterpret_cast<const char*>(FCurPos) - 3, 4);
    std::size_t Length = 0;
    return IsContinuation(*FCurPos) && NextCodePoint(Form, Length) >= 0x10000 && Length == 4;
}

// Up to ACount units from the position, which moves behind them. For code pages that have to be converted.
UnicodeString TQzStringStream::ReadRun(std::uint32_t ACount) {
    if (ACount == 0 || Rest() == 0)
        return {};
    const bool Torn = IsAtLowSurrogate();
    const std::uint8_t* Start = FCurPos - (Torn ? 3 : 0);
    const std::size_t Window = std::min(std::size_t{ACount} * FCodePageMaxCharSize, Rest());
    UnicodeString Text = TQzEncoding::ConvertB(Start, Window + (Torn ? 3 : 0), FCodePage);
    if (Torn)
        Text = UnicodeString(Text.View().substr(1));
    const UnicodeString Ahead = Text;
    if (Text.size() > ACount)
        Text.SetLength(ACount);
    std::size_t Step = Text.size();
    if (FCodePageMaxCharSize != 1) {
        // The second unit of a torn pair took one byte. Where a second unit cannot be read, it is passed with the first.
        const bool Tears = Text.size() < Ahead.size() && IsHighSurrogate(Ahead.View()[ACount - 1]) &&
            IsLowSurrogate(Ahead.View()[ACount]) && RealCodePage(FCodePage) != cUtf8CodePage;
        const std::u16string_view Whole =
            Ahead.View().substr(0, Text.size() + (Tears ? 1 : 0)).substr(Torn ? 1 : 0);
        Step = (Torn ? 1 : 0) +
            static_cast<std::size_t>(TQzEncoding::ConvertW(
                Whole.data(), static_cast<std::int32_t>(Whole.size()), nullptr, 0, FCodePage));
    }
    FCurPos += std::min(Step, Rest());
    return Text;
}

// As ReadRun does for one unit, without a text in between.
char16_t TQzStringStream::ReadConverted() {
    if (Rest() == 0)
        return u'\0';
    if (IsAtLowSurrogate())
        return ReadRun(1).View().front();
    const std::size_t Window = std::min<std::size_t>(FCodePageMaxCharSize, Rest());
    char16_t Units[8]{};
    const std::size_t Count =
        RequireConverted(FCodePage,
                         DecodeCodePage(FCodePage, std::as_bytes(std::span(FCurPos, Window)), Units,
                                        platform::TDecoding::Lenient));
    std::size_t Step = 1;
    if (FCodePageMaxCharSize != 1) {
        const bool Tears = Count > 1 && IsHighSurrogate(Units[0]) && IsLowSurrogate(Units[1]) &&
            RealCodePage(FCodePage) != cUtf8CodePage;
        const std::size_t Whole = std::min<std::size_t>(Count, Tears ? 2 : 1);
        Step = RequireConverted(
            FCodePage, EncodeCodePage(FCodePage, {Units, Whole}, {}, platform::TComposing::Composite));
    }
    FCurPos += std::min(Step, Rest());
    return Units[0];
}

char16_t TQzStringStream::ReadWChar() {
    if (FCodePage != cUtf16CodePage)
        return ReadConverted();
    char16_t Unit = 0;
    if (Rest() < sizeof Unit)
        return 0;
    std::memcpy(&Unit, FCurPos, sizeof Unit);
    FCurPos += sizeof Unit;
    return Unit;
}

char TQzStringStream::ReadAChar() {
    if (Rest() < (FCodePage == cUtf16CodePage ? 2u : 1u))
        return '\0';
    if (FCodePage == cSystemCodePage)
        return static_cast<char>(*FCurPos++);
    const char16_t Unit = ReadWChar();
    char Bytes[8]{};
    TQzEncoding::ConvertW(&Unit, 1, Bytes, sizeof Bytes, cSystemCodePage);
    return Bytes[0];
}

UnicodeString TQzStringStream::ReadWString(std::uint32_t ACount) {
    if (FCodePage != cUtf16CodePage)
        return ReadRun(ACount);
    const std::size_t Units = std::min<std::size_t>(ACount, Rest() / 2);
    UnicodeString Text = UnicodeString::ForOverwrite(Units);
    if (Units != 0)
        std::memcpy(Text.UniqueData(), FCurPos, Units * 2);
    FCurPos += Units * 2;
    return Text;
}

AnsiString TQzStringStream::ReadAString(std::uint32_t ACount) {
    if (FCodePage != cSystemCodePage) {
        const RawByteString Bytes = TQzEncoding::ConvertW(ReadWString(ACount), cSystemCodePage);
        return AnsiString(Bytes.View(), cSystemCodePage);
    }
    const std::size_t Count = std::min<std::size_t>(ACount, Rest());
    AnsiString Text(std::string_view(reinterpret_cast<const char*>(FCurPos), Count), cSystemCodePage);
    FCurPos += Count;
    return Text;
}

} // namespace qz

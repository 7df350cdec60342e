#include <qz/common/uQzClasses/QzBytes.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/Utf8Form.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

constexpr TFieldInfo cFields[] = {Field<&TQzBytes::FData>(u"FData")};

// Copies 16-bit units whose low byte is first in memory, to or from the machine's order.
void CopyUnits(void* ATarget, const void* ASource, std::size_t AUnits) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        if (AUnits != 0)
            std::memcpy(ATarget, ASource, 2 * AUnits);
    } else {
        SwapUnits(ASource, AUnits, ATarget);
    }
}

} // namespace

constinit const TTypeInfo TTypeDescription<TQzBytes>::Info =
    DescribeRecord<TQzBytes>(u"TQzBytes", u"uQzClasses", cFields);

TQzBytes::TQzBytes(const TStringArg& AText, TQzBinEncoding AEncoding)
    : FData(detail::DecodeBinaryText(AText, AEncoding)) {}

TQzBytes::TQzBytes(const RawByteString& AText, TQzBinEncoding AEncoding)
    : FData(detail::DecodeBinary(AText.View(), AEncoding)) {}

TQzBytes::TQzBytes(const TStringArg& AText, bool AUTF8) {
    const std::u16string_view Text = AText;
    if (AUTF8) {
        *this = TQzBytes(TUtf8Form(Text).Bytes());
    } else {
        FData = TBytes::ForOverwrite(2 * Text.size());
        CopyUnits(FData.data(), Text.data(), Text.size());
    }
}

TQzBytes::operator RawByteString() const {
    return RawByteString(View());
}

void TQzBytes::CopyFrom(TStream& AStream, std::int64_t APosition, std::int32_t ACount) {
    if (APosition >= 0)
        AStream.SetPosition(APosition);
    std::int64_t Count = std::max<std::int64_t>(AStream.Size() - AStream.Position(), 0);
    if (ACount > 0)
        Count = std::min<std::int64_t>(Count, ACount);
    TBytes Fresh = TBytes::ForOverwrite(static_cast<std::size_t>(Count));
    Fresh.SetLength(static_cast<std::size_t>(AStream.ReadUpTo(Fresh.data(), Count)));
    FData = std::move(Fresh);
}

void TQzBytes::CopyTo(void* ATarget, std::int32_t AOffset, std::int32_t ACount) const noexcept {
    const std::size_t Offset = std::min(static_cast<std::size_t>(std::max(AOffset, 0)), size());
    const std::size_t Rest = size() - Offset;
    const std::size_t Count = ACount > 0 ? std::min(static_cast<std::size_t>(ACount), Rest) : Rest;
    if (Count != 0)
        std::memcpy(ATarget, data() + Offset, Count);
}

UnicodeString TQzBytes::Encode(TQzBinEncoding AEncoding) const {
    return detail::EncodeBinaryText(*this, AEncoding);
}

UnicodeString TQzBytes::ToString(bool AUTF8) const {
    if (AUTF8)
        return UnicodeString(View());
    UnicodeString Result = UnicodeString::ForOverwrite(size() / 2);
    CopyUnits(Result.UniqueData(), data(), size() / 2);
    return Result;
}

TQzBytes& TQzBytes::operator+=(const TQzBytes& ABytes) {
    return *this = Concat(*this, ABytes);
}

std::span<const std::byte> TQzBytes::Memory(const void* ABuffer, std::size_t ASize) {
    Assert(ABuffer != nullptr || ASize == 0, u"There is no memory to copy");
    return {static_cast<const std::byte*>(ABuffer), ASize};
}

TQzBytes TQzBytes::Concat(std::span<const std::byte> ALeft, std::span<const std::byte> ARight) {
    TBytes Result = TBytes::ForOverwrite(ALeft.size() + ARight.size());
    if (!ALeft.empty())
        std::memcpy(Result.data(), ALeft.data(), ALeft.size());
    if (!ARight.empty())
        std::memcpy(Result.data() + ALeft.size(), ARight.data(), ARight.size());
    return Result;
}

} // namespace qz

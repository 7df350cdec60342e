#include <qz/common/uQzClasses/Utf8StreamAdapter.h>

#include <algorithm>
#include <array>
#include <cstring>

#include <qz/common/uQzTypes/QzCodePage.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::size_t cStep = 4096;

// Takes bytes one by one and gives a unit for each complete form.
class TDecoder {
public:
    // False when the byte can begin no form.
    bool Take(std::uint8_t AByte, char16_t*& ATarget) {
        if (FMissing > 0) {
            FUnit = (FUnit << 6) | (AByte & 63u);
            --FMissing;
        } else if (AByte < 0x80) {
            FUnit = AByte;
        } else if ((AByte & 0x40) == 0) {
            return false;
        } else {
            FLength = (AByte & 0x20) != 0 ? 3 : 2;
            FMissing = FLength - 1;
            FUnit = AByte & (FLength == 3 ? 15u : 31u);
        }
        if (FMissing == 0)
            *ATarget++ = static_cast<char16_t>(FUnit);
        return true;
    }
    bool IsWithinForm() const { return FMissing > 0; }
    // Which of the two kinds of end the stream has reached.
    bool LacksThirdByteOnly() const { return FLength == 3 && FMissing == 1; }

private:
    unsigned FUnit = 0;
    int FLength = 0;
    int FMissing = 0;
};

[[noreturn]] void RaiseInvalid(std::u16string_view AReason = {}) {
    UnicodeString Message = u"The stream does not contain valid UTF-8 code!";
    if (!AReason.empty())
        Message += UnicodeString(u"\r\n") + AReason;
    throw Exception(Message);
}

} // namespace

QZ_REGISTER_TYPES(TQzUTF8StreamAdapter);

constinit const TClassRec TQzUTF8StreamAdapter::ClassRec =
    DescribeClass<TQzUTF8StreamAdapter>(u"TQzUTF8StreamAdapter", {.Unit = u"uQzClasses"});

TQzUTF8StreamAdapter::TQzUTF8StreamAdapter(TStream* AStream, bool AStreamOwner, bool AWriteUTF8Prefix)
    : FWrappedStream(AStream),
      FStreamOwner(AStreamOwner),
      FWriteUTF8Prefix(AWriteUTF8Prefix) {}

TQzUTF8StreamAdapter::~TQzUTF8StreamAdapter() {
    if (FStreamOwner && FWrappedStream != nullptr)
        FWrappedStream->Free();
}

std::int32_t TQzUTF8StreamAdapter::Read(void* ABuffer, std::int32_t ACount) {
    auto* const Units = static_cast<std::byte*>(ABuffer);
    const auto Wanted = static_cast<std::size_t>(std::max(ACount, 0) / 2);
    std::array<std::uint8_t, cStep> Bytes;
    std::array<char16_t, cStep> Decoded;
    TDecoder Decoder;
    std::size_t Done = 0;
    while (Done < Wanted) {
        // Each missing unit takes at least one byte, so that no unneeded byte is read.
        const auto Step = static_cast<std::int32_t>(std::min(Wanted - Done, cStep));
        const std::int32_t Got = FWrappedStream->Read(Bytes.data(), Step);
        if (Got <= 0)
            break;
        char16_t* Target = Decoded.data();
        for (std::int32_t I = 0; I < Got; ++I) {
            if (!Decoder.Take(Bytes[static_cast<std::size_t>(I)], Target)) {
                FWrappedStream->Seek(std::int64_t{I} + 1 - Got, soCurrent);
                RaiseInvalid();
            }
        }
        const auto Count = static_cast<std::size_t>(Target - Decoded.data());
        std::memcpy(Units + Done * 2, Decoded.data(), Count * 2);
        Done += Count;
    }
    if (Decoder.IsWithinForm())
        RaiseInvalid(Decoder.LacksThirdByteOnly() ? std::u16string_view(u"There is 1 byte missing!")
                                                  : std::u16string_view(u"There are 1 or 2 bytes missing!"));
    return static_cast<std::int32_t>(Done * 2);
}

std::int32_t TQzUTF8StreamAdapter::Write(const void* ABuffer, std::int32_t ACount) {
    const auto TakesAll = [this](const char* ABytes, std::size_t ASize) {
        return FWrappedStream->Write(ABytes, static_cast<std::int32_t>(ASize)) ==
            static_cast<std::int32_t>(ASize);
    };
    if (FWriteUTF8Prefix) {
        if (!TakesAll(cQzUTF8.data(), cQzUTF8.size()))
            return 0;
        FWriteUTF8Prefix = false;
    }
    const auto* Source = static_cast<const std::byte*>(ABuffer);
    std::array<char16_t, cStep> Units;
    std::array<char, cStep * 3> Bytes;
    for (auto Rest = static_cast<std::size_t>(std::max(ACount, 0) / 2); Rest > 0;) {
        std::size_t Step = std::min(Rest, cStep);
        std::memcpy(Units.data(), Source, Step * 2);
        // A pair stays together.
        if (Step < Rest && IsHighSurrogate(Units[Step - 1]))
            --Step;
        const char* End = Utf16ToUtf8({Units.data(), Step}, Bytes.data());
        if (!TakesAll(Bytes.data(), static_cast<std::size_t>(End - Bytes.data())))
            return 0;
        Source += Step * 2;
        Rest -= Step;
    }
    return std::max(ACount, 0);
}

std::int64_t TQzUTF8StreamAdapter::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    return FWrappedStream->Seek(AOffset / 2, AOrigin) * 2;
}

} // namespace qz

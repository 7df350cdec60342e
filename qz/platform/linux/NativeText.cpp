#include <qz/platform/linux/NativeText.h>

namespace qz::platform::detail {

namespace {

bool IsContinuation(unsigned char AByte) {
    return (AByte & 0xC0) == 0x80;
}

// How many bytes from APosition on are one valid UTF-8 sequence, 0 when none are.
std::size_t SequenceLength(std::string_view ABytes, std::size_t APosition) {
    const auto At = [&](std::size_t AIndex) {
        return static_cast<unsigned char>(ABytes[APosition + AIndex]);
    };
    const std::size_t Left = ABytes.size() - APosition;
    const unsigned char Lead = At(0);
    if (Lead < 0x80)
        return 1;
    if (Lead < 0xC2 || Lead > 0xF4)
        return 0;
    const std::size_t Length = Lead < 0xE0 ? 2 : Lead < 0xF0 ? 3 : 4;
    if (Left < Length)
        return 0;
    for (std::size_t Index = 1; Index < Length; ++Index) {
        if (!IsContinuation(At(Index)))
            return 0;
    }
    // Overlong forms, surrogates, and what lies beyond U+10FFFF.
    const unsigned char Second = At(1);
    const bool Bad = (Lead == 0xE0 && Second < 0xA0) || (Lead == 0xED && Second >= 0xA0) ||
        (Lead == 0xF0 && Second < 0x90) || (Lead == 0xF4 && Second >= 0x90);
    return Bad ? 0 : Length;
}

char32_t DecodeSequence(std::string_view ASequence) {
    static constexpr unsigned char cLeadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t Result = static_cast<unsigned char>(ASequence[0]) & cLeadMask[ASequence.size()];
    for (std::size_t Index = 1; Index < ASequence.size(); ++Index)
        Result = (Result << 6) | (static_cast<unsigned char>(ASequence[Index]) & 0x3F);
    return Result;
}

void AppendUtf16(std::u16string& ATarget, char32_t AChar) {
    if (AChar < 0x10000) {
        ATarget += static_cast<char16_t>(AChar);
    } else {
        ATarget += static_cast<char16_t>(0xD7C0 + (AChar >> 10));
        ATarget += static_cast<char16_t>(0xDC00 + (AChar & 0x3FF));
    }
}

void AppendUtf8(std::string& ATarget, char32_t AChar) {
    const auto Tail = [&](int AShift) { ATarget += static_cast<char>(0x80 | ((AChar >> AShift) & 0x3F)); };
    if (AChar < 0x80) {
        ATarget += static_cast<char>(AChar);
    } else if (AChar < 0x800) {
        ATarget += static_cast<char>(0xC0 | (AChar >> 6));
        Tail(0);
    } else if (AChar < 0x10000) {
        ATarget += static_cast<char>(0xE0 | (AChar >> 12));
        Tail(6);
        Tail(0);
    } else {
        ATarget += static_cast<char>(0xF0 | (AChar >> 18));
        Tail(12);
        Tail(6);
        Tail(0);
    }
}

bool IsHighSurrogate(char16_t AUnit) {
    return (AUnit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char16_t AUnit) {
    return (AUnit & 0xFC00) == 0xDC00;
}

} // namespace

std::u16string FromNative(std::string_view ABytes) {
    std::u16string Result;
    Result.reserve(ABytes.size());
    for (std::size_t Position = 0; Position < ABytes.size();) {
        const std::size_t Length = SequenceLength(ABytes, Position);
        if (Length == 0) {
            Result += static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(ABytes[Position]));
            ++Position;
        } else {
            AppendUtf16(Result, DecodeSequence(ABytes.substr(Position, Length)));
            Position += Length;
        }
    }
    return Result;
}

std::string ToNative(std::u16string_view AText) {
    std::string Result;
    Result.reserve(AText.size());
    for (std::size_t Index = 0; Index < AText.size(); ++Index) {
        const char16_t Unit = AText[Index];
        if (IsHighSurrogate(Unit) && Index + 1 < AText.size() && IsLowSurrogate(AText[Index + 1])) {
            const char16_t Low = AText[++Index];
            AppendUtf8(Result, ((char32_t{Unit} - 0xD7C0) << 10) + (Low - 0xDC00u));
        } else if (Unit >= 0xDC80 && Unit <= 0xDCFF) {
            Result += static_cast<char>(Unit & 0xFF);
        } else {
            AppendUtf8(Result, Unit);
        }
    }
    return Result;
}

std::optional<std::string> ToNativeArgument(std::u16string_view AText) {
    if (AText.find(u'\0') != std::u16string_view::npos)
        return std::nullopt;
    return ToNative(AText);
}

} // namespace qz::platform::detail

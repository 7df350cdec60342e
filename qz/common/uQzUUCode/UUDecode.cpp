#include <qz/common/uQzUUCode/UUDecode.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/common/uQzUUCode/detail/UUGroups.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr std::size_t cLongestLine = 63; // bytes that a data line can promise
constexpr std::size_t cLongestData = detail::UUGroupCount(cLongestLine) * 4;

[[noreturn]] void RaiseInvalid() {
    throw Exception(u"Invalid UUData");
}
[[noreturn]] void RaiseEnd() {
    throw Exception(u"Unexpected EOF");
}

// Collects bytes and writes them in blocks.
class TOutput {
public:
    explicit TOutput(TStream& ATarget) : FTarget(ATarget) {}

    // Room for one line and the slack.
    std::uint8_t* Room() {
        if (FCount > cBlock - cLongestLine)
            Flush();
        return FBlock.get() + FCount;
    }
    void Add(std::size_t ACount) noexcept { FCount += ACount; }
    void Flush() { FTarget.WriteBuffer(FBlock.get(), static_cast<std::int64_t>(std::exchange(FCount, 0))); }

private:
    static constexpr std::size_t cBlock = 64 << 10;
    TStream& FTarget;
    std::unique_ptr<std::uint8_t[]> FBlock =
        std::make_unique_for_overwrite<std::uint8_t[]>(cBlock + detail::cUUSlack);
    std::size_t FCount = 0;
};

// The lines of bytes in one code page. The next place of each line end is kept, so that a text without one of
// the two is searched for it once.
class TByteLines {
public:
    using TLine = std::string_view;

    TByteLines(std::string_view AText, std::uint16_t ACodePage)
        : FPos(AText.data()),
          FEnd(FPos + AText.size()),
          FCarriageReturn(Find('\r')),
          FLineFeed(Find('\n')),
          FEncoding(ACodePage) {}

    bool Next(TLine& ALine) noexcept {
        if (FPos == FEnd)
            return false;
        const char* const LineEnd = std::min(FCarriageReturn, FLineFeed);
        ALine = {FPos, static_cast<std::size_t>(LineEnd - FPos)};
        FPos = LineEnd;
        // A line end that is not there is at the end of the text.
        if (FPos < FEnd)
            FPos += LineEnd == FCarriageReturn && LineEnd + 1 < FEnd && LineEnd + 1 == FLineFeed ? 2 : 1;
        if (FCarriageReturn < FPos)
            FCarriageReturn = Find('\r');
        if (FLineFeed < FPos)
            FLineFeed = Find('\n');
        return true;
    }
    UnicodeString Text(TLine ALine) const { return FEncoding.GetString(std::as_bytes(std::span(ALine))); }
    std::size_t Readable(TLine ALine) const noexcept { return static_cast<std::size_t>(FEnd - ALine.data()); }

private:
    const char* Find(char AChar) const noexcept {
        if (FPos == FEnd)
            return FEnd;
        const void* Found = std::memchr(FPos, AChar, static_cast<std::size_t>(FEnd - FPos));
        return Found == nullptr ? FEnd : static_cast<const char*>(Found);
    }

    const char* FPos;
    const char* FEnd;
    const char* FCarriageReturn;
    const char* FLineFeed;
    TEncoding FEncoding;
};

class TListLines {
public:
    using TLine = UnicodeString;

    explicit TListLines(const TStrings& ALines) : FLines(ALines), FCount(ALines.Count()) {}
    bool Next(TLine& ALine) {
        if (FNext == FCount)
            return false;
        ALine = FLines.Strings(FNext++);
        return true;
    }
    const UnicodeString& Text(const TLine& ALine) const noexcept { return ALine; }
    std::size_t Readable(const TLine&) const noexcept { return 0; }

private:
    const TStrings& FLines;
    int FCount;
    int FNext = 0;
};

// The low bytes of the characters; of 16-bit ones eight at a time.
template <class TChar> void CopyLowBytes(const TChar* ASource, std::size_t ACount, char* ATarget) noexcept {
    if constexpr (sizeof(TChar) == 2) {
        using TUnits = std::uint16_t __attribute__((vector_size(16)));
        using TUnitBytes = std::uint8_t __attribute__((vector_size(8)));
        constexpr std::size_t cStep = 8;
        for (; ACount >= cStep; ACount -= cStep, ASource += cStep, ATarget += cStep) {
            TUnits Units;
            std::memcpy(&Units, ASource, sizeof Units);
            const TUnitBytes Bytes = __builtin_convertvector(Units, TUnitBytes);
            std::memcpy(ATarget, &Bytes, sizeof Bytes);
        }
    }
    for (std::size_t I = 0; I < ACount; ++I)
        ATarget[I] = static_cast<char>(ASource[I]);
}

// AReadable characters from the start of the line on may be read, if they are bytes.
template <class TChar>
void DecodeLine(std::basic_string_view<TChar> ALine, std::size_t AReadable, TOutput& AOutput) {
    const auto Count = static_cast<std::size_t>(ALine[0] - ' ') & cLongestLine;
    const std::size_t Needed = detail::UUGroupCount(Count) * 4;
    ALine.remove_prefix(1);
    std::uint8_t* const Target = AOutput.Room();
    AOutput.Add(Count);
    if constexpr (sizeof(TChar) == 1) {
        if (ALine.size() >= Needed && AReadable > Needed + detail::cUUSlack)
            return detail::DecodeUUGroups(ALine.data(), Count, Target);
    }
    std::array<char, cLongestData + detail::cUUSlack> Data;
    const std::size_t Present = std::min(ALine.size(), Needed);
    CopyLowBytes(ALine.data(), Present, Data.data());
    std::fill(Data.begin() + Present, Data.end(), ' ');
    detail::DecodeUUGroups(Data.data(), Count, Target);
}

// A mode from 1 to 65535, in digits alone; else 0.
std::uint16_t ModeOf(std::u16string_view AText) noexcept {
    std::uint32_t Mode = 0;
    for (const char16_t Char : AText) {
        if (Char < u'0' || Char > u'9')
            return 0;
        Mode = Mode * 10 + (Char - u'0');
        if (Mode > UINT16_MAX)
            return 0;
    }
    return static_cast<std::uint16_t>(Mode);
}

TQzUUData DataOfHeader(std::u16string_view ALine) {
    constexpr std::u16string_view cBegin = u"begin ";
    if (!SameText(ALine.substr(0, cBegin.size()), cBegin))
        RaiseInvalid();
    ALine.remove_prefix(cBegin.size());
    const std::size_t Blank = std::min(ALine.find(u' '), ALine.size());
    const std::uint16_t Mode = ModeOf(ALine.substr(0, Blank));
    if (Mode == 0)
        RaiseInvalid();
    return {ALine.substr(std::min(Blank + 1, ALine.size())), Mode};
}

template <class TLines> TQzUUData ReadHeader(TLines& ALines, std::u16string_view AFileName) {
    typename TLines::TLine Line;
    while (ALines.Next(Line)) {
        const auto& Text = ALines.Text(Line);
        if (AFileName.empty() || ContainsText(Text, AFileName))
            return DataOfHeader(Text);
    }
    RaiseEnd();
}

template <class TLines> void DecodeLines(TLines& ALines, TOutput& AOutput) {
    // The line that is decoded, and the two that follow it.
    typename TLines::TLine Line, Next, AfterNext;
    bool HasNext = ALines.Next(Next);
    bool HasAfterNext = HasNext && ALines.Next(AfterNext);
    do {
        if (!HasNext)
            RaiseEnd();
        std::swap(Line, Next);
        std::swap(Next, AfterNext);
        HasNext = std::exchange(HasAfterNext, HasAfterNext && ALines.Next(AfterNext));
        if (Line.empty())
            RaiseInvalid();
        DecodeLine(std::basic_string_view(Line.data(), Line.size()), ALines.Readable(Line), AOutput);
        if (!HasAfterNext)
            RaiseEnd();
    } while (Next.size() != 1 || Next[0] != '`' || AfterNext.size() != 3 ||
             !SameText(ALines.Text(AfterNext), u"end"));
}

template <class TLines> TQzUUData Decode(TLines ALines, std::u16string_view AFileName, TStream& ATarget) {
    TQzUUData Result = ReadHeader(ALines, AFileName);
    TOutput Output(ATarget);
    try {
        DecodeLines(ALines, Output);
    } catch (...) {
        Output.Flush();
        throw;
    }
    Output.Flush();
    return Result;
}

// Bytes that are all ASCII are decoded where they are. In any other text characters count, so it becomes a
// list.
TQzUUData DecodeText(std::string_view AText, const TEncoding& AEncoding, std::u16string_view AFileName,
                     TStream& AOutput) {
    const bool IsPlain = IsAscii(AText) && !QzIsWideCodePage(AEncoding.CodePage());
    if (IsPlain)
        return Decode(TByteLines(AText, AEncoding.CodePage()), AFileName, AOutput);
    TStringList Lines;
    Lines.SetText(AEncoding.GetString(std::as_bytes(std::span(AText))));
    return Decode(TListLines(Lines), AFileName, AOutput);
}

TQzUUData DecodeContent(std::span<const std::byte> ABytes, TStream& AOutput) {
    std::size_t Mark = 0;
    const TEncoding Encoding = TEncoding::Detect(ABytes, TEncoding(), Mark);
    const auto Text = ABytes.subspan(Mark);
    return DecodeText({reinterpret_cast<const char*>(Text.data()), Text.size()}, Encoding, u"", AOutput);
}

} // namespace

TQzUUData QzUUDecode(const TStrings& ALines, const TStringArg& AFileName, TStream& AOutput) {
    return Decode(TListLines(ALines), AFileName, AOutput);
}

TQzUUData QzUUDecode(const TStrings& ALines, TStream& AOutput) {
    return QzUUDecode(ALines, u"", AOutput);
}

TQzUUData QzUUDecode(TStream& AInput, TStream& AOutput) {
    const TQzReadBuf Content(AInput);
    AInput.Seek(std::int64_t{0}, soEnd);
    if (&AInput != &AOutput)
        return DecodeContent(Content.Bytes(), AOutput);
    // The output would overwrite and move what is read.
    const std::vector<std::byte> Copy(Content.Bytes().begin(), Content.Bytes().end());
    return DecodeContent(Copy, AOutput);
}

TQzUUData QzUUDecode(const AnsiString& AText, TStream& AOutput) {
    return QzUUDecode(AText, u"", AOutput);
}

TQzUUData QzUUDecode(const AnsiString& AText, const TStringArg& AFileName, TStream& AOutput) {
    return DecodeText(AText.View(), TEncoding(AText.CodePage()), AFileName, AOutput);
}

} // namespace qz

#include <qz/common/uQzUUCode/UUEncode.h>

#include <algorithm>
#include <memory>

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/common/uQzUUCode/detail/UUGroups.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

constexpr std::size_t cLines = 1024; // encoded at a time
constexpr std::size_t cBlockBytes = cLines * detail::cUULineBytes;
constexpr std::size_t cLineChars = 1 + detail::UUGroupCount(detail::cUULineBytes) * 4 + 2;

// Writes the lines of ACount bytes; the end of what was written.
char* EncodeLines(const std::uint8_t* ASource, std::size_t ACount, char* ATarget) {
    while (ACount > 0) {
        const std::size_t Step = std::min(ACount, detail::cUULineBytes);
        *ATarget++ = static_cast<char>(' ' + Step);
        detail::EncodeUUGroups(ASource, Step, ATarget);
        ATarget += detail::UUGroupCount(Step) * 4;
        *ATarget++ = '\r';
        *ATarget++ = '\n';
        ASource += Step;
        ACount -= Step;
    }
    return ATarget;
}

} // namespace

void QzUUEncode(TStream& AInput, TStream& AOutput, const TStringArg& AFileName, std::uint16_t AMode) {
    if (AFileName.View().find_first_of(u"\r\n") != std::u16string_view::npos)
        throw Exception(u"Invalid UUData");
    const AnsiString Header(Format(u"begin %d %s\r\n", {AMode, AFileName.View()}));
    AOutput.WriteBuffer(Header.data(), Header.Length());
    const auto Bytes = std::make_unique_for_overwrite<std::uint8_t[]>(cBlockBytes + detail::cUUSlack);
    const auto Text = std::make_unique_for_overwrite<char[]>(cLines * cLineChars + detail::cUUSlack);
    for (std::size_t Count = cBlockBytes; Count == cBlockBytes;) {
        Count = static_cast<std::size_t>(AInput.ReadUpTo(Bytes.get(), cBlockBytes));
        std::fill_n(Bytes.get() + Count, detail::cUUSlack, std::uint8_t{0});
        AOutput.WriteBuffer(Text.get(), EncodeLines(Bytes.get(), Count, Text.get()) - Text.get());
    }
    AOutput.WriteBuffer("`\r\nend", 6);
}

AnsiString QzUUEncode(TStream& AInput, const TStringArg& AFileName, std::uint16_t AMode) {
    TMemoryStream Target;
    QzUUEncode(AInput, Target, AFileName, AMode);
    return AnsiString(std::string_view(static_cast<const char*>(Target.Memory()), Target.Content().size()));
}

AnsiString QzUUEncode(const AnsiString& AText, const TStringArg& AFileName, std::uint16_t AMode) {
    TQzMemoryStream Source(const_cast<char*>(AText.data()), AText.size()); // only read
    return QzUUEncode(Source, AFileName, AMode);
}

} // namespace qz

#include "TextFile.h"

#include <qz/common/uQzClasses.h>
#include <qz/common/uQzTypes.h>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/streams/FileStream.h>

using namespace qz;

namespace {

constexpr std::size_t cLoadStep = 64 << 10;
constexpr std::size_t cLongestPiece = 64 << 10;
constexpr std::int64_t cProgressEvery = 1000;

struct TWord {
    std::u16string_view Start;
    TQzLogLevel Level;
};

// A word that begins so, in any case of letters, gives the line its level.
constexpr TWord cWords[] = {
    {u"fatal", llFatal}, {u"panic", llFatal}, {u"critical", llFatal}, {u"error", llError},
    {u"fail", llError},  {u"warn", llWarn},   {u"debug", llDebug},
};

constexpr bool IsLetter(char16_t AChar) noexcept {
    return LowCase(AChar) >= u'a' && LowCase(AChar) <= u'z';
}

// The bytes of a line that go into one message. A character is not torn, in UTF-8 and in UTF-16.
std::span<const std::byte> FirstPiece(std::span<const std::byte> ALine, bool AIsWide) {
    if (ALine.size() <= cLongestPiece)
        return ALine;
    std::size_t Length = cLongestPiece;
    if (AIsWide)
        Length -= (ALine[Length - 1] & std::byte{0xFC}) == std::byte{0xD8} ? 2 : 0;
    else
        while (Length > cLongestPiece - 4 && (ALine[Length] & std::byte{0xC0}) == std::byte{0x80})
            --Length;
    return ALine.first(Length);
}

// Logs lines of bytes in one code page.
class TLineLog {
public:
    TLineLog(TTextFile& AFile, std::uint16_t ACodePage, IQzLogger& ALog)
        : FFile(AFile),
          FCodePage(ACodePage),
          FLog(ALog) {}

    void Add(std::span<const std::byte> ALine) {
        const bool IsWide = FCodePage == cUtf16CodePage;
        ++FFile.Lines;
        do {
            const std::span<const std::byte> Piece = FirstPiece(ALine, IsWide);
            ALine = ALine.subspan(Piece.size());
            UnicodeString Text = TQzEncoding::ConvertB(Piece.data(), Piece.size(), FCodePage);
            if (ALine.empty() && Text.View().ends_with(u'\r'))
                Text.SetLength(Text.size() - 1);
            const TQzLogLevel Level = LevelOf(Text);
            FLog.Log(Level, Text);
            ++FFile.Messages;
            ++FFile.OfLevel[static_cast<std::size_t>(Level)];
        } while (!ALine.empty());
    }

private:
    TTextFile& FFile;
    std::uint16_t FCodePage;
    IQzLogger& FLog;
};

// What the file itself tells: its size, and the code page if it has a mark or looks like UTF-16.
void Inspect(const UnicodeString& AFileName, TTextFile& AFile) {
    TFileStream File(AFileName, fmOpenRead | fmShareDenyNone);
    AFile.Bytes = File.Size();
    AFile.CodePage = QzGetCodePage(File);
}

} // namespace

TQzLogLevel LevelOf(std::u16string_view ALine) noexcept {
    if (TrimView(ALine).empty())
        return llTrace;
    TQzLogLevel Level = llAll;
    bool IsWithinWord = false;
    for (std::size_t I = 0; I < ALine.size(); ++I) {
        const bool IsStart = !IsWithinWord && IsLetter(ALine[I]);
        IsWithinWord = IsLetter(ALine[I]);
        if (!IsStart)
            continue;
        for (const TWord& Word : cWords) {
            if (Word.Start[0] == LowCase(ALine[I]) && Word.Level > Level &&
                StartsText(Word.Start, ALine.substr(I)))
                Level = Word.Level;
        }
    }
    return Level == llAll ? llInfo : Level;
}

// Text in the system's code page is walked as it stands in the file, any other as UTF-16.
TTextFile LogTextFile(const UnicodeString& AFileName, std::uint16_t ACodePage, IQzLogger& ALog,
                      const TOnProgress& AProgress) {
    if (DirectoryExists(AFileName))
        throw Exception(u"is a directory; name the text files in it");
    TTextFile Result;
    if (FileExists(AFileName))
        Inspect(AFileName, Result);
    const bool IsDetected = Result.CodePage != 0;
    if (!IsDetected)
        Result.CodePage = ACodePage;
    TQzStringStream Text(Result.CodePage == 0 ? 0 : cUtf16CodePage, cLoadStep);
    Text.LoadFromFile(AFileName, IsDetected ? -1 : ACodePage);
    if (Text.Size() == 0)
        return Result;
    Text.SetPosition(0);
    TLineLog Lines(Result, Text.FCodePage, ALog);
    TQzTextParser Parser(&Text, false, Text.FCodePage);
    while (!Parser.Eof()) {
        Parser.SetMark(tpMarkPos1);
        if (Text.FCodePage == 0)
            Parser.SkipWhile(sopUnEq, '\n');
        else
            Parser.SkipWhile(sopUnEq, u'\n');
        Lines.Add(Parser.SelectedBytes(tpMarkPos1, tpCurPos));
        if (!Parser.Eof())
            Parser.Next();
        if (Result.Lines % cProgressEvery == 0)
            AProgress(Result);
    }
    return Result;
}

// A parser in small chunks, and operations on it by number, to compare with those on another.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>

#include <qz/common/uQzClasses/TextParser.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

// Bytes that a parser cannot take for a stream in memory, and that may become fewer.
class TPlainStream : public TStream {
    QZ_CLASS(TPlainStream, TStream)

public:
    explicit TPlainStream(std::string_view ABytes) : FBytes(ABytes) {}
    // Gives a byte at a time once it is to fail, and raises after so many.
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override {
        if (FFailAfter == 0) {
            FFailAfter = -1;
            throw EReadError(u"Stream read error");
        }
        if (FFailAfter > 0) {
            --FFailAfter;
            ACount = 1;
        }
        const std::size_t Count =
            std::min(FBytes.size() - std::min(FPlace, FBytes.size()), std::size_t(ACount));
        if (Count != 0)
            std::memcpy(ABuffer, FBytes.data() + FPlace, Count);
        FPlace += Count;
        return static_cast<std::int32_t>(Count);
    }
    std::int32_t Write(const void*, std::int32_t) override { return 0; }
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override {
        const std::int64_t From = AOrigin == soBeginning ? 0
            : AOrigin == soEnd                           ? GetSize()
                                                         : static_cast<std::int64_t>(FPlace);
        FPlace = static_cast<std::size_t>(From + AOffset);
        return From + AOffset;
    }
    std::int64_t GetSize() override { return static_cast<std::int64_t>(FBytes.size()); }

    std::string FBytes;
    int FFailAfter = -1;

private:
    std::size_t FPlace = 0;
};
inline constinit const TClassRec TPlainStream::ClassRec =
    DescribeClass<TPlainStream>(u"TPlainStream", {.Unit = u"Test"});

class TChunkedParser : public TQzTextParser {
    QZ_CLASS(TChunkedParser, TQzTextParser)

public:
    TChunkedParser(TStream* AStream, std::uint16_t ACodePage, std::size_t AChunkSize)
        : TQzTextParser(AStream, false, ACodePage, AChunkSize) {}
    using TQzTextParser::FChunk;
    using TQzTextParser::SrcPeekNext;
};
inline constinit const TClassRec TChunkedParser::ClassRec =
    DescribeClass<TChunkedParser>(u"TChunkedParser", {.Unit = u"Test"});

template <class TStep> UnicodeString Outcome(const TStep& AStep) {
    try {
        return AStep();
    } catch (const EAssertionFailed&) {
        return u"assertion";
    } catch (const Exception& Error) {
        return u"raised " + Error.Message();
    }
}

inline UnicodeString Number(std::int64_t AValue) {
    return UnicodeString(std::to_string(AValue));
}

inline UnicodeString Places(const TQzTextParser& AParser) {
    return Number(AParser.LineNr()) + u":" + Number(AParser.ColNr()) + u" " + Number(AParser.CharsRead()) +
        u"/" + Number(AParser.Position()) + (AParser.Eof() ? u" end" : u"");
}

// What one operation gives, and where the parser stands then.
inline UnicodeString Try(TQzTextParser& AParser, unsigned AKind, unsigned AValue) {
    static constexpr TQzTextParserPosType cPlaces[] = {tpPrevPos,  tpCurPos,   tpPeekPos,
                                                       tpMarkPos1, tpMarkPos2, tpMarkPos3};
    const auto Mark = static_cast<TQzTextParserPosType>(static_cast<unsigned>(tpMarkPos1) + AValue % 3);
    const auto Op = static_cast<TQzTextParserSkipOp>(AValue % 8);
    const char16_t Chars[] = {u'a', u' ', u'\n', u'ä', u'\u20AC', u'z'};
    const UnicodeString Result = Outcome([&]() -> UnicodeString {
        switch (AKind % 16) {
        case 0: return AParser.CurrChar();
        case 1: return AParser.ReadChar();
        case 2: return AParser.PeekChar();
        case 3: return AParser.PrevChar();
        case 4: return AParser.SetMark(Mark), u"";
        case 5: return AParser.ClearMark(Mark), u"";
        case 6: return AParser.Selected(cPlaces[AValue % 6], cPlaces[AValue / 6 % 6], AValue % 2 != 0);
        case 7: return UnicodeString(AParser.SelectedA(cPlaces[AValue % 6], tpCurPos, false).ToUnicode());
        case 8: return AParser.PeekString(static_cast<std::int32_t>(AValue % 12));
        case 9: return AParser.PeekStringA(static_cast<std::int32_t>(AValue % 12)).ToUnicode();
        case 10: return AParser.SkipWhile(Op, Chars[AValue / 8 % 6]), u"";
        case 11: return AParser.SkipWhile(Op, static_cast<char>(Chars[AValue / 8 % 4])), u"";
        case 12: return AParser.SkipWhileInSet(Op, {' ', 'a', 'b', '\n', '\xC3'}), u"";
        case 13: return AParser.NextChar(), u"";
        case 14:
            return Number(AParser.PeekCharA()) + Number(AParser.CurrCharA()) + Number(AParser.PrevCharA());
        default: return AParser.Next(), u"";
        }
    });
    if (AKind % 64 == 63)
        AParser.First();
    return Result + u" at " + Places(AParser);
}

} // namespace qz

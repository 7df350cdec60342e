// TQzTextParser: the step, and the loops that pass whole runs, for each kind of text.
#include <algorithm>
#include <cstring>
#include <utility>

#include <qz/common/uQzClasses/TextParserKinds.h>

namespace qz {
namespace {

// Counters begin again where 32 bits end.
void Advance(std::int32_t& ACounter, std::size_t ABy) noexcept {
    ACounter =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(ACounter) + static_cast<std::uint32_t>(ABy));
}

// Calls AStep with a comparison of two characters for the operator; not at all for those of sets.
template <class TStep> void WithComparison(TQzTextParserSkipOp AOp, const TStep& AStep) {
    switch (AOp) {
    case sopEq: return AStep([](auto ALeft, auto ARight) { return ALeft == ARight; });
    case sopLt: return AStep([](auto ALeft, auto ARight) { return ALeft < ARight; });
    case sopGt: return AStep([](auto ALeft, auto ARight) { return ALeft > ARight; });
    case sopUnEq: return AStep([](auto ALeft, auto ARight) { return ALeft != ARight; });
    case sopLtEq: return AStep([](auto ALeft, auto ARight) { return ALeft <= ARight; });
    case sopGtEq: return AStep([](auto ALeft, auto ARight) { return ALeft >= ARight; });
    default: return;
    }
}

// A test of single bytes that others can search for.
struct TIsNot {
    std::uint8_t Byte;
    bool operator()(TQzTextPos APos) const { return *APos != Byte; }
};

// A line feed in each kind of text, to ask a test about.
constexpr std::uint8_t cLineFeed[] = {'\n', 0};

template <class TTest> TQzTextPos ByteRunEnd(TQzTextPos ABegin, TQzTextPos AEnd, const TTest& ATest) {
    while (ABegin < AEnd && ATest(ABegin))
        ++ABegin;
    return ABegin;
}

TQzTextPos ByteRunEnd(TQzTextPos ABegin, TQzTextPos AEnd, const TIsNot& ATest) {
    const void* Found = std::memchr(ABegin, ATest.Byte, static_cast<std::size_t>(AEnd - ABegin));
    return Found == nullptr ? AEnd : static_cast<TQzTextPos>(Found);
}

} // namespace

const TQzTextParser::TByteClass& TQzTextParser::ClassOf(const TQzTextParserCharSet& ASet) {
    for (const TByteClass& Class : FClasses) {
        if (Class.Set == ASet)
            return Class;
    }
    TByteClass& Class = FClasses[FNextClass];
    FNextClass ^= 1;
    for (std::size_t I = 0; I < Class.Contains.size(); ++I)
        Class.Contains[I] = ASet.Contains(static_cast<char32_t>(I));
    Class.Set = ASet;
    return Class;
}

namespace detail {

template <TQzCharacterSetType Kind> void TTextParserKind<Kind>::Next(TQzTextParser& AParser) {
    TQzTextParserState& State = AParser.FState;
    State.PrevPos = State.CurPos;
    if (State.Eof) [[unlikely]]
        AParser.CheckEOF();
    bool IsNewLine = false;
    if constexpr (Kind == MBCS) {
        const std::uint8_t First = *State.CurPos;
        const std::size_t Length = StepLength(First);
        if (AParser.Left() > Length) [[likely]]
            State.CurPos += Length;
        else
            AParser.SlowStep(Length);
        Advance(State.CharsRead, 1);
        Advance(State.Position, Length);
        IsNewLine = First == '\n'; // the one that is left after
    } else {
        constexpr std::size_t cUnit = Kind == DBCS ? 2 : 1;
        State.CurPos += cUnit;
        if (AParser.Left() < cUnit) [[unlikely]]
            AParser.Arrive();
        Advance(State.Position, cUnit);
        // Apart from the other counter: the two as one vector would make each step wait for the one before.
        IsNewLine = !State.Eof && (Kind == DBCS ? UnitAt(State.CurPos) : *State.CurPos) == '\n';
        Advance(State.CharsRead, cUnit);
    }
    if (IsNewLine) {
        Advance(State.LineNr, 1);
        State.ColNr = 1;
    } else {
        Advance(State.ColNr, 1);
    }
}

// Passes the run of characters that hold the test, as far as the last one in memory. True when that one holds
// it too.
template <TQzCharacterSetType Kind>
template <class TTest>
bool TTextParserKind<Kind>::Run(TQzTextParser& AParser, const TTest& ATest) {
    constexpr std::ptrdiff_t cUnit = Kind == DBCS ? 2 : 1;
    TQzTextParserState& State = AParser.FState;
    const TQzTextPos Start = State.CurPos;
    const TQzTextPos LastOne = Start + (AParser.FBufEnd - Start) / cUnit * cUnit - cUnit;
    TQzTextPos Here = Start;
    if constexpr (Kind == SBCS) {
        Here = ByteRunEnd(Start, LastOne, ATest);
    } else {
        while (Here < LastOne && ATest(Here))
            Here += cUnit;
    }
    if (Here == Start)
        return ATest(Here);
    // A line begins with the line feed on which a step lands; of a run without them that is the last step
    // alone.
    TQzTextPos Line = nullptr;
    for (TQzTextPos Pos = ATest(cLineFeed) ? Start + cUnit : Here; Pos <= Here; Pos += cUnit) {
        if constexpr (Kind == SBCS) {
            Pos = ByteRunEnd(Pos, Here + 1, TIsNot{'\n'});
            if (Pos > Here)
                break;
        }
        if ((Kind == DBCS ? UnitAt(Pos) : *Pos) == '\n') {
            Advance(State.LineNr, 1);
            Line = Pos;
        }
    }
    if (Line != nullptr)
        State.ColNr = 1;
    Advance(State.ColNr, static_cast<std::size_t>((Here - (Line == nullptr ? Start : Line)) / cUnit));
    State.PrevPos = Here - cUnit;
    State.CurPos = Here;
    Advance(State.CharsRead, static_cast<std::size_t>(Here - Start));
    Advance(State.Position, static_cast<std::size_t>(Here - Start));
    return ATest(Here);
}

// The forms are passed one by one, with all that is counted at hand.
template <>
template <class TTest>
bool TTextParserKind<MBCS>::Run(TQzTextParser& AParser, const TTest& ATest) {
    TQzTextParserState& State = AParser.FState;
    const TQzTextPos Start = State.CurPos;
    const TQzTextPos End = AParser.FBufEnd;
    TQzTextPos Here = Start;
    TQzTextPos Before = State.PrevPos;
    auto Line = static_cast<std::uint32_t>(State.LineNr);
    auto Column = static_cast<std::uint32_t>(State.ColNr);
    std::size_t Count = 0;
    for (;;) {
        // ASCII within a line first, where all steps are alike.
        const TQzTextPos From = Here;
        while (Here < End - 1 && *Here < 0x80 && *Here != '\n' && ATest(Here))
            ++Here;
        if (Here != From) {
            Before = Here - 1;
            Column += static_cast<std::uint32_t>(Here - From);
            Count += static_cast<std::size_t>(Here - From);
        }
        const std::uint8_t First = *Here;
        const std::size_t Length = StepLength(First);
        // The last form, which may be cut off, is left to what follows.
        if (static_cast<std::size_t>(End - Here) <= Length || !ATest(Here))
            break;
        const bool IsNewLine = First == '\n';
        Line += IsNewLine ? 1u : 0u;
        Column = IsNewLine ? 1 : Column + 1;
        Before = Here;
        Here += Length;
        ++Count;
    }
    State.CurPos = Here;
    State.PrevPos = Before;
    State.LineNr = static_cast<std::int32_t>(Line);
    State.ColNr = static_cast<std::int32_t>(Column);
    Advance(State.CharsRead, Count);
    Advance(State.Position, static_cast<std::size_t>(Here - Start));
    if (static_cast<std::size_t>(End - Here) > StepLength(*Here))
        return false;
    // More may be had of a form that is cut off; the test may raise for one that the end cuts.
    AParser.IsAvailable(StepLength(*Here));
    return ATest(State.CurPos);
}

// The last character in memory is passed by a step, which fetches more.
template <TQzCharacterSetType Kind>
template <class TTest>
void TTextParserKind<Kind>::SkipBy(TQzTextParser& AParser, const TTest& ATest) {
    while (!AParser.FState.Eof && Run(AParser, ATest))
        Next(AParser);
}

template <TQzCharacterSetType Kind>
void TTextParserKind<Kind>::SkipWhileA(TQzTextParser& AParser, TQzTextParserSkipOp AOp, char AChar) {
    if (AParser.FState.Eof || AOp == sopIn || AOp == sopNotIn)
        return;
    const auto Char = static_cast<std::uint8_t>(AChar);
    if constexpr (Kind == MBCS) {
        if (Char >= 0x80) {
            char16_t Units[8]{};
            RequireConverted(cSystemCodePage,
                             DecodeCodePage(cSystemCodePage, std::as_bytes(std::span(&AChar, 1)), Units,
                                            platform::TDecoding::Lenient));
            return SkipWhileW(AParser, AOp, Units[0]);
        }
    }
    if (Kind == SBCS && AOp == sopUnEq)
        return SkipBy(AParser, TIsNot{Char});
    WithComparison(AOp, [&](auto ACompare) {
        SkipBy(AParser, [&](TQzTextPos APos) {
            const auto Byte = Kind == SBCS ? *APos : static_cast<std::uint8_t>(*AnsiAt(AParser, APos, false));
            return ACompare(Byte, Char);
        });
    });
}

template <TQzCharacterSetType Kind>
void TTextParserKind<Kind>::SkipWhileW(TQzTextParser& AParser, TQzTextParserSkipOp AOp, char16_t AChar) {
    if (AParser.FState.Eof || AOp == sopIn || AOp == sopNotIn)
        return;
    const char16_t* Table = Kind == SBCS ? AParser.WideTable() : nullptr;
    WithComparison(AOp, [&](auto ACompare) {
        SkipBy(AParser, [&](TQzTextPos APos) {
            if constexpr (Kind == SBCS)
                return ACompare(Table[*APos], AChar);
            else if constexpr (Kind == DBCS)
                return ACompare(UnitAt(APos), AChar);
            else
                return ACompare(*APos < 0x80 ? char16_t{*APos} : *WideAt(AParser, APos, false), AChar);
        });
    });
}

template <TQzCharacterSetType Kind>
void TTextParserKind<Kind>::SkipWhileIn(TQzTextParser& AParser, TQzTextParserSkipSetOp AOp,
                                        const TQzTextParserCharSet& ASet) {
    const auto& Contains = AParser.ClassOf(ASet).Contains;
    const bool Wanted = AOp == sopIn;
    SkipBy(AParser, [&](TQzTextPos APos) {
        if constexpr (Kind == DBCS) {
            const char16_t Unit = UnitAt(APos);
            return Unit > 0xFF || Contains[Unit] == Wanted;
        } else {
            return Contains[*APos] == Wanted;
        }
    });
}

template <TQzCharacterSetType Kind> void TTextParserKind<Kind>::FillIn(TQzTextParser& AParser) {
    AParser.FnCurrCharA = CurrCharA;
    AParser.FnCurrCharW = CurrCharW;
    AParser.FnReadCharA = ReadCharA;
    AParser.FnReadCharW = ReadCharW;
    AParser.FnPrevCharA = PrevCharA;
    AParser.FnPrevCharW = PrevCharW;
    AParser.FnPeekCharA = PeekCharA;
    AParser.FnPeekCharW = PeekCharW;
    AParser.FnPeekStringA = PeekStringA;
    AParser.FnPeekStringW = PeekStringW;
    AParser.FnNext = Next;
    AParser.FnSkipWhileA = SkipWhileA;
    AParser.FnSkipWhileW = SkipWhileW;
    AParser.FnSkipWhileInSet = SkipWhileIn;
}

} // namespace detail

void TQzTextParser::SetCharacterSetType(TQzCharacterSetType AValue) {
    FCharacterSetType = AValue;
    switch (AValue) {
    case SBCS: detail::TTextParserKind<SBCS>::FillIn(*this); break;
    case DBCS: detail::TTextParserKind<DBCS>::FillIn(*this); break;
    case MBCS: detail::TTextParserKind<MBCS>::FillIn(*this); break;
    }
    RestoreEnd();
    // A text that is under way may end here for this kind.
    if (FState.CurPos != nullptr)
        Arrive();
}

} // namespace qz

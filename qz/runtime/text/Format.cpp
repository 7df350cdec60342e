#include <qz/runtime/text/Format.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

constexpr int cUnset = -1;
// The most that a width, a precision or an index may be.
constexpr int cMaxNumber = 65535;
// The most digits that a precision gives an integer.
constexpr int cMaxIntDigits = 255;

// One place of the pattern.
struct TPlace {
    int Index = cUnset;
    int Width = cUnset;
    int Precision = cUnset;
    bool IsLeft = false;
    char16_t Type = 0;
};

// A set of kinds of arguments, a bit each.
using TKinds = std::uint32_t;
template <std::same_as<TVarRecKind>... T> constexpr TKinds KindsOf(T... AKinds) noexcept {
    return ((TKinds{1} << static_cast<unsigned>(AKinds)) | ...);
}

// The kinds that a place of each type takes, by its letter.
constexpr std::array<TKinds, 26> cKindsOfType = [] {
    constexpr TKinds Integers = KindsOf(vtInteger, vtInt64, vtUInt64);
    std::array<TKinds, 26> Kinds{};
    for (const unsigned Type : {u'd', u'u', u'x'})
        Kinds[Type - u'a'] = Integers;
    for (const unsigned Type : {u'e', u'f', u'g', u'n', u'm'})
        Kinds[Type - u'a'] = Integers | KindsOf(vtExtended);
    Kinds['p' - 'a'] = KindsOf(vtPointer, vtObject, vtClass, vtInterface);
    Kinds['s' - 'a'] = ~(Integers | KindsOf(vtExtended, vtPointer, vtInterface));
    return Kinds;
}();

// Whether a place of that type, a letter of any case, takes the argument.
bool Fits(char16_t AType, TVarRecKind AKind) noexcept {
    const auto Letter = static_cast<unsigned>((AType | 0x20) - u'a');
    return Letter < cKindsOfType.size() && (cKindsOfType[Letter] >> static_cast<unsigned>(AKind) & 1) != 0;
}

// Walks through a pattern, and hands its literal pieces and its places to TTarget:
//
//     void Literal(std::basic_string_view<TChar> AText);
//     void Place(const TPlace& APlace, const TVarRec& AArg);
template <class TChar, class TTarget> class TFormatReader {
public:
    TFormatReader(std::basic_string_view<TChar> APattern, TVarRecs AArgs, TTarget& ATarget)
        : FPattern(APattern),
          FArgs(AArgs),
          FTarget(ATarget) {}

    void Run() {
        while (true) {
            const std::size_t Mark = std::min(FPattern.find(TChar{'%'}, FHere), FPattern.size());
            FTarget.Literal(FPattern.substr(FHere, Mark - FHere));
            FHere = Mark + 1;
            if (Mark == FPattern.size())
                return;
            if (FHere < FPattern.size() && FPattern[FHere] == TChar{'%'}) {
                FTarget.Literal(FPattern.substr(FHere++, 1));
                continue;
            }
            const TPlace Place = ReadPlace();
            const TVarRec& Arg = NextArg();
            if (!Fits(Place.Type, Arg.Kind()))
                RaiseInvalid();
            FTarget.Place(Place, Arg);
        }
    }

private:
    [[noreturn]] void RaiseInvalid() const {
        UnicodeString Message = u"Format '";
        Message += UnicodeString(FPattern);
        throw EConvertError(Message += u"' invalid or incompatible with argument");
    }
    [[noreturn]] void RaiseMissing() const {
        UnicodeString Message = u"No argument for format '";
        Message += UnicodeString(FPattern);
        throw EConvertError(Message += u'\'');
    }

    TChar Peek() const {
        if (FHere >= FPattern.size())
            RaiseInvalid();
        return FPattern[FHere];
    }
    bool Take(TChar AChar) {
        if (Peek() != AChar)
            return false;
        ++FHere;
        return true;
    }

    const TVarRec& NextArg() {
        if (FNextArg >= FArgs.size())
            RaiseMissing();
        return FArgs.begin()[FNextArg++];
    }

    // Digits, or "*" for an argument; cUnset when neither stands here.
    int ReadNumber() {
        if (Take(TChar{'*'})) {
            const TVarRec& Arg = NextArg();
            if ((Arg.Kind() != vtInteger && Arg.Kind() != vtInt64) || Arg.Int() < -cMaxNumber ||
                Arg.Int() > cMaxNumber)
                RaiseInvalid();
            return static_cast<int>(Arg.Int());
        }
        int Number = cUnset;
        while (Peek() >= TChar{'0'} && Peek() <= TChar{'9'}) {
            Number = std::max(Number, 0) * 10 + (FPattern[FHere++] - TChar{'0'});
            if (Number > cMaxNumber)
                RaiseInvalid();
        }
        return Number;
    }

    // A negative width from an argument sets the text to the left, a negative precision counts as none.
    TPlace ReadPlace() {
        TPlace Place;
        int Number = Peek() == TChar{'*'} ? cUnset : ReadNumber();
        if (Take(TChar{':'})) {
            if (Number == cUnset)
                Number = 0;
            FNextArg = static_cast<std::size_t>(Number);
            Number = cUnset;
        }
        if (Number == cUnset) {
            Place.IsLeft = Take(TChar{'-'});
            const bool IsArg = Peek() == TChar{'*'};
            Number = ReadNumber();
            if (IsArg && Number < 0) {
                Place.IsLeft = true;
                Number = -Number;
            }
        }
        Place.Width = Number;
        if (Take(TChar{'.'}))
            Place.Precision = std::max(ReadNumber(), cUnset);
        Place.Type = static_cast<char16_t>(Peek() | 0x20);
        ++FHere;
        return Place;
    }

    std::basic_string_view<TChar> FPattern;
    std::size_t FHere = 0;
    TVarRecs FArgs;
    std::size_t FNextArg = 0;
    TTarget& FTarget;
};

// Builds the text.
class TFormatter {
public:
    explicit TFormatter(const TFormatSettings& ASettings) : FSettings(ASettings) {}

    UnicodeString Run(std::u16string_view APattern, TVarRecs AArgs) {
        FResult.Reserve(APattern.size() + 16 * AArgs.size());
        TFormatReader<char16_t, TFormatter>(APattern, AArgs, *this).Run();
        return std::move(FResult);
    }

    void Literal(std::u16string_view AText) { FResult.Append(AText); }
    void Place(const TPlace& APlace, const TVarRec& AArg) {
        const std::size_t Start = FResult.size();
        switch (APlace.Type) {
        case u'd':
        case u'u':
        case u'x': WriteInteger(APlace, AArg); break;
        case u's': WriteText(APlace, AArg); break;
        case u'p': WritePointer(AArg); break;
        case u'e': WriteFloat(AArg, ffExponent, APlace.Precision == cUnset ? 15 : APlace.Precision, 3); break;
        case u'f': WriteFloat(AArg, ffFixed, 18, APlace.Precision == cUnset ? 2 : APlace.Precision); break;
        case u'g': WriteFloat(AArg, ffGeneral, APlace.Precision == cUnset ? 15 : APlace.Precision, 0); break;
        case u'n': WriteFloat(AArg, ffNumber, 18, APlace.Precision == cUnset ? 2 : APlace.Precision); break;
        case u'm':
            WriteFloat(AArg, ffCurrency, 18,
                       APlace.Precision == cUnset ? FSettings.CurrencyDecimals : APlace.Precision);
            break;
        default: break;
        }
        Pad(APlace, Start);
    }

private:
    // Blanks in front of what was written from AStart on, or after it, up to the width.
    void Pad(const TPlace& APlace, std::size_t AStart) {
        const std::size_t Length = FResult.size() - AStart;
        if (APlace.Width == cUnset || Length >= static_cast<std::size_t>(APlace.Width))
            return;
        const std::size_t Missing = static_cast<std::size_t>(APlace.Width) - Length;
        FResult.Append(Missing, u' ');
        if (APlace.IsLeft)
            return;
        char16_t* Text = FResult.UniqueData() + AStart;
        std::move_backward(Text, Text + Length, Text + Length + Missing);
        std::fill_n(Text, Missing, u' ');
    }

    void WriteInteger(const TPlace& APlace, const TVarRec& AArg) {
        const char16_t Type = APlace.Type;
        auto Bits = static_cast<std::uint64_t>(AArg.Int());
        const bool IsNegative = Type == u'd' && AArg.Kind() != vtUInt64 && AArg.Int() < 0;
        if (IsNegative)
            Bits = 0 - Bits;
        else if (AArg.Kind() == vtInteger && Type != u'd')
            Bits = static_cast<std::uint32_t>(Bits);
        std::array<char16_t, cMaxIntDigits + 1> Buffer;
        char16_t* End = Buffer.data() + Buffer.size();
        char16_t* Here = Type == u'x' ? detail::WriteHex(Bits, End) : detail::WriteDecimal(Bits, End);
        const int Digits = std::min(APlace.Precision, cMaxIntDigits);
        while (End - Here < Digits)
            *--Here = u'0';
        if (IsNegative)
            *--Here = u'-';
        FResult.Append({Here, static_cast<std::size_t>(End - Here)});
    }

    void WriteFloat(const TVarRec& AArg, TFloatFormat AFormat, int APrecision, int ADigits) {
        double Value = 0;
        if (AArg.Kind() == vtExtended)
            Value = AArg.Float();
        else if (AArg.Kind() == vtUInt64)
            Value = static_cast<double>(static_cast<std::uint64_t>(AArg.Int()));
        else
            Value = static_cast<double>(AArg.Int());
        detail::AppendFloat(FResult, Value, AFormat, APrecision, ADigits, FSettings);
    }

    void WritePointer(const TVarRec& AArg) {
        char16_t* Text = FResult.AppendRoom(16);
        std::fill_n(Text, 16, u'0');
        detail::WriteHex(reinterpret_cast<std::uintptr_t>(AArg.Pointer()), Text + 16);
    }

    void WriteText(const TPlace& APlace, const TVarRec& AArg) {
        switch (AArg.Kind()) {
        case vtUnicodeString: return WriteView(APlace, AArg.Wide());
        case vtWideChar:
        case vtChar: {
            const auto Char = static_cast<char16_t>(AArg.Int());
            return WriteView(APlace, {&Char, 1});
        }
        case vtUtf8: return WriteView(APlace, UnicodeString(AArg.Narrow()));
        case vtAnsiString: return WriteView(APlace, AArg.Ansi().ToUnicode());
        case vtBoolean: return WriteView(APlace, BoolToStr(AArg.Int() != 0, true));
        case vtClass: return WriteName(APlace, static_cast<TClass>(AArg.Pointer()));
        case vtObject:
            return WriteName(APlace,
                             AArg.Pointer() == nullptr
                                 ? nullptr
                                 : static_cast<const TObject*>(AArg.Pointer())->ClassType());
        default: return;
        }
    }

    void WriteName(const TPlace& APlace, TClass AClass) {
        WriteView(APlace, AClass == nullptr ? std::u16string_view(u"nil") : AClass->Name());
    }

    void WriteView(const TPlace& APlace, std::u16string_view AText) {
        FResult.Append(
            APlace.Precision == cUnset ? AText : AText.substr(0, static_cast<std::size_t>(APlace.Precision)));
    }

    const TFormatSettings& FSettings;
    UnicodeString FResult;
};

// Builds nothing.
struct TFormatCheck {
    template <class TText> void Literal(const TText&) const noexcept {}
    void Place(const TPlace&, const TVarRec&) const noexcept {}
};

// The first "%" from AHere on, or AEnd. Reads eight bytes at a time.
template <class TChar> const TChar* NextMark(const TChar* AHere, const TChar* AEnd) noexcept {
    static_assert(std::endian::native == std::endian::little);
    constexpr int cBits = 8 * sizeof(TChar);
    constexpr std::uint64_t cOnes =
        ~std::uint64_t{0} / ((std::uint64_t{1} << cBits) - 1); // 1 in each character
    while (static_cast<std::size_t>(AEnd - AHere) >= 8 / sizeof(TChar)) {
        std::uint64_t Block = 0;
        std::memcpy(&Block, AHere, sizeof(Block));
        Block ^= cOnes * '%'; // a mark is a character of zero bits now
        const std::uint64_t Zero = (Block - cOnes) & ~Block & cOnes << (cBits - 1);
        if (Zero != 0)
            return AHere + std::countr_zero(Zero) / cBits;
        AHere += 8 / sizeof(TChar);
    }
    return std::find(AHere, AEnd, TChar{'%'});
}

// Whether the pattern has only places without width, precision and index, and each takes its argument.
template <class TChar> bool FitsPlainly(std::basic_string_view<TChar> APattern, TVarRecs AArgs) noexcept {
    const TVarRec* Arg = AArgs.begin();
    const TChar* const End = APattern.data() + APattern.size();
    for (const TChar* Here = NextMark(APattern.data(), End); Here != End; Here = NextMark(Here + 1, End)) {
        if (++Here == End)
            return false;
        if (*Here == TChar{'%'})
            continue;
        if (Arg == AArgs.end() || !Fits(static_cast<char16_t>(*Here), Arg->Kind()))
            return false;
        ++Arg;
    }
    return true;
}

template <class TChar> void CheckAny(std::basic_string_view<TChar> APattern, TVarRecs AArgs) {
    if (FitsPlainly(APattern, AArgs))
        return;
    TFormatCheck Check;
    TFormatReader<TChar, TFormatCheck>(APattern, AArgs, Check).Run();
}

} // namespace

// Declared with Exception. It stands here because Format raises exceptions, and they are formatted by it.
Exception::Exception(const TStringArg& APattern, TVarRecs AArgs) : Exception(Format(APattern, AArgs)) {}

UnicodeString Format(const TStringArg& APattern, TVarRecs AArgs) {
    return Format(APattern, AArgs, DefaultFormatSettings());
}

UnicodeString Format(const TStringArg& APattern, TVarRecs AArgs, const TFormatSettings& ASettings) {
    return TFormatter(ASettings).Run(APattern, AArgs);
}

void CheckFormat(std::u16string_view APattern, TVarRecs AArgs) {
    CheckAny(APattern, AArgs);
}

void CheckFormat(std::string_view APattern, TVarRecs AArgs) {
    CheckAny(APattern, AArgs);
}

} // namespace qz

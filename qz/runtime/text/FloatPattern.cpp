#include <qz/runtime/text/FloatPattern.h>

#include <algorithm>
#include <array>

#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/text/detail/Decimal.h>

namespace qz {
namespace {

using detail::TDecimal;
using TView = std::u16string_view;

constexpr int cMaxWhole = 18;
constexpr int cMaxExponentDigits = 4;
constexpr int cGeneralPrecision = 15;
// Digits that a pattern may ask for beyond those that a double has.
constexpr int cMaxPlaces = 1000;

enum class TMark { Literal, Zero, Digit, Point, Group, Exponent, Section, End };

struct TToken {
    TMark Mark;
    TView Text; // of a literal, without its quotes; of an exponent, with its zeros
};

TToken NextToken(TView& APattern) {
    if (APattern.empty())
        return {TMark::End, {}};
    const auto Take = [&](TMark AMark, std::size_t ALength) {
        const TView Text = APattern.substr(0, ALength);
        APattern.remove_prefix(ALength);
        return TToken{AMark, Text};
    };
    const char16_t Char = APattern.front();
    switch (Char) {
    case u'0': return Take(TMark::Zero, 1);
    case u'#': return Take(TMark::Digit, 1);
    case u'.': return Take(TMark::Point, 1);
    case u',': return Take(TMark::Group, 1);
    case u';': return Take(TMark::Section, 1);
    case u'e':
    case u'E':
        if (APattern.size() < 2 || (APattern[1] != u'+' && APattern[1] != u'-'))
            return Take(TMark::Literal, 1);
        return Take(TMark::Exponent, std::min(APattern.find_first_not_of(u'0', 2), APattern.size()));
    case u'\'':
    case u'"': {
        APattern.remove_prefix(1);
        const TToken Token = Take(TMark::Literal, std::min(APattern.find(Char), APattern.size()));
        APattern.remove_prefix(APattern.empty() ? 0 : 1);
        return Token;
    }
    default: return Take(TMark::Literal, 1);
    }
}

// The section of this number, counted from 0; empty when there is none.
TView Section(TView APattern, int ANumber) {
    const TView All = APattern;
    std::size_t Start = 0;
    while (true) {
        const std::size_t Here = All.size() - APattern.size();
        const TMark Mark = NextToken(APattern).Mark;
        if (Mark != TMark::Section && Mark != TMark::End)
            continue;
        if (ANumber-- == 0)
            return All.substr(Start, Here - Start);
        if (Mark == TMark::End)
            return {};
        Start = Here + 1;
    }
}

// The maximum and the minimum number of digits of a section.
struct TPlaces {
    int Whole = 0;
    int LeastWhole = 0;
    int Fraction = 0;
    int LeastFraction = 0;
    bool HasPoint = false;
    bool HasGroups = false;
    bool IsScientific = false;
};

TPlaces Count(TView ASection) {
    TPlaces Result;
    while (true) {
        const TMark Mark = NextToken(ASection).Mark;
        const bool IsDigit = Mark == TMark::Zero || Mark == TMark::Digit;
        if (Mark == TMark::End) {
            return Result;
        } else if (IsDigit && Result.HasPoint) {
            Result.Fraction = std::min(Result.Fraction + 1, cMaxPlaces);
            if (Mark == TMark::Zero)
                Result.LeastFraction = Result.Fraction;
        } else if (IsDigit) {
            Result.Whole = std::min(Result.Whole + 1, cMaxPlaces);
            if (Mark == TMark::Zero || Result.LeastWhole > 0)
                Result.LeastWhole = std::min(Result.LeastWhole + 1, cMaxPlaces);
        }
        Result.HasPoint = Result.HasPoint || Mark == TMark::Point;
        Result.HasGroups = Result.HasGroups || Mark == TMark::Group;
        Result.IsScientific = Result.IsScientific || Mark == TMark::Exponent;
    }
}

// Keeps the digits of ANumber that the places have room for.
void RoundTo(const TPlaces& APlaces, double ANumber, TDecimal& AValue) {
    if (APlaces.IsScientific)
        AValue.RoundNearest(ANumber, std::max(APlaces.Whole + APlaces.Fraction, 1));
    else
        AValue.Round(AValue.Exponent + APlaces.Fraction);
}

class TSectionWriter {
public:
    TSectionWriter(UnicodeString& AResult, const TDecimal& AValue, const TPlaces& APlaces,
                   const TFormatSettings& ASettings)
        : FResult(AResult),
          FValue(AValue),
          FPlaces(APlaces),
          FSettings(ASettings) {
        if (APlaces.IsScientific && AValue.Count > 0) {
            FScale = AValue.Exponent - APlaces.Whole;
            FValue.Exponent = APlaces.Whole;
        }
        FPosition = APlaces.Whole;
    }

    void Run(TView ASection) {
        while (true) {
            const TToken Token = NextToken(ASection);
            switch (Token.Mark) {
            case TMark::Zero:
            case TMark::Digit: WriteDigit(); break;
            case TMark::Point: WritePoint(); break;
            case TMark::Exponent: WriteExponent(Token.Text); break;
            case TMark::Literal: FResult.Append(Token.Text); break;
            case TMark::End: return;
            default: break;
            }
        }
    }

private:
    void WriteDigit() {
        if (FIsBehindPoint) {
            const int Place = ++FFraction;
            if (Place <= std::max(FPlaces.LeastFraction, FValue.Count - FValue.Exponent))
                FResult += FValue.Digit(FValue.Exponent - 1 + Place);
            return;
        }
        WriteExtraDigits();
        if (FPosition > 0)
            WriteWhole(--FPosition);
    }

    // The digits that have no place, once, in front of the first place.
    void WriteExtraDigits() {
        for (int I = FHasBegun ? 0 : FValue.Exponent; I > FPlaces.Whole; --I)
            WriteWhole(I - 1);
        FHasBegun = true;
    }

    // The digit of ten to the power of APower.
    void WriteWhole(int APower) {
        if (APower >= std::max(FValue.Exponent, FPlaces.LeastWhole))
            return;
        FResult += FValue.Digit(FValue.Exponent - 1 - APower);
        if (FPlaces.HasGroups && APower > 0 && APower % 3 == 0 && FSettings.ThousandSeparator != u'\0')
            FResult += FSettings.ThousandSeparator;
    }

    void WritePoint() {
        if (FIsBehindPoint)
            return;
        WriteExtraDigits();
        FIsBehindPoint = true;
        if (std::max(FPlaces.LeastFraction, FValue.Count - FValue.Exponent) > 0 && FPlaces.Fraction > 0)
            FResult += FSettings.DecimalSeparator;
    }

    void WriteExponent(TView AMark) {
        FResult += AMark[0];
        if (FScale < 0)
            FResult += u'-';
        else if (AMark[1] == u'+')
            FResult += u'+';
        const auto Digits = std::min(static_cast<int>(AMark.size()) - 2, cMaxExponentDigits);
        std::array<char16_t, detail::cMaxIntLength> Buffer;
        char16_t* End = Buffer.data() + Buffer.size();
        char16_t* Start =
            detail::WriteDecimal(static_cast<std::uint64_t>(FScale < 0 ? -FScale : FScale), End);
        while (End - Start < Digits)
            *--Start = u'0';
        FResult.Append({Start, static_cast<std::size_t>(End - Start)});
    }

    UnicodeString& FResult;
    TDecimal FValue;
    const TPlaces& FPlaces;
    const TFormatSettings& FSettings;
    int FScale = 0;    // the exponent of the scientific form
    int FPosition = 0; // whole places still to come
    int FFraction = 0; // places after the point so far
    bool FHasBegun = false;
    bool FIsBehindPoint = false;
};

} // namespace

UnicodeString FormatFloat(const TStringArg& APattern, double AValue) {
    return FormatFloat(APattern, AValue, DefaultFormatSettings());
}

UnicodeString FormatFloat(const TStringArg& APattern, double AValue, const TFormatSettings& ASettings) {
    const TView First = Section(APattern, 0);
    TDecimal Value(AValue);
    TView Chosen = Value.Count == 0 ? Section(APattern, 2) : Value.IsNegative ? Section(APattern, 1) : First;
    bool HasMinus = Value.IsNegative && Chosen.empty();
    Chosen = Chosen.empty() ? First : Chosen;
    TPlaces Places = Count(Chosen);
    if (First.empty() || Value.Kind != TDecimal::TKind::Finite ||
        (!Places.IsScientific && Value.Exponent > cMaxWhole))
        return FloatToStrF(AValue, ffGeneral, cGeneralPrecision, 0, ASettings);
    const bool WasZero = Value.Count == 0;
    RoundTo(Places, AValue, Value);
    if (Value.Count == 0 && !WasZero) {
        const TView Zero = Section(APattern, 2);
        Chosen = Zero.empty() ? First : Zero;
        Places = Count(Chosen);
        HasMinus = false;
    }
    UnicodeString Result;
    if (HasMinus)
        Result += u'-';
    TSectionWriter(Result, Value, Places, ASettings).Run(Chosen);
    return Result;
}

} // namespace qz

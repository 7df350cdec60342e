#include "common/uQzSysUtils/Strings.h"
#include "runtime/errors/Exceptions.h"

namespace qz {
namespace {

using TView = std::u16string_view;

// Longer pieces are left to StringReplace, whose search is not misled by texts that nearly match everywhere.
constexpr std::size_t cShortPiece = 64;
constexpr std::size_t cBlock = 32;

// Whether the first two characters of the piece stand side by side within a block. Without a branch, so that the
// compiler compares many characters at a time.
bool MayStartIn(const char16_t* ABlock, char16_t AFirst, char16_t ASecond) noexcept {
    unsigned Found = 0;
    for (std::size_t I = 0; I < cBlock; ++I)
        Found |= static_cast<unsigned>(ABlock[I] == AFirst) & static_cast<unsigned>(ABlock[I + 1] == ASecond);
    return Found != 0;
}

std::size_t Find(TView AText, TView APiece, std::size_t AFrom) noexcept {
    if (APiece.size() < 2)
        return AText.find(APiece.front(), AFrom);
    while (AFrom + cBlock < AText.size()) {
        if (MayStartIn(AText.data() + AFrom, APiece[0], APiece[1]))
            for (std::size_t I = AFrom; I < AFrom + cBlock; ++I)
                if (AText[I] == APiece[0] && AText.substr(I, APiece.size()) == APiece)
                    return I;
        AFrom += cBlock;
    }
    return AText.find(APiece, AFrom);
}

// What StringReplace does, faster for many short pieces of which most are not there.
UnicodeString Replaced(const UnicodeString& AText, TView AOld, TView ANew, TReplaceFlags AFlags) {
    if (AOld.empty() || AOld.size() > cShortPiece || AFlags.Contains(rfIgnoreCase))
        return StringReplace(AText, AOld, ANew, AFlags);
    const TView Text = AText;
    std::size_t Found = Find(Text, AOld, 0);
    if (Found == TView::npos)
        return AText;
    UnicodeString Result;
    Result.Reserve(Text.size() + (ANew.size() > AOld.size() ? Text.size() / 8 + ANew.size() : 0));
    std::size_t Done = 0;
    while (Found != TView::npos) {
        Result.Append(Text.substr(Done, Found - Done)).Append(ANew);
        Done = Found + AOld.size();
        Found = AFlags.Contains(rfReplaceAll) ? Find(Text, AOld, Done) : TView::npos;
    }
    return Result.Append(Text.substr(Done));
}

template <class TTexts>
UnicodeString ReplaceAll(const TStringArg& AText, const TTexts& AOld, const TTexts& ANew,
                         TReplaceFlags AFlags) {
    Assert(AOld.size() == ANew.size());
    UnicodeString Result = AText.ToString();
    for (auto Old = AOld.begin(), New = ANew.begin(); Old != AOld.end(); ++Old, ++New)
        Result = Replaced(Result, Old->View(), New->View(), AFlags);
    return Result;
}

} // namespace

UnicodeString QzStringReplace(const TStringArg& AText, std::span<const UnicodeString> AOld,
                              std::span<const UnicodeString> ANew, TReplaceFlags AFlags) {
    return ReplaceAll(AText, AOld, ANew, AFlags);
}

UnicodeString QzStringReplace(const TStringArg& AText, std::initializer_list<TStringArg> AOld,
                              std::initializer_list<TStringArg> ANew, TReplaceFlags AFlags) {
    return ReplaceAll(AText, AOld, ANew, AFlags);
}

} // namespace qz

#include <qz/common/uQzSysUtils/Tokenize.h>
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/common/uQzTypes/registry/detail/QName.h>
#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz::detail {
namespace {

constexpr char16_t cSeparator = cQzQSeperators[0];
constexpr std::u16string_view cSeparators(cQzQSeperators, std::size(cQzQSeperators));

constexpr TKindRanks RanksOf(std::initializer_list<TTypeKind> AKinds) noexcept {
    return TKindRanks({AKinds.begin(), AKinds.size()});
}

// The kinds that a search goes through, by TQzMainTypeKind.
constexpr TKindRanks cKindsSearched[] = {
    RanksOf({tkInteger, tkChar, tkEnumeration, tkFloat, tkString, tkSet, tkClass, tkMethod, tkWChar,
             tkLString, tkWString, tkVariant, tkArray, tkRecord, tkInterface, tkInt64, tkDynArray}),
    RanksOf({tkInteger, tkInt64, tkEnumeration, tkSet, tkVariant}),
    RanksOf({tkFloat, tkVariant}),
    RanksOf({tkChar, tkString, tkWChar, tkLString, tkWString, tkVariant}),
    RanksOf({tkEnumeration, tkVariant}),
    RanksOf({tkFloat}),
    RanksOf({tkArray, tkDynArray}),
    RanksOf({tkClass, tkRecord, tkInterface, tkVariant}),
    RanksOf({tkMethod})};
static_assert(std::size(cKindsSearched) == static_cast<std::size_t>(mtkOther) + 1);

const TKindRanks& KindsSearched(TQzMainTypeKind AMain) noexcept {
    const auto Index = static_cast<std::size_t>(AMain);
    return cKindsSearched[Index < std::size(cKindsSearched) ? Index : 0];
}

// The registered type whose schema name this may be.
PTypeInfo FindBySchemaName(std::u16string_view AName) {
    const std::u16string_view Name = WithoutPrefix(AName);
    PTypeInfo Result = qz::FindType(TTypeNameOfSchema(Name, cQzQSeperators[0]).Qualified());
    if (Result == nullptr && Name.find_first_of(cSeparators) != std::u16string_view::npos)
        Result = qz::FindType(TTypeNameOfSchema(Name, cQzQSeperators[1]).Qualified());
    if (Result == nullptr && AName.starts_with(u'T'))
        Result = qz::FindType(AName);
    return Result;
}

// The last part without the letter of its kind, the parts with the separator between.
UnicodeString JoinParts(TStringList& AParts) {
    UnicodeString Result;
    for (int Index = 0; Index < AParts.Count(); ++Index) {
        const UnicodeString Part = AParts[Index];
        std::u16string_view View = Part;
        if (Index == AParts.Count() - 1 && (View.front() == u'T' || View.front() == u'I'))
            View.remove_prefix(1);
        if (Index > 0)
            Result += cSeparator;
        Result += View;
    }
    return Result;
}

} // namespace

TQzTypeInfo* TTypeStore::FindType(std::u16string_view AName, TQzTypeNameType ANameType,
                                  TQzMainTypeKind AMain) {
    if (AName.empty())
        return nullptr;
    PTypeInfo Known = nullptr;
    if (ANameType == tntQualifiedName)
        Known = qz::FindType(AName);
    else if (ANameType == tntSchemaName)
        Known = FindBySchemaName(AName);
    if (Known != nullptr)
        if (TQzTypeInfo* const Result = InfoOf(Known))
            return Result;
    const TKindRanks& Ranks = KindsSearched(AMain);
    switch (ANameType) {
    case tntQualifiedName: return FindName(FullNames, AName, Ranks);
    case tntSchemaName: return FindName(SchemaNames, WithoutPrefix(AName), Ranks);
    default: return FindName(ShortNames, AName, Ranks);
    }
}

UnicodeString TTypeStore::CalculateSchemaName(PTypeInfo AType, const UnicodeString& AName) {
    if (AName.View().find(cSeparator) != std::u16string_view::npos) {
        if (AType == nullptr)
            RaiseAssertion(u"The Q-Seperator character may not be used in the typename (" + AName + u")");
        return AType->Name;
    }
    TStringList Parts;
    UnicodeString Name = AName;
    UnicodeString Generics;
    if (Name.View().find(u'<') != std::u16string_view::npos) {
        QzTokenize(Name, Parts, u"<,");
        for (int Index = 1; Index < Parts.Count(); ++Index) {
            const UnicodeString Token = StringReplace(Parts[Index], u">", u"", {rfReplaceAll});
            const TQzTypeInfo* const Found = FindType(Token, tntQualifiedName, mtkUnknown);
            Parts.SetString(Index,
                            Found != nullptr ? Found->SchemaName(u"") : CalculateSchemaName(AType, Token));
        }
        Name.Clear();
        if (Parts.Count() > 0) {
            Name = Parts[0];
            Parts.Delete(0);
        }
        Generics = StringReplace(Parts.CommaText(), u",", cSeparators.substr(0, 1), {rfReplaceAll});
    }
    Parts.Clear();
    QzTokenize(Name, Parts, u".");
    Name = JoinParts(Parts);
    return Generics.IsEmpty() ? Name : Name + cSeparator + Generics;
}

} // namespace qz::detail

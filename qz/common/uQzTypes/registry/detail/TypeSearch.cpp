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

// A schema name and where its parts end, found in one pass.
struct TSchemaNameParts {
    explicit TSchemaNameParts(std::u16string_view AName) noexcept : Name(AName) {
        constexpr auto cHighest = u'_'; // of the units that matter
        std::size_t Start = 0;
        for (std::size_t Index = 0; Index < AName.size(); ++Index) {
            const char16_t Unit = AName[Index];
            if (Unit > cHighest)
                continue;
            if (Unit == cQzQSeperators[0])
                Separators[0].Note(Index + 1 - Start);
            else if (Unit == cQzQSeperators[1])
                Separators[1].Note(Index + 1 - Start);
            else if (Unit == u'.')
                HasPoint = true;
            else if (Unit == u':' && Start == 0) {
                Start = Index + 1;
                *this = TSchemaNameParts();
                Name = AName.substr(Start);
            }
        }
    }

    struct TSeparator {
        char16_t Unit;
        std::size_t ShortAt = 0; // after the last one; 0 for none
        int Count = 0;

        void Note(std::size_t AShortAt) noexcept {
            ShortAt = AShortAt;
            ++Count;
        }
    };
    std::u16string_view Name; // without the prefix
    bool HasPoint = false;
    TSeparator Separators[2]{{cQzQSeperators[0]}, {cQzQSeperators[1]}};

private:
    TSchemaNameParts() noexcept = default;
};

// The registered type that has the name with the separators as points.
PTypeInfo FindDecoded(const TSchemaNameParts& AParts, const TSchemaNameParts::TSeparator& ASeparator,
                      const THashedName& AWhole) {
    if (AParts.HasPoint || ASeparator.Count > 1) [[unlikely]]
        return qz::FindType(TTypeNameOfSchema(AParts.Name, ASeparator.Unit).Qualified());
    if (ASeparator.Count == 0)
        return FindType(THashedName({}), u'T', AWhole);
    return FindType(THashedName(AParts.Name.substr(0, ASeparator.ShortAt - 1)), u'T',
                    THashedName(AParts.Name.substr(ASeparator.ShortAt)));
}

// The registered type whose schema name this may be.
PTypeInfo FindTypeOfSchema(std::u16string_view AName, const TSchemaNameParts& AParts,
                           const THashedName& AWhole) {
    PTypeInfo Result = FindDecoded(AParts, AParts.Separators[0], AWhole);
    if (Result == nullptr && AParts.Separators[0].Count + AParts.Separators[1].Count != 0)
        Result = FindDecoded(AParts, AParts.Separators[1], AWhole);
    if (Result == nullptr && AName.front() == u'T')
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
    const TKindRanks& Ranks = KindsSearched(AMain);
    if (ANameType == tntSchemaName) {
        const TSchemaNameParts Parts(AName);
        const THashedName Whole(Parts.Name);
        TQzTypeInfo* const Known = InfoOf(FindTypeOfSchema(AName, Parts, Whole));
        return Known != nullptr ? Known : FindSchemaName(Whole, Ranks);
    }
    if (ANameType != tntQualifiedName)
        return FindName(ShortNames, AName, Ranks);
    TQzTypeInfo* const Known = InfoOf(qz::FindType(AName));
    return Known != nullptr ? Known : FindName(FullNames, AName, Ranks);
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
        Generics =
            StringReplace(Parts.CommaText(), u",", std::u16string_view(&cSeparator, 1), {rfReplaceAll});
    }
    Parts.Clear();
    QzTokenize(Name, Parts, u".");
    Name = JoinParts(Parts);
    return Generics.IsEmpty() ? Name : Name + cSeparator + Generics;
}

} // namespace qz::detail

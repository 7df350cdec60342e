// TQzKindConversions: conversions among the vocabularies of types. TQzTypes has them too.
//
//     TQzKindConversions::ToTypeKind(varSmallint);               // rtkSmallInt
//     TQzKindConversions::ToMainTypeKind(tkUString);             // mtkString
//     TQzSchemaDataType Schema;
//     TQzKindConversions::ToSchemaType(rtkDatetime, &Schema);    // "dateTime", xsdDateTime
//
// Each conversion is one look-up in a constant table, most of them also at compile time. A value outside its
// enumeration counts as the unknown kind where nothing else is said. Any number of threads may convert.
#pragma once

#include <qz/common/uQzTypes/TypeKindTables.h>
#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

class QZ_API TQzKindConversions {
public:
    TQzKindConversions() = delete;

    // TVarType here is any 16-bit number, also one that no variant bears; with the flag varArray it is an
    // array whatever its elements.
    static constexpr TQzMainTypeKind ToMainTypeKind(TQzTypeKind AKind) noexcept {
        return detail::RowOf(AKind).Main;
    }
    static constexpr TQzMainTypeKind ToMainTypeKind(TVarType AType) noexcept {
        return (AType & varArray) != 0 ? mtkArray : detail::RowOf(AType).Main;
    }
    // As ToTypeKind(TTypeKind).
    static constexpr TQzMainTypeKind ToMainTypeKind(TTypeKind AKind) {
        return ToMainTypeKind(ToTypeKind(AKind));
    }

    // Raises EAssertionFailed, "The type %s cannot be converted to a TQzTypeKind!" with the ordinal, for a
    // value outside the enumeration.
    static constexpr TQzTypeKind ToTypeKind(TTypeKind AKind) {
        const auto Index = static_cast<std::size_t>(AKind);
        if (Index >= std::size(detail::cTypeKinds))
            RaiseUnknown(AKind);
        return detail::cTypeKinds[Index];
    }
    static constexpr TQzTypeKind ToTypeKind(TVarType AType) noexcept {
        return (AType & varArray) != 0 ? rtkDynArray : detail::RowOf(AType).Kind;
    }

    // The code of the variants that hold values of the kind; varEmpty for arrays. Raises Exception, "The
    // given datatype cannot be converted to a Variant Type!", for a record, pointer, method, procedure,
    // exception or class reference.
    static constexpr TVarType ToVarType(TQzTypeKind AKind) {
        const std::int32_t Code = detail::RowOf(AKind).VarCode;
        if (Code == detail::cNoVarType)
            RaiseNoVarType();
        return static_cast<TVarType>(Code);
    }
    static constexpr TVarType ToVarType(TTypeKind AKind) { return ToVarType(ToTypeKind(AKind)); }

    // The name in XML Schema; the schema type goes to ASchemaType unless that is null. A variant code without
    // a schema type raises Exception, "The given TVarType \"%d\" could not be converted to a valid
    // SchemaType!", an array of such elements with the code of the elements.
    static UnicodeString ToSchemaType(TVarType AType, PQzSchemaDataType ASchemaType = nullptr);
    static UnicodeString ToSchemaType(TQzTypeKind AKind, PQzSchemaDataType ASchemaType = nullptr);

    // Whether values of the kind are numbers, characters, texts, dates, enumerations, sets or variants; the
    // coarse kind of a variant is not simple.
    static constexpr bool IsSimpleTypeKind(TTypeKind AKind) noexcept {
        constexpr TSet<TTypeKind> cSimple = {tkInteger, tkChar,    tkEnumeration, tkFloat,
                                             tkString,  tkSet,     tkWChar,       tkLString,
                                             tkWString, tkVariant, tkInt64,       tkUString};
        return AKind <= tkProcedure && cSimple.Contains(AKind);
    }
    static constexpr bool IsSimpleTypeKind(TQzTypeKind AKind) noexcept {
        return TQzSimpleTypeKind::Contains(AKind);
    }
    static constexpr bool IsSimpleTypeKind(TQzMainTypeKind AKind) noexcept {
        return mtkInteger <= AKind && AKind <= mtkDateTime;
    }

    static TQzTypeKind VarTypeKind(const Variant& AValue) noexcept { return ToTypeKind(VarType(AValue)); }
    // By way of the fine kind: mtkOther for a variant of code varVariant, which ToMainTypeKind does not know.
    static TQzMainTypeKind VarMainTypeKind(const Variant& AValue) noexcept {
        return ToMainTypeKind(VarTypeKind(AValue));
    }
    static UnicodeString VarSchemaType(const Variant& AValue, PQzSchemaDataType ASchemaType = nullptr) {
        return ToSchemaType(VarType(AValue), ASchemaType);
    }

private:
    [[noreturn]] static void RaiseUnknown(TTypeKind AKind);
    [[noreturn]] static void RaiseNoVarType();
};

// The format of that name in QzDataSerializationFormatType, in any case of letters. Raises Exception, "The
// format %s is not supported!!".
QZ_API TQzDataSerializationFormatType GetDataSerializationFormat(const TStringArg& AText);

} // namespace qz

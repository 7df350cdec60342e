// What each type kind and each variant code is in the other vocabularies; data of TQzTypes alone.
#pragma once

#include <array>

#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/runtime/values/Variant.h>

namespace qz::detail {

// The names of a type in XML Schema.
enum class TSchemaName : std::uint8_t {
    None, // the conversion is refused
    Any,
    Byte,
    Short,
    Int,
    Long,
    UnsignedByte,
    UnsignedShort,
    UnsignedInt,
    UnsignedLong,
    Float,
    Double,
    Decmimal, // spelt so, as documents bear it
    String,
    Base64Binary,
    Boolean,
    Date,
    Time,
    DateTime
};

inline constexpr std::int32_t cNoVarType = -1;

struct TTypeKindRow {
    TQzTypeKind Kind;
    TQzMainTypeKind Main;
    std::int32_t VarCode; // cNoVarType: refused
    TSchemaName Schema;
};

inline constexpr TTypeKindRow cTypeKindRows[] = {
    {rtkUnknown, mtkUnknown, varEmpty, TSchemaName::Any},
    {rtkByte, mtkInteger, varByte, TSchemaName::UnsignedByte},
    {rtkWord, mtkInteger, varWord, TSchemaName::UnsignedShort},
    {rtkLongWord, mtkInteger, varLongWord, TSchemaName::UnsignedInt},
    {rtkUInt64, mtkInteger, varUInt64, TSchemaName::UnsignedLong},
    {rtkShortInt, mtkInteger, varShortInt, TSchemaName::Byte},
    {rtkSmallInt, mtkInteger, varSmallint, TSchemaName::Short},
    {rtkLongInt, mtkInteger, varInteger, TSchemaName::Int},
    {rtkInt64, mtkInteger, varInt64, TSchemaName::Long},
    {rtkSingle, mtkFloat, varSingle, TSchemaName::Float},
    {rtkDouble, mtkFloat, varDouble, TSchemaName::Double},
    {rtkExtended, mtkFloat, varCurrency, TSchemaName::Decmimal},
    {rtkChar, mtkString, varString, TSchemaName::String},
    {rtkAChar, mtkString, varString, TSchemaName::String},
    {rtkWChar, mtkString, varUString, TSchemaName::String},
    {rtkString, mtkString, varString, TSchemaName::String},
    {rtkAString, mtkString, varString, TSchemaName::Base64Binary},
    {rtkWString, mtkString, varUString, TSchemaName::String},
    {rtkBoolean, mtkBoolean, varBoolean, TSchemaName::Boolean},
    {rtkEnumeration, mtkInteger, varInteger, TSchemaName::Any},
    {rtkSet, mtkInteger, varDate, TSchemaName::Any},
    {rtkDate, mtkDateTime, varDate, TSchemaName::Date},
    {rtkTime, mtkDateTime, varDate, TSchemaName::Time},
    {rtkDatetime, mtkDateTime, varDate, TSchemaName::DateTime},
    {rtkVariant, mtkOther, varVariant, TSchemaName::Any},
    {rtkArray, mtkArray, varEmpty, TSchemaName::Any},
    {rtkDynArray, mtkArray, varEmpty, TSchemaName::Any},
    {rtkRecord, mtkStructure, cNoVarType, TSchemaName::Any},
    {rtkClass, mtkStructure, varObject, TSchemaName::Any},
    {rtkInterface, mtkOther, varUnknown, TSchemaName::Any},
    {rtkPointer, mtkOther, cNoVarType, TSchemaName::Any},
    {rtkMethod, mtkOther, cNoVarType, TSchemaName::Any},
    {rtkProcedure, mtkOther, cNoVarType, TSchemaName::Any},
    {rtkException, mtkOther, cNoVarType, TSchemaName::Any},
    {rtkClassRef, mtkOther, cNoVarType, TSchemaName::Any},
};

struct TVarTypeRow {
    TVarType Code;
    TQzMainTypeKind Main = mtkUnknown;
    TQzTypeKind Kind = rtkUnknown;
    TSchemaName Schema = TSchemaName::None;
};

// Codes that are not here are as unknown as one without an entry.
inline constexpr TVarTypeRow cVarTypeRows[] = {
    {varEmpty, mtkUnknown, rtkUnknown, TSchemaName::None},
    {varNull, mtkUnknown, rtkUnknown, TSchemaName::Any},
    {varSmallint, mtkInteger, rtkSmallInt, TSchemaName::Short},
    {varInteger, mtkInteger, rtkLongInt, TSchemaName::Int},
    {varSingle, mtkFloat, rtkSingle, TSchemaName::Float},
    {varDouble, mtkFloat, rtkDouble, TSchemaName::Double},
    {varCurrency, mtkFloat, rtkExtended, TSchemaName::Double},
    {varDate, mtkDateTime, rtkDatetime, TSchemaName::DateTime},
    {varOleStr, mtkString, rtkWString, TSchemaName::String},
    {varDispatch, mtkOther, rtkInterface, TSchemaName::None},
    {varError, mtkUnknown, rtkUnknown, TSchemaName::None},
    {varBoolean, mtkBoolean, rtkBoolean, TSchemaName::Boolean},
    {varVariant, mtkUnknown, rtkVariant, TSchemaName::None},
    {varUnknown, mtkOther, rtkInterface, TSchemaName::None},
    {varDecimal, mtkFloat, rtkDouble, TSchemaName::None},
    {varShortInt, mtkInteger, rtkShortInt, TSchemaName::Byte},
    {varByte, mtkInteger, rtkByte, TSchemaName::Byte},
    {varWord, mtkInteger, rtkWord, TSchemaName::UnsignedShort},
    {varLongWord, mtkInteger, rtkLongWord, TSchemaName::UnsignedInt},
    {varInt64, mtkInteger, rtkInt64, TSchemaName::Long},
    {varUInt64, mtkInteger, rtkUInt64, TSchemaName::UnsignedLong},
    {varRecord, mtkUnknown, rtkUnknown, TSchemaName::Any},
    {varStrArg, mtkString, rtkWString, TSchemaName::None},
    {varObject, mtkUnknown, rtkUnknown, TSchemaName::Any},
    {varString, mtkString, rtkString, TSchemaName::String},
    {varAny, mtkUnknown, rtkVariant, TSchemaName::Any},
    {varUString, mtkString, rtkWString, TSchemaName::String},
    {273, mtkFloat, rtkUnknown, TSchemaName::None}, // the first custom variant type
};

inline constexpr TQzTypeKind cTypeKinds[] = {
    rtkUnknown, rtkLongInt,  rtkChar,    rtkEnumeration, rtkExtended, rtkString,   rtkSet,    rtkClass,
    rtkMethod,  rtkWChar,    rtkAString, rtkWString,     rtkVariant,  rtkArray,    rtkRecord, rtkInterface,
    rtkInt64,   rtkDynArray, rtkWString, rtkClassRef,    rtkPointer,  rtkProcedure}; // by TTypeKind

// The rows by code; the entry of an unknown code is marked.
inline constexpr auto cVarTypes = [] {
    std::array<TVarTypeRow, cVarTypeRows[std::size(cVarTypeRows) - 1].Code + 1> Result{};
    for (const TVarTypeRow& Row : cVarTypeRows)
        Result[Row.Code] = Row;
    return Result;
}();

constexpr const TTypeKindRow& RowOf(TQzTypeKind AKind) noexcept {
    const auto Index = static_cast<std::size_t>(AKind);
    return cTypeKindRows[Index < std::size(cTypeKindRows) ? Index : 0];
}
// AType without the flag of arrays.
constexpr const TVarTypeRow& RowOf(TVarType AType) noexcept {
    return cVarTypes[AType < cVarTypes.size() ? AType : 0];
}

static_assert([] {
    for (std::size_t I = 0; I < std::size(cTypeKindRows); ++I) {
        if (cTypeKindRows[I].Kind != static_cast<TQzTypeKind>(I))
            return false;
    }
    return true;
}());
static_assert(std::size(cTypeKindRows) == static_cast<std::size_t>(rtkClassRef) + 1);
static_assert(std::size(cTypeKinds) == static_cast<std::size_t>(tkProcedure) + 1);

} // namespace qz::detail

// The types that the registry knows from the start, and those that units above it add to them.
//
//     constexpr TPopulationRow cRows[] = {
//         {TypeInfo<TXsBoolean>, rtkBoolean, varBoolean, xsdBoolean, {u"boolean"}}};
//     const TPopulationPart GPart(TPopulationPart::ValueRecords, cRows);
#pragma once

#include <span>

#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/platform/Export.h>
#include <qz/runtime/values/VarTypes.h>

namespace qz::detail {

struct TPopulationRow {
    PTypeInfo (*Type)() noexcept;
    TQzTypeKind Kind;
    TVarType VarType;
    TQzSchemaDataType SchemaType;
    std::u16string_view Names[3];
};

// Rows that a unit above the registry brings, as a constant of a source file. They join the rows of the
// registry, in the order of the places, or at once if the registry is there already.
class QZ_API TPopulationPart {
public:
    enum TPlace { ValueRecords, SimpleTypes };
    TPopulationPart(TPlace APlace, std::span<const TPopulationRow> ARows);
};

} // namespace qz::detail

// What the registry of types has to know of the value records.
//
//     for (const TXsTypeRow& Row : XsTypeRows())
//         std::cout << UnicodeString(Row.Type->Name) << '\n';          // TXsBoolean, ...
#pragma once

#include <span>

#include <qz/common/uQzTypes/TypeKinds.h>
#include <qz/common/uQzXSTypes/XsBinaryString.h>
#include <qz/common/uQzXSTypes/XsRational.h>
#include <qz/common/uQzXSTypes/XsString.h>
#include <qz/runtime/values/VarTypes.h>

namespace qz {

// What the registry of types knows of a value record.
struct TXsTypeRow {
    PTypeInfo Type;
    TQzTypeKind Kind;
    TVarType VarType;
    TQzSchemaDataType SchemaType;
    std::u16string_view SchemaName;
};

// In the order in which they are registered.
QZ_API std::span<const TXsTypeRow> XsTypeRows() noexcept;

} // namespace qz

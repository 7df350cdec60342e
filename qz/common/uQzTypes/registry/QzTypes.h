// TQzTypes: the registry of types, and the conversions of KindConversions.h.
//
//     TQzTypes::GetTypeInfo(TypeInfo<int>())->SchemaName(u"xs");                  // "xs:int"
//     TQzTypes::GetTypeInfo(u"xs:dateTime", tntSchemaName)->FullName();           // "System.TDateTime"
//     TQzTypes::GetTypeInfo(u"System.TStringList", tntQualifiedName)->TypeKind(); // rtkClass
//     TQzTypes::RegisterTypeAlias(TypeInfo<TPoint>(), u"point");
//
// The registry keeps one list of entries for each TTypeKind, in the order of registration, and a search gives
// the first match in the order of the lists. It knows the basic types from the start; a type that it is asked
// for joins on demand, with its element type and its parent classes. Entries are never removed. Searches by
// name find types that joined before, and by qualified or schema name also those of QZ_REGISTER_TYPES.
//
// Any number of threads may call all operations at any time. Look-ups take no lock and cost the same for any
// number of types.
#pragma once

#include <qz/common/uQzTypes/NamedTypes.h>
#include <qz/common/uQzTypes/registry/QzTypeInfo.h>
#include <qz/runtime/values/ArrayTypes.h>

namespace qz {

inline constexpr TTextConstant SNoTypeName = u"QzFindQType: Failed to get the QzTypeInfo. No Name specified!";
inline constexpr TTextConstant STypeNotFound = u"QzFindQType: Failed to get the QzTypeInfo for %s!";
inline constexpr TTextConstant SNoRttiInfo = u"No RTTI Info found!";

// A class without content. The serialisers that are registered for it serve types that have none.
class QZ_API TQzNilType : public TObject {
    QZ_CLASS(TQzNilType, TObject)
};

class QZ_API TQzTypes : public TQzKindConversions {
public:
    // The one entry of the type, which joins the registry if it is new. Null gives null.
    static TQzTypeInfo* GetTypeInfo(PTypeInfo ATypeInfo);
    static TQzTypeInfo* GetTypeInfo(TClass AClass);
    static TQzTypeInfo* GetTypeInfo(TRttiType AType);
    // The entry of the type that stands for the kind, such as Cardinal for rtkLongWord and string for
    // rtkString; Variant for a kind that is not simple.
    static TQzTypeInfo* GetTypeInfo(TQzTypeKind AKind);
    // The type of that name. A qualified or schema name is looked for among the types of QZ_REGISTER_TYPES
    // first; then, as a short name at once, among those of the registry, limited to the runtime kinds that
    // values of AMainTypeKind have. Schema names lose a prefix and ignore the case of letters. Null when
    // nothing is found, or with ARaise Exception, SNoTypeName for an empty name and else STypeNotFound.
    static TQzTypeInfo* GetTypeInfo(const TStringArg& AName, TQzTypeNameType ANameType, bool ARaise = false,
                                    TQzMainTypeKind AMainTypeKind = mtkUnknown);
    // The kind and the variant code of that type, or the default.
    static TQzTypeKind GetTypeKind(const TStringArg& AName, TQzTypeNameType ANameType, TQzTypeKind ADefault);
    static TVarType GetVarType(const TStringArg& AName, TQzTypeNameType ANameType, TVarType ADefault);
    // The type of the values that variants of this code hold; that of Variant for codes without one.
    static TQzTypeInfo* VarTypeInfo(const Variant& AValue);

    // The entry of the type itself; null while it has none.
    static PQzTypeRec FindTypeRec(PTypeInfo ATypeInfo);
    static TQzTypeInfo* TypeRecPtrToTypeInfo(PQzTypeRec ATypeRec) noexcept { return ATypeRec->Info; }
    // The first match in the lists of the kinds, in the order in which they are given; null when there is
    // none. A schema name loses what precedes the first colon, and the case of letters does not count.
    static TQzTypeInfo* FindBySchemaName(const TStringArg& AName, const TTypeKindArray& AKinds);
    static TQzTypeInfo* FindByFullName(const TStringArg& AName, const TTypeKindArray& AKinds);
    static TQzTypeInfo* FindByShortName(const TStringArg& AName, const TTypeKindArray& AKinds);

    // The schema name that a qualified name gives: "_" between its parts and its generic arguments, which
    // turn into their schema names, and no "T" or "I" before the last part. A name with "_" gives the short
    // name of ATypeInfo; if that is null, EAssertionFailed is raised.
    static UnicodeString CalculateSchemaName(PTypeInfo ATypeInfo, const TStringArg& AName);
    // The names of the type whose schema name this is, as far as the name tells: "xs:Unit_Name" gives
    // "Unit.TName" and "TName".
    static void DecodeQName(const TStringArg& AQName, char16_t ASeparator, UnicodeString& AQualified,
                            UnicodeString& AShort);

    // Adds a type with a kind, a variant code, a schema type and schema names of the caller's choice; the
    // names that follow from its kind are added to them. Zero kinds and codes are replaced by those of the
    // runtime kind, and without names the schema type is too. A type that is there keeps what it has. Raises
    // Exception, SNoRttiInfo, for null.
    static PQzTypeRec AddTypeInfoTypeRec(PTypeInfo ATypeInfo, TQzTypeKind ATypeKind, TVarType AVarType,
                                         TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames);
    static PQzTypeRec AddRttiTypeRec(TRttiType ARttiType, TQzTypeKind ATypeKind, TVarType AVarType,
                                     TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames);
    // The same with all that an entry has. An AVirtualKind other than tkUnknown puts it into the list of that
    // kind, as a virtual type of AParent.
    static PQzTypeRec AddTypeRec(TRttiType ARttiType, const TStringArg& AShortName,
                                 const TStringArg& AFullName, TQzTypeKind ATypeKind, TVarType AVarType,
                                 TQzSchemaDataType ASchemaType, const TStringDynArray& ASchemaNames,
                                 TTypeKind AVirtualKind, PQzTypeRec AParent);

    // Puts names before those that the type has; the first becomes the default name. Each "." in them becomes
    // "_". Does nothing for null.
    static void RegisterTypeAlias(PTypeInfo ATypeInfo, const TStringArg& AName);
    static void RegisterTypeAlias(PTypeInfo ATypeInfo, const TStringDynArray& ANames);

    // Hands over a block from std::malloc, which std::free releases when another replaces it; the caller
    // makes sure that no thread uses that one any more. A null block changes nothing. Null for the type means
    // TQzNilType. Raises EAssertionFailed for a format outside the enumeration.
    static void RegisterTypeSerializers(PTypeInfo ATypeInfo, TQzDataSerializationFormatType AFormat,
                                        void* ASerializers);
    // The block of the type, else of the nearest parent class that has one, else of TQzNilType; null when
    // there is none. A class that another thread registers at this moment may have no parent yet.
    static void* FindSerializers(TQzTypeInfo* AInfo, TQzDataSerializationFormatType AFormat);
};

} // namespace qz

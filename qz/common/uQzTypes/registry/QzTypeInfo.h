// TQzTypeInfo: what the library knows of one type: its kind, its variant code and its names in XML Schema.
//
//     TQzTypeInfo* Info = TQzTypes::GetTypeInfo(TypeInfo<int>());
//     Info->FullName();                 // "System.Integer"
//     Info->SchemaName(u"xs");          // "xs:int"
//     Info->VarType();                  // varInteger
//
// The registry (QzTypes.h) makes one for each type that it is asked for. They live until the program ends.
// Any number of threads may read them and change their names.
#pragma once

#include <atomic>
#include <span>
#include <vector>

#include <qz/common/uQzTypes/KindConversions.h>
#include <qz/runtime/objects/Object.h>
#include <qz/runtime/reflection/Rtti.h>

namespace qz {

class TQzTypeInfo;

namespace detail {
class TTypeStore;
struct TTypeEntry;

// The schema names of a type, the default one first. A change makes a new block or takes an old one again;
// all are kept for readers.
struct TSchemaNames {
    std::vector<UnicodeString> Names; // never empty
    bool IsCustom = false;
    std::unique_ptr<const TSchemaNames> Older{};
};
} // namespace detail

// An entry of the registry; it belongs to the registry. Serialisers are blocks that only their users know;
// see TQzTypes::RegisterTypeSerializers.
struct TQzTypeRec {
    std::atomic<TQzTypeRec*> Next{nullptr}; // in the list of a kind, in the order of registration
    TQzTypeInfo* Info = nullptr;
    std::atomic<TQzTypeRec*> Parent{nullptr}; // of the parent class; null for other types
    std::atomic<void*> Serializer[5]{};       // by TQzDataSerializationFormatType
};
using PQzTypeRec = TQzTypeRec*;

class QZ_API TQzTypeInfo : public TObject {
    QZ_CLASS(TQzTypeInfo, TObject)

public:
    TQzTypeInfo(const TQzTypeInfo&) = delete;
    TQzTypeInfo& operator=(const TQzTypeInfo&) = delete;

    TRttiType RttiInfo() const noexcept { return TRttiType(FTypeInfo); }
    PTypeInfo TypeInfo() const noexcept { return FTypeInfo; }
    const UnicodeString& ShortName() const noexcept { return FShortName; }
    // With unit and generic arguments.
    const UnicodeString& FullName() const noexcept { return FFullName; }
    // The default name first. The texts live as long as the program, also after a change of the names.
    std::span<const UnicodeString> SchemaNames() const noexcept { return Names().Names; }
    TQzTypeKind TypeKind() const noexcept { return FTypeKind; }
    TVarType VarType() const noexcept { return FVarType; }
    TQzSchemaDataType SchemaType() const noexcept { return FSchemaType; }
    // Whether it stands for the type under another kind; see VirtualType.
    bool IsVirtual() const noexcept { return FIsVirtual; }
    bool IsGeneric() const noexcept { return FIsGeneric; }
    // The entry of the type itself, also for a virtual one.
    PQzTypeRec TypeRec() const noexcept { return FTypeRec; }
    // Whether the default name is the one that XML Schema has for the kind.
    bool IsXMLSchemaSimpleType() const noexcept { return FIsXMLSchemaSimpleType; }
    // Whether the default name was set by SetDefaultSchemaName or an alias.
    bool HasCustomSchemaName() const noexcept { return Names().IsCustom; }
    // The type of the elements of an array or a list class; null for other types.
    TQzTypeInfo* ArrElmTypeInfo() const;

    TTypeKind GetKind() const noexcept { return FTypeInfo->Kind; }
    bool GetIsSimpleType() const noexcept { return TQzKindConversions::IsSimpleTypeKind(FTypeKind); }
    TQzMainTypeKind GetMainTypeKind() const noexcept { return TQzKindConversions::ToMainTypeKind(FTypeKind); }

    // The default name, a virtual type's that of the type it stands for. The prefix and a colon come before a
    // name of XML Schema itself, but not before a custom name. An empty prefix adds nothing.
    UnicodeString SchemaName(const TStringArg& APrefix) const;
    // Makes the name the default one; the others stay and are found as before.
    void SetDefaultSchemaName(const TStringArg& AName);
    // The same type under the kind that values of the schema type have. There is one for each kind: a later
    // call for another schema type of that kind gives the first one.
    TQzTypeInfo* VirtualType(TQzSchemaDataType ASchemaType);

private:
    friend class detail::TTypeStore;
    friend struct detail::TTypeEntry;
    TQzTypeInfo() noexcept = default;
    const detail::TSchemaNames& Names() const noexcept {
        return *FSchemaNames.load(std::memory_order_acquire);
    }

    PTypeInfo FTypeInfo = nullptr;
    UnicodeString FShortName;
    UnicodeString FFullName;
    std::atomic<const detail::TSchemaNames*> FSchemaNames{nullptr};
    std::unique_ptr<const detail::TSchemaNames> FAllNames; // the blocks, for the writer
    PQzTypeRec FTypeRec = nullptr;
    detail::TTypeEntry* FEntry = nullptr; // its own, also of a virtual type
    // The element, or its handle while it waits to be asked for: a list of itself is made before it is known.
    mutable std::atomic<TQzTypeInfo*> FArrElmTypeInfo{nullptr};
    PTypeInfo FElementHandle = nullptr;
    TVarType FVarType = varEmpty;
    TQzTypeKind FTypeKind = rtkUnknown;
    TQzSchemaDataType FSchemaType = xsdComplexType;
    bool FIsVirtual = false;
    bool FIsGeneric = false;
    bool FIsXMLSchemaSimpleType = false;
};

} // namespace qz

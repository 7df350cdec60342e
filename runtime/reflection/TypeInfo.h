// The description of a type at run time: its kind and name, what it is built from, how its values are handled.
//
//     PTypeInfo Info = TypeInfo<TColor>();            // a described type; others do not compile
//     Info->Kind == TTypeKind::tkEnumeration;
//     Info->QualifiedName();                          // "MyUnit.TColor"
//
// There is one TTypeInfo for a type; its address is the type's identity. Descriptions are constants of the program,
// filled by the functions of Describe.h, and may be read by any number of threads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "runtime/objects/Guid.h"
#include "runtime/text/UnicodeString.h"

namespace qz {

class TObject;
struct TClassRec;
using TClass = const TClassRec*;
struct TTypeInfo;
using PTypeInfo = const TTypeInfo*;

// The kinds of types, with ordinals that are stored and compared.
enum class TTypeKind : std::uint8_t {
    tkUnknown,
    tkInteger,
    tkChar,
    tkEnumeration,
    tkFloat,
    tkString,
    tkSet,
    tkClass,
    tkMethod,
    tkWChar,
    tkLString,
    tkWString,
    tkVariant,
    tkArray,
    tkRecord,
    tkInterface,
    tkInt64,
    tkDynArray,
    tkUString,
    tkClassRef,
    tkPointer,
    tkProcedure
};
using enum TTypeKind;

// How values of a type are handled in raw storage of its size and alignment. The source and the target of a copy
// are distinct.
struct TTypeOps {
    std::size_t Size;
    std::size_t Align;
    void (*Construct)(void* ATarget);                   // the zero or empty value; null when there is none
    void (*Copy)(void* ATarget, const void* ASource);   // into raw storage; null when values cannot be copied
    void (*Assign)(void* ATarget, const void* ASource); // into a living value; null as for Copy
    void (*Destroy)(void* ATarget) noexcept;
    bool IsTrivial; // a copy is a copy of the bytes
};

// One value of an enumeration.
struct TEnumItem {
    std::u16string_view Name;
    std::int64_t Value;
};

// One published property of a class. A value travels in the form that its type's description tells; a property
// that holds an object travels as a TObject*.
struct TPropInfo {
    std::u16string_view Name;
    PTypeInfo (*PropType)();
    void (*Get)(const TObject& AObject, void* ATarget); // constructs into raw storage; null: not readable
    void (*Set)(TObject& AObject, const void* ASource); // null: not writable
    bool IsMethod = false;                              // an event
};

// One field of a record.
struct TFieldInfo {
    std::u16string_view Name;
    PTypeInfo (*FieldType)();
    std::size_t (*Offset)();
};

// One method that can be asked for by name.
struct TMethodInfo {
    std::u16string_view Name;
    PTypeInfo (*ReturnType)(); // null: gives nothing
};

struct TTypeInfo {
    TTypeKind Kind = tkUnknown;
    std::u16string_view Name; // without the unit
    std::u16string_view Unit;
    const TTypeOps* Ops = nullptr;           // null for a class: objects are handled by address
    bool IsPublic = true;                    // has a qualified name that can be looked up
    bool IsSigned = false;                   // of an ordinal type
    PTypeInfo (*Base)() = nullptr;           // parent class or interface
    PTypeInfo (*Element)() = nullptr;        // of an array, a set, a pointer, a class reference
    std::span<const TEnumItem> Items{};      // of an enumeration, in ascending order of value
    std::span<const TPropInfo> Properties{}; // of a class: its own, the parent's come first
    std::span<const TFieldInfo> Fields{};    // of a record
    std::span<const TMethodInfo> Methods{};
    TClass Class = nullptr;      // of a class
    const TGUID* Guid = nullptr; // of an interface

    // Unit and name with a point between; the name alone when the type has no public unit.
    QZ_API UnicodeString QualifiedName() const;
    PTypeInfo BaseType() const { return Base == nullptr ? nullptr : Base(); }
    PTypeInfo ElementType() const { return Element == nullptr ? nullptr : Element(); }
};

// Specialised for each described type that has no class record of its own; see QZ_TYPE_INFO.
template <class T> struct TTypeDescription;

namespace detail {
template <class T>
concept CHasClassRec = requires {
    T::ClassRec;
};
template <class T>
concept CHasTypeDescription = requires {
    TTypeDescription<T>::Info;
};
template <class T> constexpr PTypeInfo TypeInfoOf() noexcept;
} // namespace detail

// The description of T. An object type is described by its class, whether it is named as a class or a pointer.
template <class T> constexpr PTypeInfo TypeInfo() noexcept {
    return detail::TypeInfoOf<std::remove_cv_t<T>>();
}

// The published property of that name, of AType or a parent class, ignoring case; null when there is none.
QZ_API const TPropInfo* GetPropInfo(PTypeInfo AType, std::u16string_view AName) noexcept;

// The ordinal at ASource, an integer, character or enumeration of 1 to 8 bytes, widened by its sign. AType is of an
// ordinal kind.
QZ_API std::int64_t ReadOrdinal(PTypeInfo AType, const void* ASource) noexcept;
QZ_API void WriteOrdinal(PTypeInfo AType, void* ATarget, std::int64_t AValue) noexcept;

} // namespace qz

// Announces in a header that T is described; the description itself stands in one source file:
//     const qz::TTypeInfo qz::TTypeDescription<TColor>::Info = qz::DescribeEnum<TColor>({...});
#define QZ_TYPE_INFO(T) \
    template <> struct QZ_API qz::TTypeDescription<T> { static const qz::TTypeInfo Info; }

namespace qz::detail {

template <class T> constexpr PTypeInfo TypeInfoOf() noexcept {
    if constexpr (CHasClassRec<std::remove_cv_t<std::remove_pointer_t<T>>>) {
        return &std::remove_cv_t<std::remove_pointer_t<T>>::ClassRec.Info;
    } else {
        static_assert(
            CHasTypeDescription<T>,
            "this type has no description: announce it with QZ_TYPE_INFO in the header of the type");
        return &TTypeDescription<T>::Info;
    }
}

} // namespace qz::detail

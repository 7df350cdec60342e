// The description of a type at run time: its kind and name, what it is built from, how its values are
// handled.
//
//     PTypeInfo Info = TypeInfo<TColor>();            // a described type; others do not compile
//     TTypeKind Kind = Info->Kind;                    // tkEnumeration
//     UnicodeString Name = Info->QualifiedName();     // "MyUnit.TColor"
//
// There is one TTypeInfo for a type; its address is the type's identity. Descriptions are constants of the
// program, filled by the functions of Describe.h, and may be read by any number of threads.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

#include <qz/runtime/base/Guid.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

class IInterface;
template <class I> class Ref;
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

// How values of a type are handled in raw storage of its size and alignment. The source and the target of a
// copy are distinct. An object is handled as a TObject*, an interface as a Ref<IInterface>.
struct TTypeOps {
    std::size_t Size;
    std::size_t Align;
    void (*Construct)(void* ATarget);                   // the zero or empty value; null when there is none
    void (*Copy)(void* ATarget, const void* ASource);   // into raw storage; null when values cannot be copied
    void (*Assign)(void* ATarget, const void* ASource); // into a living value; null as for Copy
    void (*Destroy)(void* ATarget) noexcept;
    // Moves a value into raw storage and destroys the source; null unless IsSmall.
    void (*Relocate)(void* ATarget, void* ASource) noexcept;
    // Whether the value refers to nothing; for the kinds of IsReferenceKind.
    bool (*IsNull)(const void* ASource) noexcept;
    bool IsTrivial; // a copy is a copy of the bytes, and allowed
    // At most 16 bytes, aligned to at most 8, that can be moved without fail, so that a TValue keeps it in
    // place.
    bool IsSmall;
    bool MovesAsBytes; // it does so, or is not small and lies elsewhere
};

// How the elements of an array are reached, in the form in which values of their type are handled.
struct TArrayOps {
    std::size_t (*Length)(const void* AArray) noexcept;
    void (*GetItem)(const void* AArray, std::size_t AIndex, void* ATarget); // constructs into raw storage
    void (*SetItem)(void* AArray, std::size_t AIndex, const void* ASource);
};

// One value of an enumeration.
struct TEnumItem {
    std::u16string_view Name;
    std::int64_t Value;
};

// One published property of a class. A value is passed in the form that its type description defines; a
// property that holds an object is passed as a TObject*.
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

// One method that can be looked up by name.
struct TMethodInfo {
    std::u16string_view Name;
    PTypeInfo (*ReturnType)(); // null: gives nothing
};

struct TTypeInfo {
    TTypeKind Kind = tkUnknown;
    std::u16string_view Name; // without the unit
    std::u16string_view Unit;
    const TTypeOps* Ops = nullptr;           // never null in a description
    bool IsPublic = true;                    // has a qualified name that can be looked up
    bool IsSigned = false;                   // of an ordinal type
    bool IsBoolean = false;                  // an ordinal type that holds 0 and 1 alone
    PTypeInfo (*Base)() = nullptr;           // parent class or interface
    PTypeInfo (*Element)() = nullptr;        // of an array, a set, a pointer, a class reference
    std::span<const TEnumItem> Items{};      // of an enumeration, in ascending order of value
    std::span<const TPropInfo> Properties{}; // of a class: its own, the parent's come first
    std::span<const TFieldInfo> Fields{};    // of a record
    std::span<const TMethodInfo> Methods{};
    TClass Class = nullptr;           // of a class
    const TGUID* Guid = nullptr;      // of an interface
    const TArrayOps* Array = nullptr; // of an array

    // Unit and name with a point between; the name alone when the type has no public unit.
    QZ_API UnicodeString QualifiedName() const;
    PTypeInfo BaseType() const { return Base == nullptr ? nullptr : Base(); }
    PTypeInfo ElementType() const { return Element == nullptr ? nullptr : Element(); }
};

// Specialised for each described type that has no class record of its own; see QZ_TYPE_INFO.
template <class T> struct TTypeDescription;

namespace detail {
constexpr bool IsSmallSize(std::size_t ASize, std::size_t AAlign) noexcept {
    return ASize <= 16 && AAlign <= alignof(void*);
}
// What TTypeOps::IsSmall says.
template <class T>
inline constexpr bool cIsSmall = // NOLINTNEXTLINE(bugprone-sizeof-expression): T may well be a pointer
    IsSmallSize(sizeof(T), alignof(T)) && std::is_nothrow_copy_constructible_v<T>;

template <class T>
concept CHasClassRec = requires {
    T::ClassRec;
};
template <class T>
concept CHasTypeDescription = requires {
    TTypeDescription<T>::Info;
};
template <class T>
concept CInterfaceType = !CHasClassRec<T> && requires {
    T::IID;
};

template <class T>
concept CInteger = std::integral<T> && sizeof(T) <= 8 && !std::same_as<T, bool> && !std::same_as<T, char> &&
    !std::same_as<T, char8_t> && !std::same_as<T, char16_t> && !std::same_as<T, char32_t> &&
    !std::same_as<T, wchar_t>;
template <std::size_t Size>
using TIntegerOfSize = std::conditional_t<
    Size == 1, std::int8_t,
    std::conditional_t<Size == 2, std::int16_t, std::conditional_t<Size == 4, std::int32_t, std::int64_t>>>;

// The type whose description is that of T. Of the integers of one width and sign the one with a name of its
// own in <cstdint> stands for the others, such as long long for long.
template <class T> struct TDescribedAs { using Type = T; };
template <CInteger T> struct TDescribedAs<T> {
    using TSigned = TIntegerOfSize<sizeof(T)>;
    using Type = typename std::conditional_t<std::signed_integral<T>, std::type_identity<TSigned>,
                                             std::make_unsigned<TSigned>>::type;
};
template <class I> struct TDescribedAs<Ref<I>> { using Type = I; };
template <CInterfaceType I> struct TDescribedAs<I*> { using Type = I; };

template <class T>
concept CDescribed = CHasClassRec<std::remove_cv_t<std::remove_pointer_t<T>>> ||
    CHasTypeDescription<typename TDescribedAs<T>::Type>;
template <class T> constexpr PTypeInfo TypeInfoOf() noexcept;
} // namespace detail

// Whether TypeInfo<T>() compiles.
template <class T>
concept CDescribedType = detail::CDescribed<std::remove_cv_t<T>>;

// The description of T. An object type is described by its class, whether it is named as a class or a
// pointer, an interface I also as I* and Ref<I>.
template <class T> constexpr PTypeInfo TypeInfo() noexcept {
    return detail::TypeInfoOf<std::remove_cv_t<T>>();
}

// The published property of that name, of AType or a parent class, ignoring case; null when there is none.
QZ_API const TPropInfo* GetPropInfo(PTypeInfo AType, std::u16string_view AName) noexcept;

// The ordinal at ASource, an integer, character, enumeration or set of 1 to 8 bytes, widened by its sign.
// AType is of an ordinal kind or a set.
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
            CDescribed<T>,
            "this type has no description: announce it with QZ_TYPE_INFO in the header of the type");
        return &TTypeDescription<typename TDescribedAs<T>::Type>::Info;
    }
}

} // namespace qz::detail

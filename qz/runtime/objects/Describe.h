// The functions that fill type descriptions, for the source file of a class or type.
//
//     constexpr TPropInfo cShapeProps[] = {
//         Property<&TShape::GetWidth, &TShape::SetWidth>(u"Width"),
//         ReadOnly<&TShape::GetArea>(u"Area"),
//     };
//     const TClassRec TShape::ClassRec =
//         DescribeClass<TShape>(u"TShape", {.Unit = u"Drawing", .Properties = cShapeProps});
//
//     constexpr TEnumItem cColors[] = {{u"clRed", 0}, {u"clGreen", 1}};
//     const TTypeInfo TTypeDescription<TColor>::Info = DescribeEnum<TColor>(u"TColor", u"Drawing", cColors);
//
//     constexpr TFieldInfo cPointFields[] = {Field<&TPoint::X>(u"X"), Field<&TPoint::Y>(u"Y")};
//     const TTypeInfo TTypeDescription<TPoint>::Info = DescribeRecord<TPoint>(u"TPoint", u"Drawing", cPointFields);
//
//     const TTypeInfo TTypeDescription<IShape>::Info = DescribeInterface<IShape>(u"IShape", u"Drawing");
#pragma once

#include <functional>
#include <memory>
#include <new>
#include <type_traits>

#include <qz/runtime/objects/Transport.h>

namespace qz {

namespace detail {

template <class T> constexpr TTypeOps OpsOf() noexcept {
    TTypeOps Ops{};
    Ops.Size = sizeof(T); // NOLINT(bugprone-sizeof-expression): T may well be a pointer
    Ops.Align = alignof(T);
    Ops.IsTrivial = std::is_trivially_copyable_v<T> && std::is_copy_constructible_v<T>;
    Ops.IsSmall = cIsSmall<T>;
    Ops.MovesAsBytes = std::is_trivially_copyable_v<T> || !cIsSmall<T>;
    if constexpr (std::is_default_constructible_v<T>)
        Ops.Construct = [](void* ATarget) { new (ATarget) T(); };
    if constexpr (std::is_copy_constructible_v<T>)
        Ops.Copy = [](void* ATarget, const void* ASource) {
            new (ATarget) T(*static_cast<const T*>(ASource));
        };
    if constexpr (std::is_copy_assignable_v<T>)
        Ops.Assign = [](void* ATarget, const void* ASource) {
            *static_cast<T*>(ATarget) = *static_cast<const T*>(ASource);
        };
    if constexpr (cIsSmall<T>)
        Ops.Relocate = [](void* ATarget, void* ASource) noexcept {
            new (ATarget) T(std::move(*static_cast<T*>(ASource)));
            std::destroy_at(static_cast<T*>(ASource));
        };
    if constexpr (requires(const T& AValue) { static_cast<bool>(AValue.Get() == nullptr); })
        Ops.IsNull = [](const void* ASource) noexcept {
            return static_cast<const T*>(ASource)->Get() == nullptr;
        };
    else if constexpr (requires(const T& AValue) { static_cast<bool>(AValue == nullptr); })
        Ops.IsNull = [](const void* ASource) noexcept { return *static_cast<const T*>(ASource) == nullptr; };
    Ops.Destroy = [](void* ATarget) noexcept { std::destroy_at(static_cast<T*>(ATarget)); };
    return Ops;
}

template <class T> inline constexpr TTypeOps cOps = OpsOf<T>();

template <class TFamily, auto Make> inline constexpr typename TFamily::TMake cMakerFunction = Make;

template <class T, class TItem> constexpr TArrayOps ArrayOpsOf() noexcept {
    return {[](const void* AArray) noexcept { return static_cast<const T*>(AArray)->size(); },
            [](const void* AArray, std::size_t AIndex, void* ATarget) {
                new (ATarget) TTransport<TItem>(ToTransport<TItem>((*static_cast<const T*>(AArray))[AIndex]));
            },
            [](void* AArray, std::size_t AIndex, const void* ASource) {
                (*static_cast<T*>(AArray))[AIndex] =
                    FromTransport<TItem>(*static_cast<const TTransport<TItem>*>(ASource));
            }};
}

template <class T, class TItem> inline constexpr TArrayOps cArrayOps = ArrayOpsOf<T, TItem>();

template <class T> struct TGetterOf;
template <class C, class R> struct TGetterOf<R (C::*)() const> {
    using TClassType = C;
    using TValueType = std::remove_cvref_t<R>;
};
template <class C, class R> struct TGetterOf<R (C::*)() const noexcept> : TGetterOf<R (C::*)() const> {};
template <class C, class R> struct TGetterOf<R (C::*)()> : TGetterOf<R (C::*)() const> {};
template <class C, class R> struct TGetterOf<R (C::*)() noexcept> : TGetterOf<R (C::*)() const> {};
template <class C, class F>
    requires(!std::is_function_v<F>)
struct TGetterOf<F C::*> {
    using TClassType = C;
    using TValueType = F;
};

// A property may read through a member function that is not const: the object itself is what it is.
template <auto Member> void GetMember(const TObject& AObject, void* ATarget) {
    using TGetter = TGetterOf<decltype(Member)>;
    auto& Object =
        const_cast<typename TGetter::TClassType&>(static_cast<const typename TGetter::TClassType&>(AObject));
    new (ATarget) TTransport<typename TGetter::TValueType>(
        ToTransport<typename TGetter::TValueType>(std::invoke(Member, Object)));
}

template <class TValueType, class TClassType, class TSet>
void SetMember(TClassType& AObject, TSet ASetter, const void* ASource) {
    ASetter(AObject, FromTransport<TValueType>(*static_cast<const TTransport<TValueType>*>(ASource)));
}

} // namespace detail

// A property that is read by a member function or a data member and written by another.
template <auto Getter, auto Setter> constexpr TPropInfo Property(std::u16string_view AName) noexcept {
    using TGetter = detail::TGetterOf<decltype(Getter)>;
    using TValueType = typename TGetter::TValueType;
    using TClassType = typename TGetter::TClassType;
    return {AName, [] { return TypeInfo<TValueType>(); }, &detail::GetMember<Getter>,
            [](TObject& AObject, const void* ASource) {
                detail::SetMember<TValueType>(
                    static_cast<TClassType&>(AObject),
                    [](TClassType& AOwner, const TValueType& AValue) {
                        if constexpr (std::is_member_object_pointer_v<decltype(Setter)>)
                            AOwner.*Setter = AValue;
                        else
                            (AOwner.*Setter)(AValue);
                    },
                    ASource);
            }};
}

template <auto Getter> constexpr TPropInfo ReadOnly(std::u16string_view AName) noexcept {
    using TValueType = typename detail::TGetterOf<decltype(Getter)>::TValueType;
    return {AName, [] { return TypeInfo<TValueType>(); }, &detail::GetMember<Getter>, nullptr};
}

// A field of a standard-layout record.
template <auto Member> constexpr TFieldInfo Field(std::u16string_view AName) noexcept {
    using TRecord = typename detail::TGetterOf<decltype(Member)>::TClassType;
    using TValueType = typename detail::TGetterOf<decltype(Member)>::TValueType;
    return {AName, [] { return TypeInfo<TValueType>(); },
            [] {
                alignas(TRecord) static const std::byte Storage[sizeof(TRecord)]{};
                const auto* Record = reinterpret_cast<const TRecord*>(Storage);
                return static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&(Record->*Member)) -
                                                Storage);
            }};
}

// A method that gives a described type, or nothing.
template <auto Function> constexpr TMethodInfo Method(std::u16string_view AName) noexcept;

// What a class adds to the description of its parent; all of it static data.
struct TClassDescription {
    std::u16string_view Unit{};
    std::span<const TPropInfo> Properties{};
    std::span<const TInterfaceEntry> Interfaces{};
    std::span<const TMakerEntry> Makers{};
    std::span<const TMethodInfo> Methods{};
    bool IsPublic = true;
};

namespace detail {

// Whether T has interfaces that its parent has not: the counting operations are declared in T, or in what
// mixes the interfaces in, or are ambiguous.
template <class T> struct TMemberOwner;
template <class C> struct TMemberOwner<std::uint32_t (C::*)()> { using TType = C; };
template <class T> constexpr bool AddsInterfaces() noexcept {
    if constexpr (!std::is_base_of_v<IInterface, T> || !requires { typename T::Inherited; })
        return false;
    else if constexpr (!requires { &T::_AddRef; })
        return true;
    else
        return !std::is_base_of_v<typename TMemberOwner<decltype(&T::_AddRef)>::TType, typename T::Inherited>;
}
// A call stops the compilation with its name in the message.
void InterfacesAreMissing();

} // namespace detail

// The record of class T under its registered name. Does not compile if T adds interfaces to those of its
// parent and AMore lists none.
template <class T>
consteval TClassRec DescribeClass(std::u16string_view AName, const TClassDescription& AMore) {
    if (detail::AddsInterfaces<T>() && AMore.Interfaces.empty())
        detail::InterfacesAreMissing();
    TClassRec Class;
    Class.Info.Kind = tkClass;
    Class.Info.Ops = &detail::cOps<TObject*>;
    Class.Info.Name = AName;
    Class.Info.Unit = AMore.Unit;
    Class.Info.IsPublic = AMore.IsPublic;
    Class.Info.Properties = AMore.Properties;
    Class.Info.Methods = AMore.Methods;
    Class.Info.Class = &T::ClassRec;
    if constexpr (requires { typename T::Inherited; }) {
        static_assert(std::is_base_of_v<typename T::Inherited, T>, "QZ_CLASS names a parent that is none");
        Class.Parent = &T::Inherited::ClassRec;
        Class.Info.Base = [] { return &T::Inherited::ClassRec.Info; };
    }
    Class.Interfaces = AMore.Interfaces;
    Class.Makers = AMore.Makers;
    return Class;
}

// The entry by which T can be made through a class reference of TFamily, a TVirtualConstructor.
template <class TFamily, auto Make> constexpr TMakerEntry Maker() noexcept {
    return {TFamily::Family(), &detail::cMakerFunction<TFamily, Make>};
}

namespace detail {
// A call of one of these stops the compilation with its name in the message.
void ItemsHaveToAscend();
void FloatsHave4Or8Bytes();

template <class T>
constexpr TTypeInfo InfoOf(TTypeKind AKind, std::u16string_view AName, std::u16string_view AUnit) noexcept {
    TTypeInfo Info;
    Info.Kind = AKind;
    Info.Name = AName;
    Info.Unit = AUnit;
    Info.IsSigned = std::is_signed_v<T>;
    Info.IsBoolean = std::is_same_v<T, bool>;
    Info.Ops = &cOps<T>;
    return Info;
}
} // namespace detail

// A type that is described by its kind and C++ type alone. A float of other than 4 or 8 bytes does not
// compile.
template <class T>
consteval TTypeInfo DescribeType(TTypeKind AKind, std::u16string_view AName,
                                 std::u16string_view AUnit) noexcept {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): T may well be a pointer
    if (AKind == tkFloat && sizeof(T) != sizeof(float) && sizeof(T) != sizeof(double))
        detail::FloatsHave4Or8Bytes();
    return detail::InfoOf<T>(AKind, AName, AUnit);
}

// An enumeration with its values in ascending order; otherwise it does not compile. Of several names for one
// value the first one is reported.
template <class T>
    requires std::is_enum_v<T>
consteval TTypeInfo DescribeEnum(std::u16string_view AName, std::u16string_view AUnit,
                                 std::span<const TEnumItem> AItems) noexcept {
    for (std::size_t I = 1; I < AItems.size(); ++I)
        if (AItems[I].Value < AItems[I - 1].Value)
            detail::ItemsHaveToAscend();
    TTypeInfo Info = detail::InfoOf<T>(tkEnumeration, AName, AUnit);
    Info.IsSigned = std::is_signed_v<std::underlying_type_t<T>>;
    Info.IsBoolean = std::is_same_v<std::underlying_type_t<T>, bool>;
    Info.Items = AItems;
    return Info;
}

template <class T>
constexpr TTypeInfo DescribeRecord(std::u16string_view AName, std::u16string_view AUnit,
                                   std::span<const TFieldInfo> AFields = {}) noexcept {
    TTypeInfo Info = detail::InfoOf<T>(tkRecord, AName, AUnit);
    Info.Fields = AFields;
    return Info;
}

// An array, a set, a pointer or a class reference of described elements.
template <class T, class TItem>
constexpr TTypeInfo DescribeOf(TTypeKind AKind, std::u16string_view AName,
                               std::u16string_view AUnit) noexcept {
    TTypeInfo Info = detail::InfoOf<T>(AKind, AName, AUnit);
    Info.Element = [] { return TypeInfo<TItem>(); };
    if (AKind == tkArray || AKind == tkDynArray)
        if constexpr (requires(T & AArray) { AArray[AArray.size()]; })
            Info.Array = &detail::cArrayOps<T, TItem>;
    return Info;
}

// An interface and the one that it extends.
template <class I, class TParent = IInterface>
    requires std::derived_from<I, TParent>
constexpr TTypeInfo DescribeInterface(std::u16string_view AName, std::u16string_view AUnit) noexcept {
    TTypeInfo Info = detail::InfoOf<Ref<IInterface>>(tkInterface, AName, AUnit);
    Info.Guid = &I::IID;
    if constexpr (!std::is_same_v<I, TParent>)
        Info.Base = [] { return TypeInfo<TParent>(); };
    return Info;
}

namespace detail {
template <class T> struct TMethodOf;
template <class C, class R, class... A> struct TMethodOf<R (C::*)(A...) const> {
    using TResult = std::remove_cvref_t<R>;
};
template <class C, class R, class... A>
struct TMethodOf<R (C::*)(A...) const noexcept> : TMethodOf<R (C::*)(A...) const> {};
template <class C, class R, class... A> struct TMethodOf<R (C::*)(A...)> : TMethodOf<R (C::*)(A...) const> {};
template <class C, class R, class... A>
struct TMethodOf<R (C::*)(A...) noexcept> : TMethodOf<R (C::*)(A...) const> {};
} // namespace detail

template <auto Function> constexpr TMethodInfo Method(std::u16string_view AName) noexcept {
    using TResult = typename detail::TMethodOf<decltype(Function)>::TResult;
    if constexpr (std::is_void_v<TResult>)
        return {AName, nullptr};
    else
        return {AName, [] { return TypeInfo<TResult>(); }};
}

} // namespace qz

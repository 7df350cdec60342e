// TValue: a value of any described type, together with its type.
//
//     TValue Value = 17;                             // texts, numbers, enumerations, objects, interfaces, records
//     TTypeKind Kind = Value.Kind();                 // tkInteger
//     Value.AsInt64();                               // 17; AsString raises EInvalidCast
//     TValue Object = Shape.get();                   // which the value does not own
//     if (TPoint Point; Other.TryAsType(Point)) ...
//     Log(Value.ToString());
//
// A TValue is 24 bytes. Values of up to 16 bytes that are aligned to at most 8 and can be moved without fail
// lie in it, so that numbers, texts, interfaces, arrays and variants need no memory of their own; others lie
// in a block that copies share. A value belongs to one thread at a time; copies may be used by different
// threads, but for the elements of a dynamic array, which are the same in all copies: threads that set them
// have to agree.
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>

#include <qz/runtime/objects/Transport.h>
#include <qz/runtime/values/BasicTypes.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

class TValue;

namespace detail {

// A value that lies outside, after this header.
struct QZ_API TValueBlock {
    std::atomic<std::int32_t> RefCount{1};
    std::uint32_t Offset;

    // Room for a value of that size. Freeing ends no value.
    static TValueBlock* New(std::size_t ASize, std::size_t AAlign);
    static void Free(TValueBlock* ABlock) noexcept;
    void* Value() noexcept { return reinterpret_cast<std::byte*>(this) + Offset; }

    struct TFree {
        void operator()(TValueBlock* ABlock) const noexcept { Free(ABlock); }
    };
    using TOwner = std::unique_ptr<TValueBlock, TFree>;
};

// The type as which a TValue holds a T: C++ text as UnicodeString, a described type as itself.
template <class T> constexpr auto BoxedAs() noexcept {
    if constexpr (CDescribedType<T> && !CHasClassRec<T>)
        return std::type_identity<T>();
    else if constexpr (std::same_as<T, UnicodeString::TCharRef>)
        return std::type_identity<char16_t>();
    else if constexpr (CWideText<T> || CNarrowText<T> || CUtf8Text<T> ||
                       (std::convertible_to<const T&, UnicodeString> && !std::derived_from<T, UnicodeString>))
        return std::type_identity<UnicodeString>();
    else if constexpr (std::is_class_v<T> && std::convertible_to<const T&, TClass>)
        return std::type_identity<TClass>();
}
template <class T> using TBoxed = typename decltype(BoxedAs<T>())::type;

template <class T>
concept CHasBoxed = requires {
    typename TBoxed<T>;
};
// A type that converts implicitly to TValue, passed by value or reference.
template <class T, class TPlain = std::remove_cvref_t<T>>
concept CBoxable = !std::same_as<TPlain, TValue> && CHasBoxed<TPlain> &&
    std::constructible_from<TTransport<TBoxed<TPlain>>, const TPlain&>;

struct TValueAccess;

} // namespace detail

class QZ_API TValue {
public:
    // No value: it has no type.
    TValue() noexcept = default;
    // From a value of a described type, or of what becomes one by itself. Objects are held by address.
    template <detail::CBoxable T>
    TValue(T&& AValue) { // NOLINT(bugprone-forwarding-reference-overload): T is no TValue
        Box<detail::TBoxed<std::remove_cvref_t<T>>>(std::forward<T>(AValue));
    }
    TValue(const TValue& AOther) noexcept {
        if (AOther.IsPlain()) [[likely]]
            TakeBytes(AOther);
        else
            CopyFrom(AOther);
    }
    // AOther has no value then.
    TValue(TValue&& AOther) noexcept { MoveFrom(AOther); }
    TValue& operator=(const TValue& AOther) noexcept { return *this = TValue(AOther); }
    TValue& operator=(TValue&& AOther) noexcept {
        if (IsPlain() && this != &AOther) [[likely]]
            MoveFrom(AOther);
        else
            Replace(AOther);
        return *this;
    }
    ~TValue() {
        if (!IsPlain())
            Destroy();
    }

    // The value as a T, which may also be TValue itself: then it is a value that holds a value.
    template <class T> static TValue From(const T& AValue) {
        static_assert(!detail::CHasClassRec<T>, "an object is held by its address: pass a pointer");
        TValue Result;
        if constexpr (detail::CBoxable<T>)
            Result.Box<detail::TBoxed<T>>(AValue);
        else
            Result.Box<T>(AValue);
        return Result;
    }
    // A copy of the value at AData, in the form in which values of AType are handled (TTypeOps). Null gives
    // the zero or empty value of the type; a null AType gives no value. Raises EInvalidCast for a type whose
    // values cannot be copied, or have no empty value.
    static TValue Make(const void* AData, PTypeInfo AType);
    // The content of the variant, with its type; an empty value for an empty variant. Null, errors, decimals
    // and arrays are values of the type Variant.
    static TValue FromVariant(const Variant& AValue);
    // An integer, character, enumeration or set with that ordinal. Raises EInvalidCast for any other type,
    // ERangeError for a number that does not fit the type's width, or a Boolean, which holds 0 and 1 alone.
    static TValue FromOrdinal(PTypeInfo AType, std::int64_t AOrdinal);

    // tkUnknown and null when there is no value.
    TTypeKind Kind() const noexcept { return FType == nullptr ? tkUnknown : FType->Kind; }
    PTypeInfo TypeInfo() const noexcept { return FType; }
    // True when there is no value, for a null object, interface, class, pointer or procedure, and for a
    // dynamic array without elements. A text, a number or a variant is never empty.
    bool IsEmpty() const noexcept;
    // True for a value of that very type, for an object whose class derives from AType, and for an interface
    // that extends AType.
    bool IsType(PTypeInfo AType) const noexcept;
    template <class T> bool IsType() const noexcept { return IsType(qz::TypeInfo<T>()); }
    // The value itself, null when there is none. It is there until the TValue changes or ends. A set of less
    // than 32 bits may be read as 32.
    const void* GetReferenceToRawData() const noexcept {
        return FType == nullptr ? nullptr : FType->Ops->IsSmall ? FRoom : Block()->Value();
    }
    std::size_t GetDataSize() const noexcept { return FType == nullptr ? 0 : FType->Ops->Size; }

    // The value as a T, where no number loses a digit:
    // - any value as its own type
    // - an integer or float as any integer or float type that holds the number exactly; floats never as
    //   integers. A Currency is exact in a float that gives the same amount back
    // - a text or a character as any text type, where what the code page of an 8-bit text lacks becomes its
    //   best fit or "?"; a text of one character as a character. A char is of Latin-1, U+0000 to U+00FF, on
    //   every system
    // - an object as a class that it belongs to, a class reference as one of an ancestor
    // - an interface or object as any interface that it offers; T is a Ref
    // - what AsVariant takes as a Variant
    // - a null reference, and no value at all, as any reference, and no value as an empty Variant.
    // Anything else raises EInvalidCast, so does a text of a code page that the system does not know.
    template <class T> T AsType() const {
        CheckTarget<T>();
        if (FType == qz::TypeInfo<T>()) [[likely]]
            return Get<T>();
        return Cast(qz::TypeInfo<T>()).template Take<T>();
    }
    // The same; false, and AResult unchanged, instead of the exception.
    template <class T> bool TryAsType(T& AResult) const {
        CheckTarget<T>();
        if (FType == qz::TypeInfo<T>()) {
            AResult = Get<T>();
            return true;
        }
        TValue Other;
        if (!TryCast(qz::TypeInfo<T>(), Other))
            return false;
        AResult = Other.template Take<T>();
        return true;
    }
    // The same, as a value of that type.
    TValue Cast(PTypeInfo AType) const;
    bool TryCast(PTypeInfo AType, TValue& AResult) const;
    template <class T> TValue Cast() const { return Cast(qz::TypeInfo<T>()); }

    // Each raises EInvalidCast for a value that it does not name.
    std::int32_t AsInteger() const { return AsType<std::int32_t>(); }
    // An integer of any type; of the 64 bits of a UInt64 just as they are.
    std::int64_t AsInt64() const;
    std::uint64_t AsUInt64() const { return static_cast<std::uint64_t>(AsInt64()); }
    // An integer, a character, an enumeration, a set of up to 64 bits; a UInt64 as for AsInt64.
    std::int64_t AsOrdinal() const;
    // A float or an integer, rounded to the nearest double.
    Extended AsExtended() const;
    Currency AsCurrency() const { return AsType<Currency>(); }
    bool AsBoolean() const { return AsType<bool>(); }
    // A text of any type whose code page the system knows, a character.
    UnicodeString AsString() const;
    // A variant, an integer, a float or date, a text, a character as text, a Boolean, the ordinal of another
    // enumeration or a set, an interface; no value as an empty variant.
    Variant AsVariant() const;
    // An object, not owned. No value is null, here and in the next two.
    TObject* AsObject() const;
    // An interface, which is good as long as this value; AsType<Ref<I>> gives one that is counted.
    IInterface* AsInterface() const;
    TClass AsClass() const;

    // Of an array. The elements of a dynamic array are shared by all that hold it. Each raises EInvalidCast
    // for a value that is no array, and EArgumentOutOfRangeException for an index outside.
    std::size_t GetArrayLength() const;
    TValue GetArrayElement(std::size_t AIndex) const;
    // AElement is cast to the type of the elements. An array of TValue therefore takes a value of the type
    // TValue alone, as From makes it. Copies of a dynamic array see the change.
    void SetArrayElement(std::size_t AIndex, const TValue& AElement);

    // The value as text, for messages:
    //   no value                 (empty)
    //   integer, float           as IntToStr and FloatToStr write it, also for dates
    //   character, text          as it is
    //   enumeration              the name, or the number of an ordinal without one
    //   set                      [first,second], as SetToString
    //   variant                  as VarToStr, else (array), (interface), (object)
    //   object                   (TFoo @ 00007F0012345678): its class, its address; its type where it is null
    //   interface, pointer       the same with its type
    //   class reference          the name of the class, (nil)
    //   record, array            (record), (array)
    //   anything else            the name of the type in brackets
    // A text whose code page the system does not know is the last, too. Raises nothing but std::bad_alloc.
    UnicodeString ToString() const;

private:
    friend struct detail::TValueAccess;
    template <class T> static void CheckTarget() noexcept {
        static_assert(!detail::CHasClassRec<T>, "an object is held by its address: ask for a pointer");
        static_assert(!std::is_pointer_v<T> || !detail::CInterfaceType<std::remove_pointer_t<T>>,
                      "an interface has to be counted: ask for a Ref");
    }
    // Whether the bytes are all there is to copy and to end.
    bool IsPlain() const noexcept {
        return FType == nullptr || (FType->Ops->IsTrivial && FType->Ops->IsSmall);
    }
    bool MovesAsBytes() const noexcept { return FType == nullptr || FType->Ops->MovesAsBytes; }
    void TakeBytes(const TValue& AOther) noexcept {
        std::memcpy(FRoom, AOther.FRoom, sizeof FRoom);
        FType = AOther.FType;
    }
    // The old value is destroyed already.
    void MoveFrom(TValue& AOther) noexcept {
        if (AOther.MovesAsBytes()) [[likely]]
            TakeBytes(AOther);
        else
            Relocate(AOther);
        AOther.FType = nullptr;
    }
    template <class T, class TSource> void Box(TSource&& ASource) {
        using TStored = TTransport<T>;
        if constexpr (detail::cIsSmall<TStored>) {
            new (FRoom) TStored(ToTransport<T>(std::forward<TSource>(ASource)));
        } else {
            detail::TValueBlock::TOwner Owner(detail::TValueBlock::New(sizeof(TStored), alignof(TStored)));
            new (Owner->Value()) TStored(std::forward<TSource>(ASource));
            KeepBlock(Owner.release());
        }
        FType = qz::TypeInfo<T>();
    }
    // The caller has seen that it is a T.
    template <class T> decltype(auto) Get() const {
        using TStored = TTransport<T>;
        const void* Data = FRoom;
        if constexpr (!detail::cIsSmall<TStored>)
            Data = Block()->Value();
        return FromTransport<T>(*static_cast<const TStored*>(Data));
    }
    // The same, when this value is about to end.
    template <class T> T Take() {
        if constexpr (std::is_same_v<TTransport<T>, T> && detail::cIsSmall<T>)
            return std::move(*static_cast<T*>(static_cast<void*>(FRoom)));
        else
            return Get<T>();
    }
    detail::TValueBlock* Block() const noexcept {
        detail::TValueBlock* Result;
        std::memcpy(&Result, FRoom, sizeof(void*));
        return Result;
    }
    void KeepBlock(detail::TValueBlock* ABlock) noexcept { std::memcpy(FRoom, &ABlock, sizeof(void*)); }
    void CopyFrom(const TValue& AOther) noexcept;
    void Relocate(TValue& AOther) noexcept;
    void Replace(TValue& AOther) noexcept;
    void Destroy() noexcept;
    void* OwnData();
    [[noreturn]] void RaiseCast(std::u16string_view AType) const;

    alignas(void*) std::byte FRoom[16]{}; // the value, or its block
    PTypeInfo FType = nullptr;            // set when the value is complete
};

static_assert(sizeof(TValue) == 24);

} // namespace qz

QZ_TYPE_INFO(qz::TValue);

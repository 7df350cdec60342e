// TBoundValue: a value of any described type, as it travels between two bound properties.
//
//     TBoundValue Text, Number;
//     Text.Read(*Edit, *GetPropInfo(&Edit->ClassType()->Info, u"Text"));
//     Number.Assign(Text, TypeInfo<int>());                  // "12" becomes 12
//     Prop->Set(*Model, Number.Data());
//
// Values up to 32 bytes lie in the object itself. A value belongs to one thread at a time.
#pragma once

#include <array>
#include <cstddef>

#include "runtime/reflection/TypeInfo.h"

namespace qz {

class QZ_API TBoundValue {
public:
    TBoundValue() noexcept = default;
    TBoundValue(const TBoundValue&) = delete;
    TBoundValue& operator=(const TBoundValue&) = delete;
    ~TBoundValue() { Clear(); }

    // Null for no value.
    PTypeInfo Type() const noexcept { return FType; }
    // The value in the form in which a property takes it.
    const void* Data() const noexcept { return FHeap != nullptr ? FHeap : FRoom.data(); }
    // The object of a value whose type is a class; null for any other.
    TObject* AsObject() const noexcept;
    // True when both have one type and one value. Values that are neither numbers, texts nor objects are the same
    // when their bytes are, if they consist of bytes, and else never.
    bool SameAs(const TBoundValue& AOther) const;

    // Each replaces the value; when one raises, there is no value.
    void Clear() noexcept;
    // The value of a readable property. Exceptions of its getter go to the caller.
    void Read(const TObject& AObject, const TPropInfo& AProp);
    // An object, which may be null, as a value of a class.
    void SetObject(TObject* AObject, PTypeInfo AClass);
    // ASource, another value, in the type AType: integers, characters, enumerations, floats and texts each into each
    // other, an object into a class that it belongs to, anything else into its own type only. A float is rounded to
    // the nearest integer, halves to the even one. An enumeration is the name of its item as a text, its ordinal as
    // a number; any number but 0 is True. Raises EConvertError for what does not convert or is no text of the type,
    // ERangeError for a number that the type does not hold.
    void Assign(const TBoundValue& ASource, PTypeInfo AType);

private:
    void* Room(PTypeInfo AType);
    void AssignObject(const TBoundValue& ASource, PTypeInfo AType);

    static constexpr std::size_t cRoom = 32;
    alignas(std::max_align_t) std::array<std::byte, cRoom> FRoom; // NOLINT(*-member-init): raw storage
    void* FHeap = nullptr;
    PTypeInfo FType = nullptr; // set when the value is complete
};

} // namespace qz

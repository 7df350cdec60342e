// TBoundValue: a value of any described type, as it travels between two bound properties.
//
//     TBoundValue Text, Number;
//     Text.Read(*Edit, *GetPropInfo(&Edit->ClassType()->Info, u"Text"));
//     Number.Assign(Text, TypeInfo<int>());                  // "12" becomes 12
//     Prop->Set(*Model, Number.Data());
//
// A value belongs to one thread at a time.
#pragma once

#include <qz/runtime/values/Value.h>

namespace qz {

class QZ_API TBoundValue {
public:
    TBoundValue() noexcept = default;
    TBoundValue(const TBoundValue&) = delete;
    TBoundValue& operator=(const TBoundValue&) = delete;

    // Null for no value.
    PTypeInfo Type() const noexcept { return FValue.TypeInfo(); }
    // The value in the form in which a property takes it.
    const void* Data() const noexcept { return FValue.GetReferenceToRawData(); }
    // The object of a value whose type is a class; null for any other.
    TObject* AsObject() const noexcept;
    // True when both have one type and one value. Values that are neither numbers, texts nor objects are the
    // same when their bytes are, if they consist of bytes, and else never.
    bool SameAs(const TBoundValue& AOther) const;

    // Each replaces the value; when one raises, the old one remains.
    void Clear() noexcept { FValue = {}; }
    // The value of a readable property. Exceptions of its getter go to the caller.
    void Read(const TObject& AObject, const TPropInfo& AProp);
    // An object, which may be null, as a value of a class.
    void SetObject(TObject* AObject, PTypeInfo AClass);
    // ASource, which may be this value, in the type AType: integers, characters, enumerations, floats and
    // texts each into each other, an object into a class that it belongs to, anything else into its own type
    // only. A float is rounded to the nearest integer, halves to the even one. An enumeration is the name of
    // its item as a text, its ordinal as a number; any number but 0 is True, also a fraction. Raises
    // EConvertError for what does not convert, is no text of the type or of a code page that the system does
    // not know, ERangeError for a number that the type does not hold.
    void Assign(const TBoundValue& ASource, PTypeInfo AType);

private:
    TValue FValue;
};

} // namespace qz

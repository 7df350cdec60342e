// Published properties, read and written by name.
//
//     for (const TPropInfo& Prop : GetPropInfos(Object.ClassType()->ClassInfo()))
//         if (Prop.Get != nullptr)
//             Show(Prop.Name, GetProp(Object, Prop).ToString());
//     SetPropValue(*Server, u"Port", 8080);
//     Variant Port = GetPropValue(*Server, u"port");
//
// A property is named in either case of letters, or by its TPropInfo, which must be of the object's class or
// a parent. Exceptions of getters and setters reach the caller. In addition each function raises
// EPropertyError, "Property %s does not exist", "Property %s cannot be read", "Property %s is read-only", and
// EPropertyConvertError, "Invalid property type: %s", for a property of a type that it does not name. The
// functions keep nothing; objects are as safe for threads as their accessors.
#pragma once

#include <cstddef>
#include <iterator>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/values/Value.h>

namespace qz {

// The published properties of a class in order: the parent's come first, and one that a descendant declares
// again stands replaces the first. Does not allocate.
class QZ_API TPropInfos {
public:
    class QZ_API TIterator {
    public:
        using value_type = TPropInfo;
        using difference_type = std::ptrdiff_t;
        using reference = const TPropInfo&;
        using iterator_category = std::forward_iterator_tag;
        using pointer = const TPropInfo*;

        TIterator() noexcept = default;
        explicit TIterator(PTypeInfo AClass) noexcept;
        reference operator*() const noexcept { return *FProp; }
        pointer operator->() const noexcept { return FProp; }
        TIterator& operator++() noexcept;
        TIterator operator++(int) noexcept {
            TIterator Result = *this;
            ++*this;
            return Result;
        }
        friend bool operator==(const TIterator& ALeft, const TIterator& ARight) noexcept {
            return ALeft.FProp == ARight.FProp;
        }

    private:
        void FindNext() noexcept;
        PTypeInfo FClass = nullptr; // the class with the properties
        PTypeInfo FLevel = nullptr; // the class or parent whose own properties have their turn
        std::size_t FIndex = 0;     // of the next of these
        const TPropInfo* FProp = nullptr;
    };

    explicit TPropInfos(PTypeInfo AClass) noexcept : FClass(AClass) {}
    TIterator begin() const noexcept { return TIterator(FClass); }
    TIterator end() const noexcept { return {}; }

private:
    PTypeInfo FClass;
};

// AClass may be null or of any kind; only classes have properties.
inline TPropInfos GetPropInfos(PTypeInfo AClass) noexcept {
    return TPropInfos(AClass);
}
inline TPropInfos GetPropInfos(TClass AClass) noexcept {
    return TPropInfos(AClass == nullptr ? nullptr : AClass->ClassInfo());
}

namespace detail {
template <class T>
concept CPropName = std::constructible_from<TStringArg, const T&>;
}

// A property argument: its name or its description. Valid during the call.
class TPropArg {
public:
    template <detail::CPropName T> TPropArg(const T& AName) : FName(AName) {}
    TPropArg(const TPropInfo& AProp) noexcept : FName(AProp.Name), FProp(&AProp) {}

    // The property of that class. Raises EPropertyError when there is none of that name.
    QZ_API const TPropInfo& Of(PTypeInfo AClass) const;
    const TPropInfo& Of(const TObject& AObject) const { return Of(AObject.ClassType()->ClassInfo()); }
    // The same; null instead of the exception.
    const TPropInfo* Find(PTypeInfo AClass) const noexcept {
        return FProp != nullptr ? FProp : GetPropInfo(AClass, FName);
    }

private:
    TStringArg FName;
    const TPropInfo* FProp = nullptr;
};

inline bool IsPublishedProp(const TObject& AObject, const TStringArg& AName) noexcept {
    return GetPropInfo(AObject.ClassType()->ClassInfo(), AName) != nullptr;
}
// The kind of the property's type. A class without that property raises EPropertyError.
inline TTypeKind PropType(PTypeInfo AClass, const TPropArg& AProp) {
    return AProp.Of(AClass).PropType()->Kind;
}
inline TTypeKind PropType(const TObject& AObject, const TPropArg& AProp) {
    return AProp.Of(AObject).PropType()->Kind;
}

// A property of any type.
QZ_API TValue GetProp(const TObject& AObject, const TPropArg& AProp);
// AValue is cast to the type of the property, and raises EInvalidCast when that is not possible.
QZ_API void SetProp(TObject& AObject, const TPropArg& AProp, const TValue& AValue);

// A property as a variant. With APreferStrings a character is a text, an enumeration its name, a set the
// names of its items as SetToString writes them; without, each is its ordinal, and a Boolean a Boolean. Any
// float and date is a double, a Currency a Currency. A set of more than 64 bits is had as names alone.
// Objects, interfaces, records, arrays, events and pointers raise EPropertyConvertError.
QZ_API Variant GetPropValue(const TObject& AObject, const TPropArg& AProp, bool APreferStrings = true);
// The other way round: a text names a value of an enumeration or the items of a set, any number but 0 is True
// for a Boolean, anything else is converted as VariantConvert.h tells. Raises EPropertyConvertError, "Invalid
// property element: %s", for a name that is none, and for a set of more than 64 bits as for objects;
// ERangeError for a number that does not fit; EVariantTypeCastError for a text that is no number, date or
// Boolean where one is due, EInvalidCast where it is no character or no text of the property's code page.
QZ_API void SetPropValue(TObject& AObject, const TPropArg& AProp, const Variant& AValue);

// Integers, characters, enumerations, sets of up to 64 bits. A number that does not fit raises ERangeError; a
// Boolean takes 0 and 1.
QZ_API std::int64_t GetOrdProp(const TObject& AObject, const TPropArg& AProp);
QZ_API void SetOrdProp(TObject& AObject, const TPropArg& AProp, std::int64_t AValue);
// Texts and characters. A text that is not one character, of Latin-1 for a char, raises EInvalidCast when it
// is set as a character.
QZ_API UnicodeString GetStrProp(const TObject& AObject, const TPropArg& AProp);
QZ_API void SetStrProp(TObject& AObject, const TPropArg& AProp, const UnicodeString& AValue);
// Floats and dates. A number is rounded to a narrower type; a finite one outside its range raises
// ERangeError.
QZ_API double GetFloatProp(const TObject& AObject, const TPropArg& AProp);
QZ_API void SetFloatProp(TObject& AObject, const TPropArg& AProp, double AValue);
// Objects. One that does not derive from AClass, where given, is read as null. One that does not fit the type
// of the property raises EInvalidCast when it is set.
QZ_API TObject* GetObjectProp(const TObject& AObject, const TPropArg& AProp, TClass AClass = nullptr);
QZ_API void SetObjectProp(TObject& AObject, const TPropArg& AProp, TObject* AValue);

} // namespace qz

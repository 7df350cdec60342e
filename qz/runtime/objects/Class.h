// TClass, the identity of a class at run time, and ClassRef<Base>, one that is known to derive from Base.
//
//     class TShape : public TObject {
//         QZ_CLASS(TShape, TObject)
//         ...
//     };
//     const TClassRec TShape::ClassRec = DescribeClass<TShape>(u"TShape", {.Unit = u"Drawing"});   // in the .cpp
//
//     TShape Shape;
//     TClass Class = Shape.ClassType();
//     Class->Name();                            // "TShape"
//     Class->InheritsFrom(ClassOf<TObject>());
//
// Class records are constants of the program and may be read by any number of threads.
#pragma once

#include <concepts>
#include <cstddef>
#include <iosfwd>
#include <span>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// One interface that a class implements, and the way from the object to it.
struct TInterfaceEntry {
    const TGUID* Iid;
    void* (*Cast)(TObject* AObject) noexcept;
};

// What stands for a virtual constructor: the class that declares it, and its signature. Both are the same for
// a program and for the shared library that it uses: type_info compares names where the objects differ.
struct TMakerFamily {
    TClass Base;
    const std::type_info* Signature;

    friend bool operator==(const TMakerFamily& ALeft, const TMakerFamily& ARight) noexcept {
        return ALeft.Base == ARight.Base && *ALeft.Signature == *ARight.Signature;
    }
};

// One virtual constructor: Make is the address of a constant pointer to a function of its signature.
struct TMakerEntry {
    TMakerFamily Family;
    const void* Make;
};

struct TClassRec {
    TTypeInfo Info;
    TClass Parent = nullptr;
    std::span<const TInterfaceEntry> Interfaces{}; // its own, in the order of their listing
    std::span<const TMakerEntry> Makers{};         // its own

    std::u16string_view Name() const noexcept { return Info.Name; }
    std::u16string_view UnitName() const noexcept { return Info.Unit; }
    PTypeInfo ClassInfo() const noexcept { return &Info; }
    // True for the class itself and for every class it derives from.
    QZ_API bool InheritsFrom(TClass AAncestor) const noexcept;
    // The maker of that family of this very class, not a parent's; null when the class cannot be made that
    // way.
    QZ_API const void* FindMaker(TMakerFamily AFamily) const noexcept;
};

// Writes the name.
QZ_API std::ostream& operator<<(std::ostream& AStream, const TClassRec& AClass);

// The record of T.
template <class T> constexpr TClass ClassOf() noexcept {
    static_assert(std::is_same_v<typename T::ThisClass, T>, "this class lacks a QZ_CLASS line of its own");
    return &T::ClassRec;
}

// A virtual constructor that is called through a class reference. A base class that has one declares it as
//     using TVirtualCreate = TVirtualConstructor<TBase, TBase*(TArg1, TArg2)>;
// and each class that can be made by it lists Maker<TVirtualCreate, TFoo> in its description.
template <class TBase, class TSignature> struct TVirtualConstructor;
template <class TBase, class TResult, class... TArgs> struct TVirtualConstructor<TBase, TResult(TArgs...)> {
    using TMake = TResult (*)(TArgs...);
    static constexpr TMakerFamily Family() noexcept { return {&TBase::ClassRec, &typeid(TResult(TArgs...))}; }

    // The function that makes an object of exactly AClass; null when the class cannot be made this way.
    static TMake Find(TClass AClass) noexcept {
        const auto* Entry = static_cast<const TMake*>(AClass->FindMaker(Family()));
        return Entry == nullptr ? nullptr : *Entry;
    }
};

// A class that is TBase or derives from it, or null.
template <class TBase> class ClassRef {
public:
    ClassRef() noexcept = default;
    ClassRef(std::nullptr_t) noexcept {}
    template <std::derived_from<TBase> T> ClassRef(ClassRef<T> AClass) noexcept : FClass(AClass.Get()) {}
    // Takes any class; one that does not derive from TBase becomes null.
    explicit ClassRef(TClass AClass) noexcept
        : FClass(AClass != nullptr && AClass->InheritsFrom(ClassOf<TBase>()) ? AClass : nullptr) {}
    template <std::derived_from<TBase> T> static ClassRef Of() noexcept {
        ClassRef Result;
        Result.FClass = ClassOf<T>();
        return Result;
    }

    TClass Get() const noexcept { return FClass; }
    const TClassRec* operator->() const noexcept { return FClass; }
    operator TClass() const noexcept { return FClass; }
    explicit operator bool() const noexcept { return FClass != nullptr; }
    friend bool operator==(ClassRef, ClassRef) noexcept = default;

private:
    TClass FClass = nullptr;
};

} // namespace qz

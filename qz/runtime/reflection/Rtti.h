// The types of the program as reflection shows them: TRttiContext finds a type, TRttiType and its forms
// describe it.
//
//     const TRttiContext Context;
//     TRttiType Type = Context.FindType(u"Drawing.TShape");      // null unless registered
//     TRttiMethod First = Type.GetMethod(u"First");
//     if (First)
//         Show(First.ReturnType().QualifiedName());
//     TClass Class = TRttiInstanceType(Type).MetaclassType();    // null for a type of another form
//
// All are views of the constant descriptions: they own nothing, are copied freely and may be used by any
// number of threads. What a null view gives is null or empty.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/Class.h>

namespace qz {

class TRttiMethod;

class TRttiType {
public:
    TRttiType() noexcept = default;
    explicit TRttiType(PTypeInfo AHandle) noexcept : FHandle(AHandle) {}

    explicit operator bool() const noexcept { return FHandle != nullptr; }
    PTypeInfo Handle() const noexcept { return FHandle; }
    std::u16string_view Name() const noexcept {
        return FHandle == nullptr ? std::u16string_view() : FHandle->Name;
    }
    // The name alone when the type is not public.
    UnicodeString QualifiedName() const {
        return FHandle == nullptr ? UnicodeString() : FHandle->QualifiedName();
    }
    TTypeKind TypeKind() const noexcept { return FHandle == nullptr ? tkUnknown : FHandle->Kind; }
    // Whether the type can be found by its qualified name.
    bool IsPublicType() const noexcept { return FHandle != nullptr && FHandle->IsPublic; }
    // The method of that name in either case of letters, the type's own or that of a parent.
    QZ_API TRttiMethod GetMethod(const TStringArg& AName) const noexcept;
    friend bool operator==(const TRttiType&, const TRttiType&) noexcept = default;

protected:
    // A view of another form is null.
    TRttiType(TRttiType AType, TTypeKind AKind) noexcept
        : FHandle(AType.TypeKind() == AKind ? AType.FHandle : nullptr) {}

private:
    PTypeInfo FHandle = nullptr;
};

class TRttiMethod {
public:
    TRttiMethod() noexcept = default;
    explicit TRttiMethod(const TMethodInfo* AHandle) noexcept : FHandle(AHandle) {}

    explicit operator bool() const noexcept { return FHandle != nullptr; }
    std::u16string_view Name() const noexcept {
        return FHandle == nullptr ? std::u16string_view() : FHandle->Name;
    }
    // Null for a method that gives nothing.
    TRttiType ReturnType() const {
        return TRttiType(FHandle == nullptr || FHandle->ReturnType == nullptr ? nullptr
                                                                              : FHandle->ReturnType());
    }

private:
    const TMethodInfo* FHandle = nullptr;
};

// An array of a fixed length.
class TRttiArrayType : public TRttiType {
public:
    explicit TRttiArrayType(TRttiType AType) noexcept : TRttiType(AType, tkArray) {}
    TRttiType ElementType() const {
        return TRttiType(Handle() == nullptr ? nullptr : Handle()->ElementType());
    }
};

class TRttiDynamicArrayType : public TRttiType {
public:
    explicit TRttiDynamicArrayType(TRttiType AType) noexcept : TRttiType(AType, tkDynArray) {}
    TRttiType ElementType() const {
        return TRttiType(Handle() == nullptr ? nullptr : Handle()->ElementType());
    }
};

// A class.
class TRttiInstanceType : public TRttiType {
public:
    explicit TRttiInstanceType(TRttiType AType) noexcept : TRttiType(AType, tkClass) {}
    TClass MetaclassType() const noexcept { return Handle() == nullptr ? nullptr : Handle()->Class; }
    // The parent class; null for the root.
    TRttiInstanceType BaseType() const {
        return TRttiInstanceType(TRttiType(Handle() == nullptr ? nullptr : Handle()->BaseType()));
    }
};

class TRttiContext {
public:
    TRttiType GetType(PTypeInfo AHandle) const noexcept { return TRttiType(AHandle); }
    TRttiType GetType(TClass AClass) const noexcept {
        return TRttiType(AClass == nullptr ? nullptr : AClass->ClassInfo());
    }
    // The registered type of that name, in either case of letters; see QZ_REGISTER_TYPES.
    QZ_API TRttiType FindType(const TStringArg& AQualifiedName) const;
};

} // namespace qz

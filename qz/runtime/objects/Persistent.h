// TPersistent: an object that can be copied into another and that has published properties.
//
//     class TFont : public TPersistent {
//         QZ_CLASS(TFont, TPersistent)
//     public:
//         void Assign(TPersistent* ASource) override;    // copies what it knows, else calls Inherited::Assign
//     };
//     TFont Title, Body;
//     Title.Assign(&Body);
#pragma once

#include <qz/runtime/objects/Object.h>

namespace qz {

inline constexpr TTextConstant SAssignError = u"Cannot assign a %s to a %s";

class QZ_API TPersistent : public TObject {
    QZ_CLASS(TPersistent, TObject)

public:
    // Copies from ASource by its AssignTo. A null source, and a pair of classes of which neither knows how,
    // raise EConvertError that names both.
    virtual void Assign(TPersistent* ASource);
    // The class name; after the owner's name path and a dot if the owner has one.
    virtual UnicodeString GetNamePath() const;

protected:
    TPersistent() noexcept = default;
    TPersistent(const TPersistent&) noexcept = default;
    TPersistent& operator=(const TPersistent&) noexcept = default;

    virtual void AssignTo(TPersistent* ADest);
    // The object that this one belongs to; null here.
    virtual TPersistent* GetOwner() const { return nullptr; }
    [[noreturn]] void AssignError(const TPersistent* ASource) const;
};

} // namespace qz

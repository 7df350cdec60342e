// TQzObjectAdapter: carries any object through an interface variable.
//
//     Ref<IQzObjectAdapter> Carried = TQzObjectAdapter::Create(Settings, ooOwned);
//     Carried->GetObject()->ToString();      // Settings is freed with the last reference
#pragma once

#include <qz/common/uQzClasses/QzObject.h>

namespace qz {

class IQzObjectAdapter : public IInterface {
public:
    static constexpr TGUID IID = Guid("{6C25403A-FB3F-4F23-87AC-8DD56330109B}");

    virtual TObject* GetObject() = 0;
    virtual TQzObjectOwnership GetOwnership() = 0;

protected:
    ~IQzObjectAdapter() = default;
};

class QZ_API TQzObjectAdapter : public TInterfacedObject, public IQzObjectAdapter, public IQzObject {
    QZ_CLASS(TQzObjectAdapter, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    TObject* GetObject() override { return FObject; }
    TQzObjectOwnership GetOwnership() override { return FOwnership; }
    // The carried object, not the adapter.
    TObject* Implementor() override { return FObject; }

protected:
    // With ooOwned the adapter frees the object, from its construction on, and Free must not raise; with
    // ooReference it leaves the object alone, which must outlive it.
    TQzObjectAdapter(TObject* AObject, TQzObjectOwnership AOwnership) noexcept
        : FObject(AObject),
          FOwnership(AOwnership) {}
    ~TQzObjectAdapter() override;

private:
    TObject* FObject;
    TQzObjectOwnership FOwnership;
};

} // namespace qz

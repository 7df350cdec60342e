// TQzObject: an object that may be used as a plain object or through interfaces, and decides at run time who
// ends it.
//
//     TQzShape* Shape = TQzShape::Create();     // TQzShape derives from TQzObject
//     Shape->Free();                            // never used through an interface: its creator frees it
//
//     Ref<IQzObject> Kept = TQzShape::Create(); // the first reference decides: destroyed with the last one
//
//     TQzShape* Owned = TQzShape::Create();
//     Owned->SetAutoDestroy(false);             // references do not destroy it, Free does
//
// The count is safe on any number of threads. Each class states what else it allows.
#pragma once

#include <atomic>

#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

// What destroys an object.
enum class TQzAutoDestroy : std::uint8_t {
    radComputed, // not decided: the first interface reference makes it radTrue
    radFalse,    // its owner, by Free
    radTrue      // its last reference
};
using enum TQzAutoDestroy;

enum class TQzObjectOwnership : std::uint8_t { ooReference, ooOwned };
using enum TQzObjectOwnership;

class IQzObject : public IInterface {
public:
    static constexpr TGUID IID = Guid("{0417F540-9CCC-4DE6-B2C4-1063D0508346}");

    // The object after the interface.
    virtual TObject* Implementor() = 0;

protected:
    ~IQzObject() = default;
};

inline constexpr TTextConstant SObjRefCountNotZero =
    u"An instance of %s is destroyed while it's refcount is not 0!";

class QZ_API TQzObject : public TCreateOnly<TObject>, public IQzObject {
    QZ_CLASS(TQzObject, TObject)

public:
    using TVirtualCreate = TVirtualConstructor<TQzObject, TQzObject*()>;
    static constexpr bool cMustKeep = true; // the result of Create

    // True if the last reference destroys the object.
    virtual bool GetAutoDestroy() const;
    // Decides for good: radTrue or radFalse. A later call may decide again.
    void SetAutoDestroy(bool AValue) noexcept;
    TQzAutoDestroy AutoDestroyPolicy() const noexcept { return FAutoDestroy.load(std::memory_order_relaxed); }
    int RefCount() const noexcept { return FRefCount.Value(); }

    TObject* Implementor() override { return this; }
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    std::uint32_t _Release() override;

    // Raises Exception with SObjRefCountNotZero while references remain; the object then lives on by its
    // policy.
    void BeforeDestruction() override;

protected:
    // Releases the reference that guards the object during its construction.
    void FinishCreate() override;
    bool BeginDestruction() noexcept override;
    void DestructionRefused() noexcept override;
    TQzObject() noexcept = default;
    ~TQzObject() override = default;

private:
    friend class TQzPolicyHold;
    TRefCount FRefCount{1};
    std::atomic<TQzAutoDestroy> FAutoDestroy{radComputed};
    bool FIsRefusedByCount = false; // used by the thread that destroys the object
};

using TQzObjectClass = ClassRef<TQzObject>;

// Prevents the last reference from destroying an object, for the scope of a block.
class QZ_API TQzPolicyHold {
public:
    // Does nothing for an object that is no TQzObject and no TQzComponent.
    explicit TQzPolicyHold(TObject* AObject) noexcept;
    TQzPolicyHold(const TQzPolicyHold&) = delete;
    TQzPolicyHold& operator=(const TQzPolicyHold&) = delete;
    ~TQzPolicyHold();

    // Whether anybody referred to the object when the block began.
    bool WasReferenced() const noexcept { return FWasReferenced; }

private:
    std::atomic<TQzAutoDestroy>* FPolicy = nullptr;
    TQzAutoDestroy FOld = radComputed;
    bool FWasReferenced = false;
};

// A named base with the ordinary count of TInterfacedObject.
class QZ_API TQzInterfacedObject : public TInterfacedObject {
    QZ_CLASS(TQzInterfacedObject, TInterfacedObject)

protected:
    TQzInterfacedObject() noexcept = default;
    ~TQzInterfacedObject() override = default;
};

} // namespace qz

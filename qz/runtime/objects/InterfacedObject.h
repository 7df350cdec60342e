// TInterfacedObject: an object whose life is that of the interface references to it.
//
//     class TGreeter : public TInterfacedObject, public IGreeter {
//         QZ_CLASS(TGreeter, TInterfacedObject)
//         QZ_INTERFACE_COUNTING(TInterfacedObject)
//     public:
//         void Greet(const UnicodeString& AName) override;
//     };
//     const TClassRec TGreeter::ClassRec = DescribeClass<TGreeter>(
//         u"TGreeter", {.Unit = u"Demo", .Interfaces = Interfaces<TGreeter, IGreeter>()});
//
//     Ref<IGreeter> Greeter = TGreeter::Create();     // gone with its last reference
#pragma once

#include <atomic>

#include <qz/runtime/objects/Interface.h>

// Hands the three operations of every interface of a class to the counting of its base.
#define QZ_INTERFACE_COUNTING(ABase)                                             \
public:                                                                          \
    qz::HRESULT QueryInterface(const qz::TGUID& AIid, void** AObject) override { \
        return ABase::QueryInterface(AIid, AObject);                             \
    }                                                                            \
    std::uint32_t _AddRef() override {                                           \
        return ABase::_AddRef();                                                 \
    }                                                                            \
    std::uint32_t _Release() override {                                          \
        return ABase::_Release();                                                \
    }                                                                            \
                                                                                 \
private:

namespace qz {

// A 32-bit reference count that any thread may change. Both changes give the new count. A count below zero, one
// release too many, is an assertion failure, which ends the program where the release may not raise.
class TRefCount {
public:
    explicit TRefCount(std::int32_t ACount = 0) noexcept : FCount(ACount) {}
    std::int32_t Value() const noexcept { return FCount.load(std::memory_order_acquire); }
    std::int32_t Increment() noexcept { return FCount.fetch_add(1, std::memory_order_relaxed) + 1; }
    // Adds one unless there is none, as of an object that ends; false then.
    bool IncrementUnlessZero() noexcept {
        std::int32_t Old = FCount.load(std::memory_order_relaxed);
        while (Old > 0) {
            if (FCount.compare_exchange_weak(Old, Old + 1, std::memory_order_relaxed))
                return true;
        }
        return false;
    }
    // Takes one back unless it is the last, without the right to end anything; false then.
    bool DecrementUnlessLast() noexcept {
        std::int32_t Old = FCount.load(std::memory_order_relaxed);
        while (Old > 1) {
            if (FCount.compare_exchange_weak(Old, Old - 1, std::memory_order_release,
                                             std::memory_order_relaxed))
                return true;
        }
        return false;
    }
    // Whoever takes the count to 0 sees all that the other holders did.
    std::int32_t Decrement() {
        const std::int32_t Old = FCount.fetch_sub(1, std::memory_order_acq_rel);
        if (Old <= 0) [[unlikely]]
            RaiseBelowZero();
        return Old - 1;
    }

private:
    [[noreturn]] QZ_API static void RaiseBelowZero();

    std::atomic<std::int32_t> FCount;
};

class QZ_API TInterfacedObject : public TCreateOnly<TObject>, public IInterface {
    QZ_CLASS(TInterfacedObject, TObject)

public:
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    // Ends the object when the count reaches 0. References that are taken and dropped while it is being ended end
    // nothing.
    std::uint32_t _Release() override;

    int RefCount() const noexcept { return FRefCount.Value(); }

    // Raises EInvalidPointer when references remain; the object is then not ended.
    void BeforeDestruction() override;

protected:
    // Releases the reference that guards the object during its construction.
    void FinishCreate() override;
    bool BeginDestruction() noexcept override;
    void DestructionRefused() noexcept override;
    TInterfacedObject() noexcept = default;
    ~TInterfacedObject() override = default;

private:
    TRefCount FRefCount{1};
    std::atomic<bool> FDestroying{false};
};

} // namespace qz

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
//     Ref<IGreeter> Greeter = TGreeter::Create();     // destroyed with its last reference
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

// A reference count that any thread may change, together with a mark that says that the object is being
// destroyed. Both are one word, so that exactly one thread ends an object. Counts go up to 2^30 - 1. One
// release too many is an assertion failure. It terminates the program where a release must not raise.
class TRefCount {
public:
    explicit TRefCount(std::int32_t ACount = 0) noexcept : FWord(ACount) {}
    std::int32_t Value() const noexcept { return CountOf(FWord.load(std::memory_order_acquire)); }
    // The new count.
    std::int32_t Increment() noexcept { return CountOf(FWord.fetch_add(1, std::memory_order_relaxed) + 1); }
    // Increments unless the count is 0, as of an object that ends; false then.
    bool IncrementUnlessZero() noexcept {
        std::int32_t Old = FWord.load(std::memory_order_relaxed);
        while (CountOf(Old) > 0) {
            if (FWord.compare_exchange_weak(Old, Old + 1, std::memory_order_relaxed))
                return true;
        }
        return false;
    }
    // Decrements unless the count is 1; never destroys. False if it did not.
    bool DecrementUnlessLast() noexcept {
        std::int32_t Old = FWord.load(std::memory_order_relaxed);
        while (CountOf(Old) > 1) {
            if (FWord.compare_exchange_weak(Old, Old - 1, std::memory_order_release,
                                            std::memory_order_relaxed))
                return true;
        }
        return false;
    }
    // The new count, and whether this was the last reference to an object that is not being destroyed. That
    // thread sees all writes of the other holders.
    struct TLeft {
        std::int32_t Count;
        bool IsLast;
    };
    TLeft Decrement() {
        const std::int32_t Old = FWord.fetch_sub(1, std::memory_order_acq_rel);
        if (CountOf(Old) == 0) [[unlikely]] {
            FWord.fetch_add(1, std::memory_order_relaxed);
            RaiseBelowZero();
        }
        return {CountOf(Old) - 1, Old == 1};
    }
    // Sets the mark. False if it was set.
    bool BeginEnd() noexcept { return (FWord.fetch_or(cEnding, std::memory_order_acq_rel) & cEnding) == 0; }
    // Takes the mark away. True if no reference is left: the last one has gone meanwhile without effect.
    bool CancelEnd() noexcept { return CountOf(FWord.fetch_and(~cEnding, std::memory_order_acq_rel)) == 0; }

private:
    static constexpr std::int32_t cEnding = 1 << 30;
    static std::int32_t CountOf(std::int32_t AWord) noexcept { return AWord & ~cEnding; }
    [[noreturn]] QZ_API static void RaiseBelowZero();

    std::atomic<std::int32_t> FWord;
};

class QZ_API TInterfacedObject : public TCreateOnly<TObject>, public IInterface {
    QZ_CLASS(TInterfacedObject, TObject)

public:
    static constexpr bool cMustKeep = true; // the result of Create

    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override;
    std::uint32_t _AddRef() override;
    // Destroys the object when the count reaches 0. References that come and go during the destruction
    // destroy nothing.
    std::uint32_t _Release() override;

    int RefCount() const noexcept { return FRefCount.Value(); }

    // Raises EInvalidPointer if references remain. The object lives on then, and ends with its last one.
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
    bool FIsRefusedByCount = false; // used by the thread that destroys the object
};

} // namespace qz

// IInterface, the root of all interfaces, and Ref<I>, which holds one; Interface.h describes both. For
// headers that only name interfaces.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include <qz/runtime/base/Guid.h>

namespace qz {

class TObject;

using HRESULT = std::int32_t;
inline constexpr HRESULT S_OK_RESULT = 0;
inline constexpr HRESULT E_NOINTERFACE_RESULT = static_cast<HRESULT>(0x80004002u);
inline constexpr HRESULT E_POINTER_RESULT = static_cast<HRESULT>(0x80004003u);

class IInterface {
public:
    static constexpr TGUID IID = Guid("{00000000-0000-0000-C000-000000000046}");

    // Gives the interface of that identifier, counted for the caller, or null and E_NOINTERFACE_RESULT;
    // E_POINTER_RESULT when AObject is null.
    virtual HRESULT QueryInterface(const TGUID& AIid, void** AObject) = 0;
    // Each gives the new count; it serves for tests, another thread may change it at once.
    virtual std::uint32_t _AddRef() = 0;
    virtual std::uint32_t _Release() = 0;

protected:
    ~IInterface() = default;
};

namespace detail {
template <class J, class I>
concept CPointsTo = std::convertible_to<J*, I*>;
}

// A counted reference to an interface, or to an object of a counted class; null until assigned.
template <class I> class Ref {
public:
    Ref() noexcept = default;
    Ref(std::nullptr_t) noexcept {}
    Ref(I* AObject) noexcept : FObject(AObject) {
        if (FObject != nullptr)
            FObject->_AddRef();
    }
    // From an object that has the interface by several bases: the one that its class lists.
    template <class T>
        requires(!std::convertible_to<T*, I*> && std::is_base_of_v<I, T> && std::is_base_of_v<TObject, T>)
    Ref(T* AObject)
    noexcept : Ref(AObject == nullptr ? nullptr : static_cast<I*>(AObject->FindInterface(I::IID))) {}
    Ref(const Ref& AOther) noexcept : Ref(AOther.FObject) {}
    Ref(Ref&& AOther) noexcept : FObject(std::exchange(AOther.FObject, nullptr)) {}
    template <detail::CPointsTo<I> J>
    Ref(const Ref<J>& AOther) noexcept : Ref(static_cast<I*>(AOther.Get())) {}
    template <detail::CPointsTo<I> J> Ref(Ref<J>&& AOther) noexcept : FObject(AOther.Detach()) {}
    // Assignment takes the new reference before it drops the old one.
    Ref& operator=(Ref AOther) noexcept {
        std::swap(FObject, AOther.FObject);
        return *this;
    }
    ~Ref() {
        if (FObject != nullptr)
            FObject->_Release();
    }

    I* Get() const noexcept { return FObject; }
    I* operator->() const noexcept { return FObject; }
    I& operator*() const noexcept { return *FObject; }
    explicit operator bool() const noexcept { return FObject != nullptr; }
    operator I*() const& noexcept { return FObject; }
    // A pointer taken from a temporary reference would dangle.
    operator I*() const&& = delete;
    friend bool operator==(const Ref& ALeft, const Ref& ARight) noexcept {
        return ALeft.FObject == ARight.FObject;
    }
    friend bool operator==(const Ref& ALeft, std::nullptr_t) noexcept { return ALeft.FObject == nullptr; }

    // Releases the reference. The variable is null before the release.
    void Clear() {
        if (I* Old = std::exchange(FObject, nullptr))
            Old->_Release();
    }
    // Takes over a reference that was counted for the caller.
    static Ref Attach(I* AObject) noexcept {
        Ref Result;
        Result.FObject = AObject;
        return Result;
    }
    // Gives the counted reference away.
    [[nodiscard]] I* Detach() noexcept { return std::exchange(FObject, nullptr); }

private:
    I* FObject = nullptr;
};

// The interface J of the object that implements AObject; null if it has none.
template <class J> Ref<J> As(IInterface* AObject) {
    void* Found = nullptr;
    if (AObject != nullptr && AObject->QueryInterface(J::IID, &Found) == S_OK_RESULT)
        return Ref<J>::Attach(static_cast<J*>(Found));
    return {};
}
template <class J, class I> Ref<J> As(const Ref<I>& AObject) {
    return As<J>(static_cast<IInterface*>(AObject.Get()));
}

} // namespace qz

// IInterface, the root of all interfaces, and Ref<I>, the variable that holds one and keeps its object alive.
//
//     class IGreeter : public IInterface {
//     public:
//         static constexpr TGUID IID = Guid("{D2C4F2A6-3E6D-4B1E-9C39-5A6E8F1B7C20}");
//         virtual void Greet(const UnicodeString& AName) = 0;
//     };
//     Ref<IGreeter> Greeter;
//     if (Ref<IOther> Other = As<IOther>(Greeter))
//         Other->Wave();
//
// An interface is laid out as COM lays it out: three operations, then its own in order, no destructor. On
// Windows an interface of this library is a COM interface. Counting is safe on any number of threads; one Ref
// variable belongs to one thread at a time.
//
// BeforeDestruction and the destructor must not raise when they run for the last reference: no caller could
// handle it, and an exception that leaves the destructor of a Ref terminates the program.
#pragma once

#include <qz/runtime/objects/Object.h>
#include <qz/runtime/objects/Ref.h>

namespace qz {

// The same for an object, by the interfaces that its class lists.
template <class J> Ref<J> AsInterface(TObject* AObject) {
    void* Found = nullptr;
    if (AObject != nullptr && AObject->GetInterface(J::IID, &Found))
        return Ref<J>::Attach(static_cast<J*>(Found));
    return {};
}

// True when the object offers J, which AOut then holds; else AOut is null.
template <class J, class I> bool Supports(const Ref<I>& AObject, Ref<J>& AOut) {
    AOut = As<J>(AObject);
    return AOut != nullptr;
}
template <class J> bool Supports(TObject* AObject, Ref<J>& AOut) {
    AOut = AsInterface<J>(AObject);
    return AOut != nullptr;
}

namespace detail {

// QueryInterface of an object, by the interfaces that its class lists.
QZ_API HRESULT QueryObject(TObject& AObject, const TGUID& AIid, void** AFound);

template <class T, class I> void* CastToInterface(TObject* AObject) noexcept {
    return static_cast<I*>(static_cast<T*>(AObject));
}
template <class T, class... I>
inline constexpr TInterfaceEntry cInterfaceEntries[] = {{&I::IID, &CastToInterface<T, I>}...};

} // namespace detail

// The interfaces that T implements, for its class description; the first is the one that stands for
// IInterface.
template <class T, class... I> constexpr std::span<const TInterfaceEntry> Interfaces() noexcept {
    return detail::cInterfaceEntries<T, I...>;
}

} // namespace qz

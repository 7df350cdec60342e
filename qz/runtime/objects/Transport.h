// The form in which values of a type are handled where only their description is known: an object as
// TObject*, an interface as Ref<IInterface>, an integer as the one of its width and sign in <cstdint>,
// anything else as itself.
//
//     TTransport<TShape*> Raw = ToTransport<TShape*>(Shape);      // a TObject*
//     TShape* Same = FromTransport<TShape*>(Raw);
//
// For the authors of containers and readers; who uses those meets his own types only.
#pragma once

#include <utility>

#include <qz/runtime/objects/Interface.h>

namespace qz {

namespace detail {

template <class T> struct TTransportOf { using Type = T; };
template <CInteger T> struct TTransportOf<T> : TDescribedAs<T> {};
template <std::derived_from<TObject> T> struct TTransportOf<T*> { using Type = TObject*; };
template <CInterfaceType I> struct TTransportOf<I*> { using Type = Ref<IInterface>; };
template <CInterfaceType I> struct TTransportOf<Ref<I>> { using Type = Ref<IInterface>; };

} // namespace detail

template <class T> using TTransport = typename detail::TTransportOf<T>::Type;

template <class T, class TSource> TTransport<T> ToTransport(TSource&& AValue) {
    return TTransport<T>(std::forward<TSource>(AValue));
}

// AValue is of type T, which nothing checks. A plain pointer to an interface is good as long as AValue is.
template <class T> decltype(auto) FromTransport(const TTransport<T>& AValue) {
    if constexpr (std::is_same_v<TTransport<T>, Ref<IInterface>> && std::is_pointer_v<T>)
        return static_cast<T>(AValue.Get());
    else if constexpr (std::is_same_v<TTransport<T>, T>)
        return static_cast<const T&>(AValue);
    else if constexpr (std::is_same_v<TTransport<T>, Ref<IInterface>>)
        return T(static_cast<decltype(std::declval<T>().Get())>(AValue.Get()));
    else
        return static_cast<T>(AValue);
}

} // namespace qz

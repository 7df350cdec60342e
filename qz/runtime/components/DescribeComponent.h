// DescribeComponent: the class record of a component class, for its source file.
//
//     const TClassRec TServer::ClassRec = DescribeComponent<TServer>(u"TServer", {.Unit = u"Demo"});
//
// A component of the class can then also be made through a class reference, by TComponent::TVirtualCreate.
#pragma once

#include <qz/runtime/components/Component.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

namespace detail {

template <class T> TComponent* MakeComponent(TComponent* AOwner) {
    return T::Create(AOwner);
}
template <class T>
inline constexpr TMakerEntry cComponentMaker[] = {Maker<TComponent::TVirtualCreate, &MakeComponent<T>>()};

} // namespace detail

// AMore lists what the class adds; its makers are those of a component unless it names its own.
template <std::derived_from<TComponent> T>
consteval TClassRec DescribeComponent(std::u16string_view AName, TClassDescription AMore) {
    if (AMore.Makers.empty())
        AMore.Makers = detail::cComponentMaker<T>;
    return DescribeClass<T>(AName, AMore);
}

} // namespace qz

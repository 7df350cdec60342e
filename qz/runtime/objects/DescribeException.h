// DescribeException: the class record of an exception class, for its source file.
//
//     const TClassRec EBadShape::ClassRec = DescribeException<EBadShape>(u"EBadShape", u"Drawing");
//
// A class that can be built from a message, or from a message and a code, can then also be made through a
// class reference.
#pragma once

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

namespace detail {

template <class T> std::unique_ptr<Exception> MakeException(const UnicodeString& AMessage) {
    return std::make_unique<T>(AMessage);
}
template <class T>
std::unique_ptr<Exception> MakeExceptionCode(const UnicodeString& AMessage, std::int32_t ACode) {
    return std::make_unique<T>(AMessage, ACode);
}

template <class T>
inline constexpr TMakerEntry cPlainMaker[] = {Maker<Exception::TVirtualCreate, &MakeException<T>>()};
template <class T>
inline constexpr TMakerEntry cCodeMaker[] = {Maker<Exception::TVirtualCreateCode, &MakeExceptionCode<T>>()};
template <class T> inline constexpr TMakerEntry cBothMakers[] = {cPlainMaker<T>[0], cCodeMaker<T>[0]};

template <class T> constexpr std::span<const TMakerEntry> ExceptionMakers() noexcept {
    constexpr bool cPlain = std::is_constructible_v<T, const UnicodeString&>;
    constexpr bool cCoded = std::is_constructible_v<T, const UnicodeString&, std::int32_t>;
    if constexpr (cPlain && cCoded)
        return cBothMakers<T>;
    else if constexpr (cCoded)
        return cCodeMaker<T>;
    else if constexpr (cPlain)
        return cPlainMaker<T>;
    else
        return {};
}

} // namespace detail

template <std::derived_from<Exception> T>
consteval TClassRec DescribeException(std::u16string_view AName, std::u16string_view AUnit) {
    return DescribeClass<T>(AName, {.Unit = AUnit, .Makers = detail::ExceptionMakers<T>()});
}

} // namespace qz

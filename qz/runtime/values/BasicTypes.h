// The descriptions of the types that the runtime knows by itself: integers, characters, floats, strings,
// arrays of bytes, sets of characters, pointers, interfaces and GUIDs. Dates, Currency, Variant and TValue
// stand in their own headers.
//
//     TypeInfo<int>()->Name;              // "Integer"
//     TypeInfo<UnicodeString>()->Kind;    // tkUString
//
// An integer is described by its width and sign: std::int32_t is Integer, std::uint32_t Cardinal.
#pragma once

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/Extended.h>
#include <qz/runtime/objects/TypeInfo.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {
class TCharSet;
} // namespace qz

QZ_TYPE_INFO(std::int8_t);
QZ_TYPE_INFO(std::uint8_t);
QZ_TYPE_INFO(std::int16_t);
QZ_TYPE_INFO(std::uint16_t);
QZ_TYPE_INFO(std::int32_t);
QZ_TYPE_INFO(std::uint32_t);
QZ_TYPE_INFO(std::int64_t);
QZ_TYPE_INFO(std::uint64_t);
QZ_TYPE_INFO(float);
QZ_TYPE_INFO(double);
QZ_TYPE_INFO(qz::Extended);
QZ_TYPE_INFO(bool);
QZ_TYPE_INFO(char);
QZ_TYPE_INFO(char16_t);
QZ_TYPE_INFO(qz::UnicodeString);
QZ_TYPE_INFO(qz::WideString);
QZ_TYPE_INFO(qz::AnsiString);
QZ_TYPE_INFO(qz::UTF8String);
QZ_TYPE_INFO(qz::RawByteString);
QZ_TYPE_INFO(qz::TBytes);
QZ_TYPE_INFO(qz::TGUID);
QZ_TYPE_INFO(decltype(qz::TGUID::D4));
QZ_TYPE_INFO(qz::TCharSet);
QZ_TYPE_INFO(void*);
QZ_TYPE_INFO(qz::TClass);
QZ_TYPE_INFO(qz::IInterface);

// EnumItems: the description of an enumeration that counts from 0, from its names alone.
//
//     constexpr auto cColors = EnumItems({u"clRed", u"clGreen"});
//     const TTypeInfo TTypeDescription<TColor>::Info = DescribeEnum<TColor>(u"TColor", u"Drawing", cColors);
#pragma once

#include <array>

#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// The names with the values 0, 1, 2 and so on. The texts live as long as the program.
template <std::size_t Count>
consteval std::array<TEnumItem, Count> EnumItems(const std::u16string_view (&ANames)[Count]) noexcept {
    std::array<TEnumItem, Count> Result;
    for (std::size_t I = 0; I < Count; ++I)
        Result[I] = {ANames[I], static_cast<std::int64_t>(I)};
    return Result;
}

} // namespace qz

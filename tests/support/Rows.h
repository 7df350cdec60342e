// Tables of cases as rows of text: Rows(u"input => expected", u"other => expected").
#pragma once

#include <string_view>
#include <vector>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

// The cells of a row, which " => " separates.
inline std::vector<UnicodeString> Cells(std::u16string_view ARow) {
    constexpr std::u16string_view cArrow = u" => ";
    std::vector<UnicodeString> Result;
    for (std::size_t End; (End = ARow.find(cArrow)) != std::u16string_view::npos;) {
        Result.emplace_back(ARow.substr(0, End));
        ARow.remove_prefix(End + cArrow.size());
    }
    Result.emplace_back(ARow);
    return Result;
}

template <class... T> std::vector<std::vector<UnicodeString>> Rows(const T&... ARows) {
    return {Cells(ARows)...};
}

} // namespace qz

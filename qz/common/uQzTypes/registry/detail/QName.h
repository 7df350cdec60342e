// TTypeNameOfSchema: the name of the type that a schema name stands for, made in place.
//
//     TTypeNameOfSchema(u"Unit_Sub_Name", u'_').Qualified();    // "Unit.Sub.TName"
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace qz::detail {

// What follows the first colon; all of a name without one.
constexpr std::u16string_view WithoutPrefix(std::u16string_view AName) noexcept {
    return AName.substr(AName.find(u':') + 1);
}

class TTypeNameOfSchema {
public:
    // AName has no prefix.
    TTypeNameOfSchema(std::u16string_view AName, char16_t ASeparator)
        : FSize(AName.size() + 1),
          FShortAt(AName.rfind(ASeparator) + 1) { // 0 when there is none
        char16_t* Target = FSmall.data();
        if (FSize > FSmall.size()) [[unlikely]] {
            FLarge.resize(FSize);
            Target = FLarge.data();
        }
        FName = Target;
        using TTraits = std::char_traits<char16_t>;
        TTraits::copy(Target, AName.data(), FShortAt);
        std::replace(Target, Target + FShortAt, ASeparator, u'.');
        Target[FShortAt] = u'T';
        TTraits::copy(Target + FShortAt + 1, AName.data() + FShortAt, AName.size() - FShortAt);
    }
    TTypeNameOfSchema(const TTypeNameOfSchema&) = delete;
    TTypeNameOfSchema& operator=(const TTypeNameOfSchema&) = delete;

    std::u16string_view Qualified() const noexcept { return {FName, FSize}; }
    std::u16string_view Short() const noexcept { return Qualified().substr(FShortAt); }

private:
    std::array<char16_t, 100> FSmall;
    std::u16string FLarge;
    const char16_t* FName = nullptr;
    std::size_t FSize;
    std::size_t FShortAt;
};

} // namespace qz::detail

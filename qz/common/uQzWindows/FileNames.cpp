#include <qz/common/uQzWindows/FileNames.h>

#include <algorithm>
#include <string>

namespace qz {

UnicodeString QzCleanupFileName(const TStringArg& AName, const TCharSet& AExtra) {
    const TCharSet Unwanted = cQzInvalidFileNameChars + AExtra;
    const auto IsUnwanted = [&](char16_t AChar) { return Unwanted.Contains(char32_t{AChar}); };
    if (std::ranges::none_of(AName.View(), IsUnwanted))
        return AName.ToString();
    std::u16string Result;
    Result.reserve(AName.View().size());
    std::ranges::remove_copy_if(AName.View(), std::back_inserter(Result), IsUnwanted);
    return Result;
}

} // namespace qz

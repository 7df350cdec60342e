#include <qz/common/uQzTypes/QzCodePage.h>

#include <algorithm>
#include <array>

#include <qz/common/uQzTypes/CodePageNames.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using detail::cCodePageAliases;
using detail::cCodePageNames;
using detail::TCodePageName;

constexpr std::size_t cNameCount = std::size(cCodePageNames);
constexpr std::size_t cLongestName = 48;

constexpr char Lower(char AChar) {
    return AChar >= 'A' && AChar <= 'Z' ? static_cast<char>(AChar - 'A' + 'a') : AChar;
}

constexpr int CompareLower(std::string_view ALeft, std::string_view ARight) {
    for (std::size_t I = 0; I < std::min(ALeft.size(), ARight.size()); ++I) {
        if (Lower(ALeft[I]) != Lower(ARight[I]))
            return Lower(ALeft[I]) < Lower(ARight[I]) ? -1 : 1;
    }
    return ALeft.size() == ARight.size() ? 0 : ALeft.size() < ARight.size() ? -1 : 1;
}

// Every name in the order of its lower case; of equal ones the first of the tables stands first.
constexpr auto cByName = [] {
    std::array<TCodePageName, cNameCount + std::size(cCodePageAliases)> Result{};
    std::ranges::copy(cCodePageNames, Result.begin());
    std::ranges::copy(cCodePageAliases, Result.begin() + cNameCount);
    // An insertion sort: it keeps equal names in order, which std::sort does not, and compilers can run it.
    for (std::size_t I = 1; I < Result.size(); ++I)
        for (std::size_t J = I; J > 0 && CompareLower(Result[J].Name, Result[J - 1].Name) < 0; --J)
            std::swap(Result[J], Result[J - 1]);
    return Result;
}();

static_assert(std::ranges::is_sorted(cCodePageNames, {}, &TCodePageName::Number));
static_assert(std::ranges::all_of(cByName,
                                  [](const TCodePageName& A) { return A.Name.size() <= cLongestName; }));

bool LooksLikeUtf16(std::string_view AText) {
    return AText.size() >= 3 && AText[0] != '\0' && AText[1] == '\0';
}

} // namespace

std::uint16_t QzCodePage(const TStringArg& AName) {
    const std::u16string_view Wide = AName;
    if (Wide.empty())
        return 0;
    std::array<char, cLongestName> Buffer;
    const bool MayBeKnown =
        Wide.size() <= Buffer.size() && std::ranges::all_of(Wide, [](char16_t A) { return A < 0x80; });
    const std::string_view Name(Buffer.data(), MayBeKnown ? Wide.size() : 0);
    if (MayBeKnown)
        std::ranges::transform(Wide, Buffer.begin(), [](char16_t A) { return static_cast<char>(A); });
    const auto* Found = std::ranges::lower_bound(
        cByName, Name, [](auto ALeft, auto ARight) { return CompareLower(ALeft, ARight) < 0; },
        &TCodePageName::Name);
    if (Found == cByName.end() || CompareLower(Found->Name, Name) != 0)
        throw Exception(u"No CodePage ID found for %s!", {Wide});
    return Found->Number;
}

UnicodeString QzCodePage(std::uint16_t ANumber) {
    const auto* Found = std::ranges::lower_bound(cCodePageNames, ANumber, {}, &TCodePageName::Number);
    if (Found == std::end(cCodePageNames) || Found->Number != ANumber)
        throw Exception(u"No CodePage Name found for %d!", {ANumber});
    return Found->Name;
}

std::uint16_t QzGetCodePage(const void* ABuffer, std::int32_t ASize) {
    const std::string_view Text(static_cast<const char*>(ABuffer),
                                static_cast<std::size_t>(std::max(ASize, 0)));
    if (const std::uint16_t Found = CodePageOfMark(Text))
        return Found;
    return LooksLikeUtf16(Text) ? cUtf16CodePage : std::uint16_t{0};
}

std::uint16_t QzGetCodePage(TStream& AStream) {
    const std::int64_t Start = AStream.Position();
    char Buffer[4];
    const auto Size = static_cast<std::size_t>(AStream.ReadUpTo(Buffer, sizeof Buffer));
    const std::string_view Text(Buffer, Size);
    const std::uint16_t Found = CodePageOfMark(Text);
    AStream.SetPosition(Start + static_cast<std::int64_t>(ByteOrderMark(Found).size()));
    if (Found != 0)
        return Found;
    return LooksLikeUtf16(Text) ? cUtf16CodePage : std::uint16_t{0};
}

} // namespace qz

#include <qz/platform/linux/Charset.h>

#include <cctype>
#include <charconv>
#include <string>

namespace qz::platform::detail {

namespace {

constexpr std::uint32_t cUtf8Page = 65001;

struct TPageName {
    std::uint32_t Page;
    const char* Name;
};

// Character sets by the names that C libraries give them: capital letters and digits only.
constexpr TPageName cLocaleSets[] = {
    {54936, "GB18030"}, {936, "GBK"},       {51936, "GB2312"}, {51936, "EUCCN"},
    {950, "BIG5"},      {950, "BIG5HKSCS"}, {932, "SJIS"},     {932, "SHIFTJIS"},
    {20932, "EUCJP"},   {949, "EUCKR"},     {949, "UHC"},      {20866, "KOI8R"},
    {21866, "KOI8U"},   {28591, "LATIN1"},  {28605, "LATIN9"}, {874, "TIS620"},
};

std::string CapitalsAndDigits(std::string_view AName) {
    std::string Result;
    for (const char Char : AName) {
        if (std::isalnum(static_cast<unsigned char>(Char)) != 0)
            Result += static_cast<char>(std::toupper(static_cast<unsigned char>(Char)));
    }
    return Result;
}

// The number behind APrefix, 0 when AText is anything else.
std::uint32_t NumberBehind(std::string_view AText, std::string_view APrefix) {
    std::uint32_t Result = 0;
    if (!AText.starts_with(APrefix))
        return 0;
    const char* End = AText.data() + AText.size();
    const auto [Next, Failure] = std::from_chars(AText.data() + APrefix.size(), End, Result);
    return Failure == std::errc() && Next == End ? Result : 0;
}

} // namespace

std::uint32_t CodePageOfCharset(std::string_view AName) {
    const std::string Name = CapitalsAndDigits(AName);
    for (const TPageName& Known : cLocaleSets) {
        if (Name == Known.Name)
            return Known.Page;
    }
    if (const std::uint32_t Part = NumberBehind(Name, "ISO8859"); Part >= 1 && Part <= 16 && Part != 12)
        return 28590 + Part;
    for (const char* Prefix : {"CP", "WINDOWS", "IBM"}) {
        if (const std::uint32_t Page = NumberBehind(Name, Prefix); Page != 0)
            return Page;
    }
    return cUtf8Page;
}

} // namespace qz::platform::detail

#include <qz/platform/linux/UserDirs.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include <unistd.h>

#include <qz/platform/Files.h>
#include <qz/platform/linux/NativeEnvironment.h>
#include <qz/platform/linux/NativeText.h>
#include <qz/platform/linux/UserRecord.h>

namespace qz::platform::detail {

std::string WithoutSlash(std::string APath) {
    while (APath.size() > 1 && APath.back() == '/')
        APath.pop_back();
    return APath;
}

std::string Below(std::string AFolder, std::string_view AName) {
    if (AFolder.empty() || AName.empty())
        return AFolder;
    if (AFolder != "/")
        AFolder += '/';
    return AFolder.append(AName);
}

namespace {

bool IsWhole(std::string_view APath) {
    return APath.starts_with('/') && APath.find('\0') == std::string_view::npos;
}

std::string_view SkipBlanks(std::string_view AText) {
    const std::size_t First = AText.find_first_not_of(" \t");
    return First == std::string_view::npos ? std::string_view() : AText.substr(First);
}

bool TakePrefix(std::string_view& AText, std::string_view APrefix) {
    if (!AText.starts_with(APrefix))
        return false;
    AText.remove_prefix(APrefix.size());
    return true;
}

// The text up to the closing quote, with its escapes taken; nothing without such a quote.
std::optional<std::string> Unquoted(std::string_view AText) {
    std::string Result;
    for (std::size_t Index = 0; Index < AText.size(); ++Index) {
        if (AText[Index] == '"')
            return Result;
        if (AText[Index] == '\\' && ++Index == AText.size())
            break;
        Result += AText[Index];
    }
    return std::nullopt;
}

std::optional<std::string> ParseLine(std::string_view ALine, std::string_view AKey,
                                     const std::string& AHome) {
    ALine = SkipBlanks(ALine);
    if (!TakePrefix(ALine, "XDG_") || !TakePrefix(ALine, AKey) || !TakePrefix(ALine, "_DIR"))
        return std::nullopt;
    ALine = SkipBlanks(ALine);
    if (!TakePrefix(ALine, "="))
        return std::nullopt;
    ALine = SkipBlanks(ALine);
    if (!TakePrefix(ALine, "\""))
        return std::nullopt;
    const bool IsInHome = TakePrefix(ALine, "$HOME");
    std::optional<std::string> Path = Unquoted(ALine);
    const bool IsHome = IsInHome && Path && Path->empty();
    if (!Path || (!IsHome && !IsWhole(*Path)) || (IsInHome && AHome.empty()))
        return std::nullopt;
    if (IsInHome && AHome != "/")
        Path->insert(0, AHome);
    return WithoutSlash(Path->empty() ? "/" : *std::move(Path));
}

} // namespace

std::string HomeDirectory() {
    const std::optional<std::string> Set = NativeEnvironment("HOME");
    std::string Home = Set && IsWhole(*Set) ? *Set : UserRecord(geteuid()).Home;
    return IsWhole(Home) ? WithoutSlash(std::move(Home)) : std::string();
}

std::string BaseDirectory(const char* AVariable, std::string_view ADefault) {
    std::optional<std::string> Set = NativeEnvironment(AVariable);
    if (Set && IsWhole(*Set))
        return WithoutSlash(*std::move(Set));
    return Below(HomeDirectory(), ADefault);
}

std::optional<std::string> ParseUserDirectory(std::string_view AText, std::string_view AKey,
                                              const std::string& AHome) {
    std::optional<std::string> Result;
    while (!AText.empty()) {
        const std::string_view Line = AText.substr(0, AText.find('\n'));
        if (std::optional<std::string> Path = ParseLine(Line, AKey, AHome))
            Result = std::move(Path);
        AText.remove_prefix(std::min(AText.size(), Line.size() + 1));
    }
    return Result;
}

std::string UserDirectory(std::string_view AKey, std::string_view ADefault) {
    const std::string Home = HomeDirectory();
    const std::string File = Below(BaseDirectory("XDG_CONFIG_HOME", ".config"), "user-dirs.dirs");
    if (!File.empty()) {
        const TResult<std::vector<std::byte>> Bytes = ReadWholeFile(FromNative(File)); // empty on failure
        const std::string_view Text(reinterpret_cast<const char*>(Bytes->data()), Bytes->size());
        if (std::optional<std::string> Chosen = ParseUserDirectory(Text, AKey, Home))
            return *std::move(Chosen);
    }
    return Below(Home, ADefault);
}

} // namespace qz::platform::detail

#include <qz/runtime/files/FileNames.h>

#include <algorithm>

#include <qz/platform/Files.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

std::size_t LengthOfPath(std::u16string_view AName) {
    // npos + 1 is 0
    const std::size_t Slash = AName.find_last_of(platform::PathSeparators()) + 1;
    const char16_t Drive = platform::DriveSeparator();
    return Drive == 0 ? Slash : std::max(Slash, AName.rfind(Drive) + 1);
}

// Where the extension begins; the length of the name when there is none.
std::size_t PlaceOfExt(std::u16string_view AName) {
    const std::size_t Point = AName.rfind(u'.');
    return Point == std::u16string_view::npos || Point < LengthOfPath(AName) ? AName.size() : Point;
}

} // namespace

UnicodeString ExtractFilePath(const TStringArg& AFileName) {
    return AFileName.View().substr(0, LengthOfPath(AFileName));
}

UnicodeString ExtractFileName(const TStringArg& AFileName) {
    return AFileName.View().substr(LengthOfPath(AFileName));
}

UnicodeString ExtractFileExt(const TStringArg& AFileName) {
    return AFileName.View().substr(PlaceOfExt(AFileName));
}

UnicodeString ChangeFileExt(const TStringArg& AFileName, const TStringArg& AExtension) {
    return UnicodeString(AFileName.View().substr(0, PlaceOfExt(AFileName))) + AExtension.View();
}

UnicodeString IncludeTrailingPathDelimiter(const TStringArg& AFileName) {
    const std::u16string_view Name = AFileName;
    if (!Name.empty() && platform::PathSeparators().find(Name.back()) != std::u16string_view::npos)
        return AFileName.ToString();
    return UnicodeString(Name) + platform::PathSeparators().front();
}

bool SameFileName(const TStringArg& ALeft, const TStringArg& ARight) {
    return platform::FileNamesIgnoreCase() ? SameText(ALeft, ARight) : ALeft.View() == ARight.View();
}

} // namespace qz

#include <qz/runtime/files/FileSystem.h>

#include <qz/platform/Files.h>
#include <qz/platform/Module.h>

namespace qz {
namespace {

std::u16string_view WithoutTrailingSeparators(std::u16string_view AName) {
    const std::size_t Last = AName.find_last_not_of(platform::PathSeparators());
    return Last == std::u16string_view::npos ? std::u16string_view() : AName.substr(0, Last + 1);
}

bool MakeDirectories(std::u16string_view AName) {
    if (AName.empty() || platform::DirectoryExists(AName))
        return !AName.empty();
    const std::size_t Separator = AName.find_last_of(platform::PathSeparators());
    const std::u16string_view Parent =
        WithoutTrailingSeparators(AName.substr(0, Separator == std::u16string_view::npos ? 0 : Separator));
    const bool IsDrive = !Parent.empty() && Parent.back() == platform::DriveSeparator();
    if (!Parent.empty() && !IsDrive && !MakeDirectories(Parent))
        return false;
    return platform::MakeDirectory(AName) || platform::DirectoryExists(AName);
}

} // namespace

bool FileExists(const TStringArg& AFileName) {
    return platform::FileExists(AFileName);
}

bool DirectoryExists(const TStringArg& ADirectory) {
    return platform::DirectoryExists(ADirectory);
}

bool DeleteFile(const TStringArg& AFileName) {
    return static_cast<bool>(platform::RemoveFile(AFileName));
}

bool RenameFile(const TStringArg& AFileName, const TStringArg& ANewName) {
    return static_cast<bool>(platform::RenameEntry(AFileName, ANewName));
}

bool ForceDirectories(const TStringArg& ADirectory) {
    const std::u16string_view Name = WithoutTrailingSeparators(ADirectory);
    return Name.empty() ? platform::DirectoryExists(ADirectory) : MakeDirectories(Name);
}

UnicodeString ExpandFileName(const TStringArg& AFileName) {
    return platform::WholePath(AFileName);
}

UnicodeString ProgramFileName() {
    return platform::ExecutablePath();
}

} // namespace qz

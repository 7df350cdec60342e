#include <qz/platform/FileHandle.h>

#include <algorithm>
#include <optional>

#include <windows.h>

#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/NativeFile.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr size_t cLargestStep = size_t{1} << 30;

bool Outcome(TError& AError, bool AOk) {
    AError.Code = AOk ? 0 : LastError();
    return AOk;
}

bool Fail(TError& AError, DWORD ACode) {
    AError.Code = static_cast<int>(ACode);
    return false;
}

HANDLE Handle(intptr_t AHandle) {
    return reinterpret_cast<HANDLE>(AHandle); // NOLINT(performance-no-int-to-ptr): a HANDLE is a number
}

} // namespace

bool TFileHandle::Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation,
                       TFileSharing ASharing, TError& AError) {
    constexpr DWORD cAccess[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE};
    constexpr DWORD cCreation[] = {OPEN_EXISTING, OPEN_ALWAYS, CREATE_ALWAYS, CREATE_NEW};
    Close();
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return Fail(AError, ERROR_INVALID_NAME);
    const DWORD Sharing = (ASharing.Read ? FILE_SHARE_READ : 0u) | (ASharing.Write ? FILE_SHARE_WRITE : 0u);
    HANDLE File = CreateFileW(detail::Wide(*Path), cAccess[static_cast<int>(AAccess) - 1], Sharing, nullptr,
                              cCreation[static_cast<int>(ACreation)], FILE_ATTRIBUTE_NORMAL, nullptr);
    if (File != INVALID_HANDLE_VALUE)
        FHandle = reinterpret_cast<intptr_t>(File);
    return Outcome(AError, IsOpen());
}

bool TFileHandle::Close() noexcept {
    const intptr_t File = std::exchange(FHandle, cNone);
    return File == cNone || CloseHandle(Handle(File)) != 0;
}

// What these change is the file, so they are not const.
// NOLINTBEGIN(readability-make-member-function-const)

bool TFileHandle::Read(std::span<std::byte> ATarget, size_t& ADone, TError& AError) {
    DWORD Got = 0;
    const auto Step = static_cast<DWORD>(std::min(ATarget.size(), cLargestStep));
    // A pipe whose other end is gone has come to its end.
    const bool Ok = ReadFile(Handle(FHandle), ATarget.data(), Step, &Got, nullptr) != 0 ||
        GetLastError() == ERROR_BROKEN_PIPE;
    ADone = Got;
    return Outcome(AError, Ok);
}

bool TFileHandle::Write(std::span<const std::byte> ASource, size_t& ADone, TError& AError) {
    return Outcome(AError, detail::WriteAll(Handle(FHandle), ASource, ADone));
}

bool TFileHandle::Seek(int64_t AOffset, TFileOrigin AOrigin, int64_t& APosition, TError& AError) {
    LARGE_INTEGER Offset, Position;
    Offset.QuadPart = AOffset;
    const bool Ok = SetFilePointerEx(Handle(FHandle), Offset, &Position, static_cast<DWORD>(AOrigin)) != 0;
    if (Ok)
        APosition = Position.QuadPart;
    return Outcome(AError, Ok);
}

bool TFileHandle::SetSize(int64_t ASize, TError& AError) {
    FILE_END_OF_FILE_INFO Info;
    Info.EndOfFile.QuadPart = ASize;
    return Outcome(AError,
                   SetFileInformationByHandle(Handle(FHandle), FileEndOfFileInfo, &Info, sizeof Info) != 0);
}

bool TFileHandle::WriteAtEnd(TError& AError) {
    int64_t Position = 0;
    return Seek(0, TFileOrigin::End, Position, AError);
}

bool TFileHandle::Append(std::span<const std::byte> ASource, size_t& ADone, TError& AError) {
    return Write(ASource, ADone, AError);
}

void TFileHandle::DenyNothing() noexcept {}

bool TFileHandle::IsAt(std::u16string_view) const {
    return true;
}

bool TFileHandle::Flush(TError& AError) {
    // A handle that only reads has nothing to wait for.
    return Outcome(AError, FlushFileBuffers(Handle(FHandle)) != 0 || GetLastError() == ERROR_ACCESS_DENIED);
}

// NOLINTEND(readability-make-member-function-const)

} // namespace qz::platform

#include <qz/platform/FileHandle.h>

#include <algorithm>
#include <optional>

#include <windows.h>

#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/NativeFile.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr std::size_t cLargestStep = std::size_t{1} << 30;

HANDLE Handle(std::intptr_t AHandle) {
    return reinterpret_cast<HANDLE>(AHandle); // NOLINT(performance-no-int-to-ptr): a HANDLE is a number
}

} // namespace

TResult<> TFileHandle::Open(std::u16string_view APath, TFileAccess AAccess, TFileCreation ACreation,
                            TFileSharing ASharing) {
    constexpr DWORD cAccess[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE};
    constexpr DWORD cCreation[] = {OPEN_EXISTING, OPEN_ALWAYS, CREATE_ALWAYS, CREATE_NEW};
    Close();
    const std::optional<std::u16string> Path = detail::SystemPath(APath);
    if (!Path)
        return TError(ERROR_INVALID_NAME);
    const DWORD Sharing = (ASharing.Read ? FILE_SHARE_READ : 0u) | (ASharing.Write ? FILE_SHARE_WRITE : 0u);
    HANDLE File = CreateFileW(detail::Wide(*Path), cAccess[static_cast<int>(AAccess) - 1], Sharing, nullptr,
                              cCreation[static_cast<int>(ACreation)], FILE_ATTRIBUTE_NORMAL, nullptr);
    if (File == INVALID_HANDLE_VALUE)
        return TError(GetLastError());
    FHandle = reinterpret_cast<std::intptr_t>(File);
    return {};
}

TResult<TFileHandle> TFileHandle::Duplicate() const {
    const HANDLE Process = GetCurrentProcess();
    HANDLE File = INVALID_HANDLE_VALUE;
    if (DuplicateHandle(Process, Handle(FHandle), Process, &File, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0)
        return TError(GetLastError());
    TFileHandle Result;
    Result.FHandle = reinterpret_cast<std::intptr_t>(File);
    return Result;
}

bool TFileHandle::Close() noexcept {
    const std::intptr_t File = std::exchange(FHandle, cNone);
    return File == cNone || CloseHandle(Handle(File)) != 0;
}

// What these change is the file, so they are not const.
// NOLINTBEGIN(readability-make-member-function-const)

TResult<std::size_t> TFileHandle::Read(std::span<std::byte> ATarget) {
    DWORD Got = 0;
    const auto Step = static_cast<DWORD>(std::min(ATarget.size(), cLargestStep));
    // A pipe ends with this error when its other end is closed.
    const bool Ok = ReadFile(Handle(FHandle), ATarget.data(), Step, &Got, nullptr) != 0 ||
        GetLastError() == ERROR_BROKEN_PIPE;
    if (!Ok)
        return TError(GetLastError());
    return std::size_t{Got};
}

TWritten TFileHandle::Write(std::span<const std::byte> ASource) {
    TWritten Result;
    const bool Ok = detail::WriteAll(Handle(FHandle), ASource, Result.Done);
    Result.Error = ResultOf(Ok).Error();
    return Result;
}

TResult<std::int64_t> TFileHandle::Seek(std::int64_t AOffset, TFileOrigin AOrigin) {
    LARGE_INTEGER Offset, Position;
    Offset.QuadPart = AOffset;
    if (SetFilePointerEx(Handle(FHandle), Offset, &Position, static_cast<DWORD>(AOrigin)) == 0)
        return TError(GetLastError());
    return std::int64_t{Position.QuadPart};
}

TResult<> TFileHandle::SetSize(std::int64_t ASize) {
    FILE_END_OF_FILE_INFO Info;
    Info.EndOfFile.QuadPart = ASize;
    return ResultOf(SetFileInformationByHandle(Handle(FHandle), FileEndOfFileInfo, &Info, sizeof Info) != 0);
}

TResult<> TFileHandle::WriteAtEnd() {
    return Seek(0, TFileOrigin::End).Error();
}

TWritten TFileHandle::Append(std::span<const std::byte> ASource) {
    return Write(ASource);
}

TWritten TFileHandle::AppendWithin(std::span<const std::byte> ASource, std::uint32_t) {
    return Append(ASource);
}

void TFileHandle::DenyNothing() noexcept {}

bool TFileHandle::IsAt(std::u16string_view) const {
    return true;
}

TResult<> TFileHandle::Flush() {
    // A handle that only reads has nothing to wait for.
    return ResultOf(FlushFileBuffers(Handle(FHandle)) != 0 || GetLastError() == ERROR_ACCESS_DENIED);
}

// NOLINTEND(readability-make-member-function-const)

} // namespace qz::platform

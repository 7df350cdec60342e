#include <qz/runtime/streams/FileStream.h>

#include <algorithm>
#include <tuple>
#include <vector>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

using platform::TFileAccess;
using platform::TFileCreation;
using platform::TFileSharing;

constexpr TTextConstant cCannotWrite = u"Cannot write to file \"%s\". %s";
constexpr TTextConstant cCannotSeek = u"Cannot seek in file \"%s\". %s";

TFileSharing SharingOf(std::uint16_t AMode) {
    switch (AMode & 0x00F0u) {
    case fmShareDenyWrite: return {.Read = true, .Write = false};
    case fmShareDenyRead: return {.Read = false, .Write = true};
    case fmShareDenyNone: return {.Read = true, .Write = true};
    default: return {};
    }
}

TFileAccess AccessOf(std::uint16_t AMode) {
    const unsigned Access = AMode & 0x0003u;
    if ((AMode & fmCreate) == fmCreate || Access == fmOpenReadWrite)
        return TFileAccess::ReadWrite;
    return Access == fmOpenWrite ? TFileAccess::Write : TFileAccess::Read;
}

} // namespace

QZ_REGISTER_TYPES(TFileStream);

constinit const TClassRec TFileStream::ClassRec =
    DescribeClass<TFileStream>(u"TFileStream", {.Unit = u"System"});

TFileStream::TFileStream(const TStringArg& AFileName, std::uint16_t AMode) : FFileName(AFileName.View()) {
    const bool Creates = (AMode & fmCreate) == fmCreate;
    const platform::TResult<> Opened = FHandle.Open(
        FFileName, AccessOf(AMode), Creates ? TFileCreation::Always : TFileCreation::Never, SharingOf(AMode));
    if (Opened)
        return;
    if (Creates)
        detail::RaiseFileError<EFCreateError>(SFCreateError, FFileName, Opened.Error());
    detail::RaiseFileError<EFOpenError>(SFOpenError, FFileName, Opened.Error());
}

std::int32_t TFileStream::Read(void* ABuffer, std::int32_t ACount) {
    const auto Count = static_cast<std::size_t>(std::max(ACount, 0));
    const platform::TResult<std::size_t> Got = FHandle.Read({static_cast<std::byte*>(ABuffer), Count});
    if (!Got)
        detail::RaiseFileError<EReadError>(u"Cannot read from file \"%s\". %s", FFileName, Got.Error());
    return static_cast<std::int32_t>(*Got);
}

std::int32_t TFileStream::Write(const void* ABuffer, std::int32_t ACount) {
    const auto Count = static_cast<std::size_t>(std::max(ACount, 0));
    const platform::TWritten Written = FHandle.Write({static_cast<const std::byte*>(ABuffer), Count});
    if (!Written && Written.Done == 0)
        detail::RaiseFileError<EWriteError>(cCannotWrite, FFileName, Written.Error);
    return static_cast<std::int32_t>(Written.Done);
}

std::int64_t TFileStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    const platform::TResult<std::int64_t> Position =
        FHandle.Seek(AOffset, static_cast<platform::TFileOrigin>(AOrigin));
    if (!Position)
        detail::RaiseFileError<EStreamError>(cCannotSeek, FFileName, Position.Error());
    return *Position;
}

void TFileStream::SetSize(std::int64_t ANewSize) {
    if (const platform::TResult<> Result = FHandle.SetSize(ANewSize); !Result)
        detail::RaiseFileError<EStreamError>(u"Cannot change the size of file \"%s\". %s", FFileName,
                                             Result.Error());
}

void TFileStream::FlushToDisk() {
    if (const platform::TResult<> Result = FHandle.Flush(); !Result)
        detail::RaiseFileError<EStreamError>(u"Cannot flush file \"%s\". %s", FFileName, Result.Error());
}

} // namespace qz

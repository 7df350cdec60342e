#include <qz/runtime/streams/FileStream.h>

#include <algorithm>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using platform::TError;
using platform::TFileAccess;
using platform::TFileCreation;
using platform::TFileSharing;

constexpr TTextConstant cCannotWrite = u"Cannot write to file \"%s\". %s";

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

template <class E>
[[noreturn]] void Raise(const TStringArg& APattern, const UnicodeString& AFile, TError AError) {
    throw E(APattern, {AFile, SysErrorMessage(AError.Code)});
}

} // namespace

constinit const TClassRec TFileStream::ClassRec =
    DescribeClass<TFileStream>(u"TFileStream", {.Unit = u"Streams"});

TFileStream::TFileStream(const TStringArg& AFileName, std::uint16_t AMode) : FFileName(AFileName.View()) {
    const bool Creates = (AMode & fmCreate) == fmCreate;
    TError Error;
    if (FHandle.Open(FFileName, AccessOf(AMode), Creates ? TFileCreation::Always : TFileCreation::Never,
                     SharingOf(AMode), Error))
        return;
    if (Creates)
        Raise<EFCreateError>(SFCreateError, FFileName, Error);
    Raise<EFOpenError>(SFOpenError, FFileName, Error);
}

std::int32_t TFileStream::Read(void* ABuffer, std::int32_t ACount) {
    const auto Count = static_cast<std::size_t>(std::max(ACount, 0));
    std::size_t Done = 0;
    TError Error;
    if (!FHandle.Read({static_cast<std::byte*>(ABuffer), Count}, Done, Error))
        Raise<EReadError>(u"Cannot read from file \"%s\". %s", FFileName, Error);
    return static_cast<std::int32_t>(Done);
}

std::int32_t TFileStream::Write(const void* ABuffer, std::int32_t ACount) {
    const auto Count = static_cast<std::size_t>(std::max(ACount, 0));
    std::size_t Done = 0;
    TError Error;
    if (!FHandle.Write({static_cast<const std::byte*>(ABuffer), Count}, Done, Error) && Done == 0)
        Raise<EWriteError>(cCannotWrite, FFileName, Error);
    return static_cast<std::int32_t>(Done);
}

std::int64_t TFileStream::Seek(std::int64_t AOffset, TSeekOrigin AOrigin) {
    std::int64_t Position = 0;
    TError Error;
    if (!FHandle.Seek(AOffset, static_cast<platform::TFileOrigin>(AOrigin), Position, Error))
        Raise<EStreamError>(u"Cannot seek in file \"%s\". %s", FFileName, Error);
    return Position;
}

void TFileStream::SetSize(std::int64_t ANewSize) {
    TError Error;
    if (!FHandle.SetSize(ANewSize, Error))
        Raise<EStreamError>(u"Cannot change the size of file \"%s\". %s", FFileName, Error);
}

void TFileStream::FlushToDisk() {
    TError Error;
    if (!FHandle.Flush(Error))
        Raise<EStreamError>(u"Cannot flush file \"%s\". %s", FFileName, Error);
}

} // namespace qz

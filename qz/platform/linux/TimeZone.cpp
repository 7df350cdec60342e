#include <qz/platform/TimeZone.h>

#include <cerrno>
#include <climits>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <sys/auxv.h>
#include <sys/stat.h>
#include <unistd.h>

#include <qz/platform/linux/NativeEnvironment.h>
#include <qz/platform/linux/NativeFile.h>
#include <qz/platform/linux/NativeText.h>
#include <qz/platform/linux/ZoneFile.h>
#include <qz/platform/linux/ZoneText.h>

// What TZ may hold: the name of a file, absolute or below the folder of zones, else a rule text; a colon in
// front means nothing. Without TZ it is /etc/localtime. Whatever cannot be read, in full, is UTC.

namespace qz::platform {

namespace {

constexpr const char* cSystemFile = "/etc/localtime";
constexpr std::string_view cUsualFolder = "/usr/share/zoneinfo";

struct TSetting {
    std::string Value; // without colon; empty for the system's own
    std::string Path;
};

// A program that runs with the rights of another user must not be made to read any file.
bool MayRead(const std::string& AName) {
    if (getauxval(AT_SECURE) == 0)
        return true;
    return (AName.front() != '/' || AName == cSystemFile || AName.starts_with(cUsualFolder)) &&
        AName.find("../") == std::string::npos;
}

TSetting Setting() {
    const std::optional<std::string> Given = detail::NativeEnvironment("TZ");
    if (!Given)
        return {{}, cSystemFile};
    TSetting Result{Given->empty() ? "Universal" : *Given, {}};
    if (Result.Value.front() == ':')
        Result.Value.erase(0, 1);
    if (Result.Value.empty() || !MayRead(Result.Value))
        return Result;
    Result.Path = Result.Value;
    if (Result.Value.front() != '/') {
        const std::string Folder = detail::NativeEnvironment("TZDIR").value_or("");
        Result.Path = (Folder.empty() ? std::string(cUsualFolder) : Folder) + '/' + Result.Value;
    }
    return Result;
}

// Whether a failure to open or read a file may have gone a moment later.
bool IsPassing(int ACode) {
    return ACode == EMFILE || ACode == ENFILE || ACode == ENOMEM || ACode == EIO || ACode == EINTR ||
        ACode == EAGAIN || ACode == ESTALE;
}

// Empty for what is no regular file of a fitting size, and for what does not exist. Fails otherwise.
TResult<std::vector<std::byte>> ReadWhole(const std::string& APath) {
    std::vector<std::byte> Data;
    // Does not wait for a writer of a pipe.
    const int File = detail::OpenNative(APath.c_str(), O_RDONLY | O_NONBLOCK);
    if (File < 0)
        return IsPassing(errno) ? TError(errno) : TResult(std::move(Data));
    struct stat Info;
    ssize_t Got = 0;
    if (fstat(File, &Info) == 0 && S_ISREG(Info.st_mode) && Info.st_size > 0 &&
        static_cast<std::size_t>(Info.st_size) <= detail::cLongestZoneFile) {
        Data.resize(static_cast<std::size_t>(Info.st_size));
        std::size_t Done = 0;
        while (Done < Data.size() && (Got = detail::ReadSome(File, std::span(Data).subspan(Done))) > 0)
            Done += static_cast<std::size_t>(Got);
        Data.resize(Done);
    }
    const int Code = Got < 0 ? errno : 0;
    close(File);
    return Code != 0 ? TError(Code) : TResult(std::move(Data));
}

// /etc/localtime points to the file of its zone, whose path holds the name.
std::string NameBehind(const std::string& APath) {
    std::string Target(PATH_MAX, '\0');
    const ssize_t Size = readlink(APath.c_str(), Target.data(), Target.size());
    Target.resize(Size > 0 ? static_cast<std::size_t>(Size) : 0);
    constexpr std::string_view cFolder = "zoneinfo/";
    const std::size_t Found = Target.rfind(cFolder);
    return Found == std::string::npos ? std::string() : Target.substr(Found + cFolder.size());
}

} // namespace

TResult<TSystemZone> ReadSystemZone() {
    const TSetting Now = Setting();
    TSystemZone Result;
    const auto Data = Now.Path.empty() ? TResult(std::vector<std::byte>()) : ReadWhole(Now.Path);
    if (!Data)
        return Data.Error();
    if (detail::ReadZoneFile(*Data, Result) || detail::ReadZoneText(Now.Value, Result)) {
        const bool IsSystems = Now.Value.empty() && !Now.Path.empty();
        Result.Id = detail::FromNative(IsSystems ? NameBehind(Now.Path) : Now.Value);
    } else {
        Result.Kinds.push_back({0, false, u"UTC"});
        Result.Id = u"UTC";
    }
    return Result;
}

std::string SystemZoneStamp() {
    const TSetting Now = Setting();
    std::string Result = Now.Value + '\0' + Now.Path + '\0';
    struct stat Info;
    if (!Now.Path.empty() && stat(Now.Path.c_str(), &Info) == 0) {
        for (const std::int64_t Each :
             {static_cast<std::int64_t>(Info.st_dev), static_cast<std::int64_t>(Info.st_ino),
              static_cast<std::int64_t>(Info.st_size), std::int64_t{Info.st_mtim.tv_sec},
              std::int64_t{Info.st_mtim.tv_nsec}, std::int64_t{Info.st_ctim.tv_sec},
              std::int64_t{Info.st_ctim.tv_nsec}})
            Result.append(reinterpret_cast<const char*>(&Each), sizeof Each);
    }
    return Result;
}

} // namespace qz::platform

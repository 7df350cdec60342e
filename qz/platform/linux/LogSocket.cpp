#include <qz/platform/linux/LogSocket.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <qz/platform/FileLimit.h>
#include <qz/platform/linux/NativeFile.h>

namespace qz::platform::detail {

namespace {

// False for a path that no socket can have.
bool FillAddress(const std::string& APath, sockaddr_un& AAddress) noexcept {
    AAddress = {};
    AAddress.sun_family = AF_UNIX;
    if (APath.empty() || APath.size() >= sizeof AAddress.sun_path)
        return false;
    std::memcpy(AAddress.sun_path, APath.data(), APath.size());
    return true;
}

TSent OutcomeOf(int ACode) noexcept {
    switch (ACode) {
    case EMSGSIZE:
    case ENOBUFS: return TSent::TooLong;
    case EAGAIN:
    case ENOMEM:
    case EMFILE:
    case ENFILE:
    case EBADF: // closed by the program at this moment
    case ENOTSOCK:
    case ETOOMANYREFS: return TSent::Lost;
    default: return TSent::NoDaemon;
    }
}

// Makes a call without waiting, and with waiting as long as that fails for a full queue. ACall takes the
// flags of the call and gives its result.
template <class TCall> ssize_t Patiently(const TLogSocket& ASocket, TLogDeadline ADeadline, TCall ACall) {
    int Flags = MSG_DONTWAIT | MSG_NOSIGNAL;
    for (;;) {
        const ssize_t Result = ACall(Flags);
        if (Result >= 0 || (errno != EINTR && errno != EAGAIN))
            return Result;
        if (errno == EINTR && (Flags & MSG_DONTWAIT) != 0)
            continue;
        if (!ASocket.WaitUntil(ADeadline)) {
            errno = EAGAIN;
            return -1;
        }
        Flags = MSG_NOSIGNAL;
    }
}

// A sealed file in memory; -1 on failure.
int SealedFile(std::string_view AContent) noexcept {
    const int File = memfd_create("qzcommon-log", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (File < 0)
        return -1;
    const TNoLimitSignal Quiet;
    std::size_t Done = 0;
    if (WriteAll(File, std::as_bytes(std::span(AContent)), Done) &&
        fcntl(File, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL) == 0)
        return File;
    close(File);
    return -1;
}

} // namespace

bool TLogSocket::Open(int AType) noexcept {
    Close();
    // Room for bursts; the system cuts it to what it allows.
    constexpr int cRoom = 8 << 20;
    FHandle = socket(AF_UNIX, AType | SOCK_CLOEXEC, 0);
    struct stat Status;
    if (FHandle < 0 || fstat(FHandle, &Status) != 0)
        return false;
    FDevice = Status.st_dev;
    FNode = Status.st_ino;
    setsockopt(FHandle, SOL_SOCKET, SO_SNDBUF, &cRoom, sizeof cRoom);
    return true;
}

bool TLogSocket::IsOpen() const noexcept {
    struct stat Status;
    return FHandle >= 0 && fstat(FHandle, &Status) == 0 && Status.st_dev == FDevice && Status.st_ino == FNode;
}

bool TLogSocket::WaitUntil(TLogDeadline ADeadline) const noexcept {
    using namespace std::chrono;
    const auto Left = ceil<microseconds>(ADeadline - steady_clock::now()).count();
    if (Left <= 0)
        return false;
    const timeval Time{Left / 1'000'000, Left % 1'000'000};
    return setsockopt(FHandle, SOL_SOCKET, SO_SNDTIMEO, &Time, sizeof Time) == 0;
}

void TLogSocket::Close() noexcept {
    if (IsOpen())
        close(FHandle);
    FHandle = -1;
}

TSent TLogDatagrams::Send(const std::string& APath, std::string_view AMessage,
                          TLogDeadline ADeadline) noexcept {
    return SendRaw(APath, AMessage, -1, ADeadline);
}

TSent TLogDatagrams::SendFile(const std::string& APath, std::string_view AMessage,
                              TLogDeadline ADeadline) noexcept {
    const int File = SealedFile(AMessage);
    if (File < 0)
        return TSent::Lost;
    const TSent Result = SendRaw(APath, {}, File, ADeadline);
    close(File);
    return Result;
}

TSent TLogDatagrams::SendRaw(const std::string& APath, std::string_view AMessage, int AFile,
                             TLogDeadline ADeadline) noexcept {
    sockaddr_un Address;
    if (!FillAddress(APath, Address))
        return TSent::NoDaemon;
    if (!FSocket.IsOpen() && !FSocket.Open(SOCK_DGRAM))
        return OutcomeOf(errno);
    iovec Piece{const_cast<char*>(AMessage.data()), AMessage.size()};
    alignas(cmsghdr) char Control[CMSG_SPACE(sizeof(int))] = {};
    msghdr Message{};
    Message.msg_name = &Address;
    Message.msg_namelen = sizeof Address;
    if (AFile < 0) {
        Message.msg_iov = &Piece;
        Message.msg_iovlen = 1;
    } else {
        Message.msg_control = Control;
        Message.msg_controllen = sizeof Control;
        cmsghdr* Header = CMSG_FIRSTHDR(&Message);
        Header->cmsg_level = SOL_SOCKET;
        Header->cmsg_type = SCM_RIGHTS;
        Header->cmsg_len = CMSG_LEN(sizeof AFile);
        std::memcpy(CMSG_DATA(Header), &AFile, sizeof AFile);
    }
    const auto Call = [&](int AFlags) { return sendmsg(FSocket.Handle(), &Message, AFlags); };
    return Patiently(FSocket, ADeadline, Call) < 0 ? OutcomeOf(errno) : TSent::Yes;
}

TSent TLogStream::Send(const std::string& APath, const std::string& AMessage,
                       TLogDeadline ADeadline) noexcept {
    if (FSocket.IsOpen()) {
        if (const TSent Result = SendRaw(AMessage, ADeadline); Result != TSent::NoDaemon)
            return Result;
    }
    const TSent Result = Connect(APath, ADeadline);
    return Result == TSent::Yes ? SendRaw(AMessage, ADeadline) : Result;
}

// After the deadline a daemon with a full queue of connections is given a millisecond.
TSent TLogStream::Connect(const std::string& APath, TLogDeadline ADeadline) noexcept {
    sockaddr_un Address;
    if (!FillAddress(APath, Address))
        return TSent::NoDaemon;
    const bool IsOpen = FSocket.Open(SOCK_STREAM) &&
        (FSocket.WaitUntil(ADeadline) ||
         FSocket.WaitUntil(std::chrono::steady_clock::now() + std::chrono::milliseconds(1)));
    if (IsOpen && connect(FSocket.Handle(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0)
        return TSent::Yes;
    const TSent Result = OutcomeOf(errno == EINTR ? EAGAIN : errno);
    FSocket.Close();
    return Result;
}

TSent TLogStream::SendRaw(const std::string& AMessage, TLogDeadline ADeadline) const noexcept {
    const std::size_t Size = AMessage.size() + 1;
    const ssize_t Sent = Patiently(FSocket, ADeadline, [&](int AFlags) {
        return send(FSocket.Handle(), AMessage.c_str(), Size, AFlags);
    });
    if (Sent < 0)
        return OutcomeOf(errno);
    // One taken in part is begun again on another connection.
    return static_cast<std::size_t>(Sent) == Size ? TSent::Yes : TSent::NoDaemon;
}

} // namespace qz::platform::detail

#include <qz/platform/linux/LogSocket.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
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

// A file in memory that nobody can change any more; -1 on failure.
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
    FHandle = socket(AF_UNIX, AType | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
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

void TLogSocket::Close() noexcept {
    if (IsOpen())
        close(FHandle);
    FHandle = -1;
}

TSent TLogDatagrams::Send(const std::string& APath, std::string_view AMessage) noexcept {
    return SendRaw(APath, AMessage, -1);
}

TSent TLogDatagrams::SendFile(const std::string& APath, std::string_view AMessage) noexcept {
    const int File = SealedFile(AMessage);
    if (File < 0)
        return TSent::Lost;
    const TSent Result = SendRaw(APath, {}, File);
    close(File);
    return Result;
}

TSent TLogDatagrams::SendRaw(const std::string& APath, std::string_view AMessage, int AFile) noexcept {
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
    while (sendmsg(FSocket.Handle(), &Message, MSG_DONTWAIT | MSG_NOSIGNAL) < 0) {
        if (errno != EINTR)
            return OutcomeOf(errno);
    }
    return TSent::Yes;
}

TSent TLogStream::Send(const std::string& APath, const std::string& AMessage) noexcept {
    if (FSocket.IsOpen()) {
        if (const TSent Result = SendRaw(AMessage); Result != TSent::NoDaemon)
            return Result;
    }
    const TSent Result = Connect(APath);
    return Result == TSent::Yes ? SendRaw(AMessage) : Result;
}

TSent TLogStream::Connect(const std::string& APath) noexcept {
    sockaddr_un Address;
    if (!FillAddress(APath, Address))
        return TSent::NoDaemon;
    if (FSocket.Open(SOCK_STREAM) &&
        connect(FSocket.Handle(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0)
        return TSent::Yes;
    const TSent Result = OutcomeOf(errno);
    FSocket.Close();
    return Result;
}

TSent TLogStream::SendRaw(const std::string& AMessage) const noexcept {
    const std::size_t Size = AMessage.size() + 1;
    for (;;) {
        const ssize_t Sent = send(FSocket.Handle(), AMessage.c_str(), Size, MSG_DONTWAIT | MSG_NOSIGNAL);
        if (Sent >= 0) // one taken in part is begun anew on another connection
            return static_cast<std::size_t>(Sent) == Size ? TSent::Yes : TSent::NoDaemon;
        if (errno != EINTR)
            return OutcomeOf(errno);
    }
}

} // namespace qz::platform::detail

#include "platform/linux/LogSocket.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/linux/NativeFile.h"

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

int OpenSocket(int AType) noexcept {
    // Room for bursts; the system cuts it to what it allows.
    constexpr int cRoom = 8 << 20;
    const int Socket = socket(AF_UNIX, AType | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (Socket >= 0)
        setsockopt(Socket, SOL_SOCKET, SO_SNDBUF, &cRoom, sizeof cRoom);
    return Socket;
}

TSent OutcomeOf(int ACode) noexcept {
    switch (ACode) {
    case EMSGSIZE:
    case ENOBUFS: return TSent::TooLong;
    case EAGAIN:
    case ENOMEM:
    case EMFILE:
    case ENFILE:
    case ETOOMANYREFS: return TSent::Lost;
    default: return TSent::NoDaemon;
    }
}

// A file in memory that nobody can change any more; -1 on failure.
int SealedFile(std::string_view AContent) noexcept {
    const int File = memfd_create("qzcommon-log", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (File < 0)
        return -1;
    size_t Done = 0;
    if (WriteAll(File, std::as_bytes(std::span(AContent)), Done) &&
        fcntl(File, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL) == 0)
        return File;
    close(File);
    return -1;
}

} // namespace

TLogDatagrams::~TLogDatagrams() {
    if (FSocket >= 0)
        close(FSocket);
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
    if (FSocket < 0 && (FSocket = OpenSocket(SOCK_DGRAM)) < 0)
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
    while (sendmsg(FSocket, &Message, MSG_DONTWAIT | MSG_NOSIGNAL) < 0) {
        if (errno != EINTR)
            return OutcomeOf(errno);
    }
    return TSent::Yes;
}

TSent TLogStream::Send(const std::string& APath, const std::string& AMessage) noexcept {
    if (FSocket >= 0) {
        if (const TSent Result = SendRaw(AMessage); Result != TSent::NoDaemon)
            return Result;
        Disconnect();
    }
    const TSent Result = Connect(APath);
    return Result == TSent::Yes ? SendRaw(AMessage) : Result;
}

TSent TLogStream::Connect(const std::string& APath) noexcept {
    sockaddr_un Address;
    if (!FillAddress(APath, Address))
        return TSent::NoDaemon;
    FSocket = OpenSocket(SOCK_STREAM);
    if (FSocket >= 0 && connect(FSocket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0)
        return TSent::Yes;
    const TSent Result = OutcomeOf(errno);
    Disconnect();
    return Result;
}

void TLogStream::Disconnect() noexcept {
    const int Socket = std::exchange(FSocket, -1);
    if (Socket >= 0)
        close(Socket);
}

TSent TLogStream::SendRaw(const std::string& AMessage) const noexcept {
    const size_t Size = AMessage.size() + 1;
    for (;;) {
        const ssize_t Sent = send(FSocket, AMessage.c_str(), Size, MSG_DONTWAIT | MSG_NOSIGNAL);
        if (Sent >= 0) // one taken in part is begun anew on another connection
            return static_cast<size_t>(Sent) == Size ? TSent::Yes : TSent::NoDaemon;
        if (errno != EINTR)
            return OutcomeOf(errno);
    }
}

} // namespace qz::platform::detail

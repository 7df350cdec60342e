// Sockets to the daemons of the system's log. While the queue of a daemon is full, a sender waits until its
// deadline.
#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace qz::platform::detail {

enum class TSent : unsigned char {
    Yes,
    Lost,    // the queue of the daemon was full until the deadline, or this system has no resources
    TooLong, // for one datagram
    NoDaemon // no daemon listens at the path
};

using TLogDeadline = std::chrono::steady_clock::time_point;

// A socket. It notices if its descriptor number belongs to another file by now: a program that
// becomes a daemon closes all descriptors.
class TLogSocket {
public:
    TLogSocket() noexcept = default;
    TLogSocket(const TLogSocket&) = delete;
    TLogSocket& operator=(const TLogSocket&) = delete;
    ~TLogSocket() { Close(); }

    // Closes the previous one. False, with errno set, on failure.
    bool Open(int AType) noexcept;
    bool IsOpen() const noexcept;
    void Close() noexcept;
    int Handle() const noexcept { return FHandle; }
    // Lets the next blocking call wait until ADeadline. False if that has passed.
    bool WaitUntil(TLogDeadline ADeadline) const noexcept;

private:
    int FHandle = -1;
    dev_t FDevice = 0;
    ino_t FNode = 0;
};

// Sends datagrams, each to where the path leads at that moment, so that a daemon may come and go. One thread
// at a time.
class TLogDatagrams {
public:
    TSent Send(const std::string& APath, std::string_view AMessage, TLogDeadline ADeadline) noexcept;
    // Sends a sealed file in memory that holds the message.
    TSent SendFile(const std::string& APath, std::string_view AMessage, TLogDeadline ADeadline) noexcept;

private:
    TSent SendRaw(const std::string& APath, std::string_view AMessage, int AFile,
                  TLogDeadline ADeadline) noexcept;

    TLogSocket FSocket;
};

// Sends messages one after the other, with a NUL after each. Connects when there is something to send, and
// once again when the daemon has gone. One thread at a time; the child of a fork() may go on with the
// connection, since the system takes a message of less than 16 KiB whole or not at all.
class TLogStream {
public:
    TSent Send(const std::string& APath, const std::string& AMessage, TLogDeadline ADeadline) noexcept;

private:
    TSent Connect(const std::string& APath, TLogDeadline ADeadline) noexcept;
    TSent SendRaw(const std::string& AMessage, TLogDeadline ADeadline) const noexcept;

    TLogSocket FSocket;
};

} // namespace qz::platform::detail

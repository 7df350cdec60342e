// Sockets to the daemons of the system's log. Nothing here waits.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace qz::platform::detail {

enum class TSent : unsigned char {
    Yes,
    Lost,    // the daemon, or this system, takes no more now
    TooLong, // for one datagram
    NoDaemon // nobody listens at the path
};

// Sends datagrams, each to where the path leads at that moment, so that a daemon may come and go. One thread at a time.
class TLogDatagrams {
public:
    TLogDatagrams() noexcept = default;
    TLogDatagrams(const TLogDatagrams&) = delete;
    TLogDatagrams& operator=(const TLogDatagrams&) = delete;
    ~TLogDatagrams();

    TSent Send(const std::string& APath, std::string_view AMessage) noexcept;
    // Sends a sealed file in memory that holds the message.
    TSent SendFile(const std::string& APath, std::string_view AMessage) noexcept;

private:
    TSent SendRaw(const std::string& APath, std::string_view AMessage, int AFile) noexcept;

    int FSocket = -1;
};

// Sends messages one behind the other, with a NUL behind each. Connects when there is something to send, and once anew when
// the daemon has gone. One thread at a time; the child of a fork() may go on with the connection, since the system takes
// a message of less than 16 KiB whole or not at all.
class TLogStream {
public:
    TLogStream() noexcept = default;
    TLogStream(const TLogStream&) = delete;
    TLogStream& operator=(const TLogStream&) = delete;
    ~TLogStream() { Disconnect(); }

    TSent Send(const std::string& APath, const std::string& AMessage) noexcept;

private:
    TSent Connect(const std::string& APath) noexcept;
    void Disconnect() noexcept;
    TSent SendRaw(const std::string& AMessage) const noexcept;

    int FSocket = -1;
};

} // namespace qz::platform::detail

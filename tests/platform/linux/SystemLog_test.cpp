#include <qz/platform/linux/SystemLog.h>

#include <array>
#include <cstring>
#include <ctime>
#include <regex>
#include <thread>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {
namespace {

using namespace std::string_literals;

// A daemon's socket. Nothing of it waits: what was sent is there, or it is not.
class TDaemon {
public:
    TDaemon(std::string APath, int AType) : FPath(std::move(APath)), FType(AType) {
        FSocket = socket(AF_UNIX, AType | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        sockaddr_un Address{};
        Address.sun_family = AF_UNIX;
        std::memcpy(Address.sun_path, FPath.data(), FPath.size());
        EXPECT_EQ(bind(FSocket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address), 0);
        EXPECT_EQ(AType == SOCK_STREAM ? listen(FSocket, 5) : 0, 0);
    }
    TDaemon(const TDaemon&) = delete;
    TDaemon& operator=(const TDaemon&) = delete;
    ~TDaemon() {
        close(FSocket);
        close(FConnection);
        unlink(FPath.c_str());
    }

    // The next datagram, the content of the file that came in its place, or "-"; of a stream, see
    // TakeStream().
    std::string Take() {
        if (FType == SOCK_STREAM)
            return TakeStream();
        std::string Buffer(4 << 20, '\0');
        iovec Piece{Buffer.data(), Buffer.size()};
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> Control{};
        msghdr Message{};
        Message.msg_iov = &Piece;
        Message.msg_iovlen = 1;
        Message.msg_control = Control.data();
        Message.msg_controllen = Control.size();
        const ssize_t Length = recvmsg(FSocket, &Message, MSG_CMSG_CLOEXEC);
        if (Length < 0)
            return "-";
        const cmsghdr* Header = CMSG_FIRSTHDR(&Message);
        if (Header == nullptr)
            return Buffer.substr(0, static_cast<size_t>(Length));
        EXPECT_EQ(Length, 0);
        int File = -1;
        std::memcpy(&File, CMSG_DATA(Header), sizeof File);
        return ContentOf(File);
    }
    // All bytes of the connection that have come, "-" when nobody has connected.
    std::string TakeStream() {
        if (FConnection < 0)
            FConnection = accept4(FSocket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (FConnection < 0)
            return "-";
        std::string Result;
        char Buffer[65536];
        for (ssize_t Got; (Got = recv(FConnection, Buffer, sizeof Buffer, 0)) > 0;)
            Result.append(Buffer, static_cast<size_t>(Got));
        return Result;
    }

private:
    static std::string ContentOf(int AFile) {
        constexpr int cSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
        EXPECT_EQ(fcntl(AFile, F_GET_SEALS) & cSeals, cSeals);
        std::string Result(static_cast<size_t>(lseek(AFile, 0, SEEK_END)), '\0');
        EXPECT_EQ(static_cast<ssize_t>(Result.size()), pread(AFile, Result.data(), Result.size(), 0));
        close(AFile);
        return Result;
    }

    std::string FPath;
    int FType;
    int FSocket = -1;
    int FConnection = -1;
};

class SystemLogLinux : public testing::Test {
protected:
    ~SystemLogLinux() override { Log.CloseSource(Source); }

    std::string Path(std::u16string_view AName) const { return detail::ToNative(Directory / AName); }
    bool Write(std::u16string_view AText, TEventType AType = TEventType::Information) {
        return Log.Write(Source, AType, 2, AText, 0);
    }

    const TTemporaryDirectory Directory;
    detail::TSystemLog Log{Path(u"journal"), Path(u"syslog")};
    uintptr_t Source = Log.OpenSource(u"my [app]");
};

std::string Message(std::string_view AHead, std::string_view AText) {
    return std::string(AHead).append(AText) + '\n';
}

TEST_F(SystemLogLinux, JournalGetsFieldsOfBytes) {
    TDaemon Journal(Path(u"journal"), SOCK_DGRAM);
    const std::string Rest = "SYSLOG_IDENTIFIER=my [app]\nEVENT_ID=2\nMESSAGE";
    EXPECT_TRUE(Write(u"Straße \xD83D\xDE00", TEventType::Error));
    EXPECT_EQ(Journal.Take(), Message("PRIORITY=3\n" + Rest + '=', "Straße \xF0\x9F\x98\x80"));
    const std::string Head = "PRIORITY=6\n" + Rest;
    EXPECT_TRUE(Write(u"a\0\xD800z\xDC80"s));
    EXPECT_EQ(Journal.Take(), Message(Head + '=', "a\0\xEF\xBF\xBDz\xEF\xBF\xBD"s));
    EXPECT_TRUE(Write(u"x\nEVENT_ID=9\n"));
    EXPECT_EQ(Journal.Take(), Message(Head, "\n\x0D\0\0\0\0\0\0\0x\nEVENT_ID=9\n"s));
    EXPECT_EQ(Journal.Take(), "-");
}

TEST_F(SystemLogLinux, LongTextsArriveWhole) {
    TDaemon Journal(Path(u"journal"), SOCK_DGRAM);
    // The last of them is longer than any datagram, and comes as a sealed file.
    for (const size_t Size : {size_t{70} << 10, size_t{1} << 20, size_t{9} << 20}) {
        std::u16string Text(Size, u'ä');
        Text[1000] = u'\n';
        ASSERT_TRUE(Write(Text));
        const std::string Content = Journal.Take();
        EXPECT_TRUE(Content.starts_with("PRIORITY=6\n"));
        EXPECT_TRUE(Content.ends_with(detail::ToNative(Text) + '\n'));
    }
}

TEST_F(SystemLogLinux, DaemonsComeAndGo) {
    EXPECT_FALSE(Write(u"nobody"));
    const std::pair<const char16_t*, int> cDaemons[] = {
        {u"journal", SOCK_DGRAM}, {u"syslog", SOCK_DGRAM}, {u"syslog", SOCK_STREAM}};
    for (const auto& [Name, Type] : cDaemons) {
        for (int Round = 0; Round < 2; ++Round) {
            TDaemon Daemon(Path(Name), Type);
            EXPECT_TRUE(Write(u"hello"));
            EXPECT_NE(Daemon.Take().find("hello"), std::string::npos);
        }
        EXPECT_FALSE(Write(u"gone"));
    }
    // A socket without a daemon is left behind.
    TDaemon Syslog(Path(u"syslog"), SOCK_DGRAM);
    {
        TDaemon Journal(Path(u"other"), SOCK_DGRAM);
        ASSERT_EQ(rename(Path(u"other").c_str(), Path(u"journal").c_str()), 0);
    }
    EXPECT_TRUE(Write(u"hello"));
    EXPECT_NE(Syslog.Take(), "-");
}

TEST_F(SystemLogLinux, BurstsWaitForTheDaemon) {
    TDaemon Journal(Path(u"journal"), SOCK_DGRAM);
    constexpr int cCount = 500;
    std::thread Reader([&Journal] {
        for (int Got = 0; Got < cCount;)
            Got += Journal.Take() != "-" ? 1 : 0;
    });
    for (int I = 0; I < cCount; ++I)
        EXPECT_TRUE(Write(u"burst"));
    Reader.join();
    while (Write(u"nothing reads")) {}
    EXPECT_FALSE(Write(u"so this one does not wait"));
    while (Journal.Take() != "-") {}
    EXPECT_TRUE(Write(u"accepted again"));
}

// A program that becomes a daemon closes all, and opens descriptors of its own.
TEST_F(SystemLogLinux, DescriptorsOfTheProgramAreLeftAlone) {
    for (const int Type : {SOCK_DGRAM, SOCK_STREAM}) {
        TDaemon Daemon(Path(u"syslog"), Type);
        std::array<int, 2> Own{};
        ASSERT_EQ(socketpair(AF_UNIX, Type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, Own.data()), 0);
        const uintptr_t Other = Log.OpenSource(u"other");
        const auto Write = [&](std::u16string_view AText) {
            return Log.Write(Other, TEventType::Error, 2, AText, 0);
        };
        std::array<int, 4> Free{}; // the numbers that it will open
        for (int& Number : Free)
            Number = dup(0);
        for (const int Number : Free)
            close(Number);
        EXPECT_TRUE(Write(u"first"));
        EXPECT_NE(Daemon.Take().find("first"), std::string::npos);
        for (const int Number : Free)
            ASSERT_EQ(Number, dup2(Own[0], Number));
        EXPECT_TRUE(Write(u"second"));
        if (Type == SOCK_DGRAM) {
            EXPECT_NE(Daemon.Take().find("second"), std::string::npos);
        }
        for (const int Number : Free)
            ASSERT_EQ(Number, dup2(Own[0], Number));
        Log.CloseSource(Other);
        char Byte = 0;
        EXPECT_EQ(recv(Own[1], &Byte, 1, 0), -1);
        for (const int Number : Free)
            EXPECT_EQ(close(Number), 0);
        close(Own[0]);
        close(Own[1]);
    }
}

TEST_F(SystemLogLinux, SyslogGetsLinesWithHeaders) {
    TDaemon Syslog(Path(u"syslog"), SOCK_DGRAM);
    const std::string Process = std::to_string(getpid());
    const auto Line = [&](const std::string& ANumber, const std::string& AText) {
        return std::regex("<" + ANumber +
                          ">[A-Z][a-z]{2} [ 1-3][0-9] [0-2][0-9](:[0-5][0-9]){2} my__app_\\[" + Process +
                          "\\]: " + AText);
    };
    EXPECT_TRUE(Write(u"full", TEventType::Error));
    EXPECT_TRUE(std::regex_match(Syslog.Take(), Line("11", "full")));
    const time_t Now = time(nullptr);
    EXPECT_TRUE(Log.Write(Source, TEventType::Error, 2, u"x", 3600));
    const int Hour = std::stoi(Syslog.Take().substr(11, 2));
    EXPECT_TRUE(Hour == (Now / 3600 + 1) % 24 || Hour == (time(nullptr) / 3600 + 1) % 24) << Hour;
    EXPECT_TRUE(Write(u"a\nb\0\tc\xDC00\x7F"s));
    const std::string Escaped = Syslog.Take();
    EXPECT_TRUE(std::regex_match(Escaped, Line("14", "a#012b#000\tc\xEF\xBF\xBD#177"))) << Escaped;

    std::u16string Long;
    while (Long.size() < 30'000)
        Long += u"€-ä\xD83D\xDE00";
    ASSERT_TRUE(Write(Long));
    std::string Whole;
    for (std::string Part; (Part = Syslog.Take()) != "-";) {
        const size_t Header = Part.find("]: ") + 3;
        EXPECT_LE(Part.size() - Header, 8000u);
        EXPECT_EQ(std::u16string::npos, detail::FromNative(Part).find(u'\xDC80')); // no character is torn
        Whole += Part.substr(Header);
    }
    EXPECT_EQ(detail::ToNative(Long), Whole);
}

TEST_F(SystemLogLinux, StreamNeverTearsAMessage) {
    TDaemon Syslog(Path(u"syslog"), SOCK_STREAM);
    const std::u16string Text(5000, u'x');
    int Count = 0;
    while (Write(Text) && Count < 1'000'000)
        ++Count;
    ASSERT_LT(Count, 1'000'000);
    std::string All = Syslog.TakeStream();
    EXPECT_TRUE(Write(u"last"));
    All += Syslog.TakeStream();
    int Found = 0;
    for (size_t End; (End = All.find('\0')) != std::string::npos; All.erase(0, End + 1)) {
        const std::string Frame = All.substr(0, End);
        EXPECT_TRUE(Frame.starts_with("<14>"));
        EXPECT_TRUE(Frame.ends_with("]: last") || Frame.size() - Frame.find("]: ") - 3 == Text.size());
        ++Found;
    }
    EXPECT_EQ(Count + 1, Found);
    EXPECT_EQ(All, "");
}

} // namespace
} // namespace qz::platform

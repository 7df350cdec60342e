#include <qz/platform/linux/SystemLog.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <utility>

#include <unistd.h>

#include <qz/platform/linux/LogSocket.h>
#include <qz/platform/linux/NativeText.h>

namespace qz::platform {

namespace detail {

namespace {

constexpr std::size_t cLongestSyslogText = 8000; // of one message: the least that the daemons accept
constexpr std::size_t cKeptRoom = 64 * 1024;
constexpr std::chrono::seconds cPatience{1}; // for one message, while the queue of the daemon is full

struct TSource {
    std::string Name; // as it was given
    std::string Tag;  // as the syslog takes it
    TLogDatagrams Datagrams;
    TLogStream Stream;
    std::int32_t LocalOffset = 0;
    TLogDeadline Deadline; // of the message under way
    bool Waits = true;     // false while the daemon takes nothing, so that it holds up one message only
    // For the message under way, kept for the next one.
    std::string Text;
    std::string Message;
};

bool IsControl(unsigned char AByte) {
    return AByte < ' ' || AByte == 0x7F;
}

// UTF-8, with U+FFFD for lone surrogates.
std::string Utf8Of(std::u16string_view AText) {
    std::u16string Sound(AText);
    for (std::size_t Index = 0; Index < Sound.size(); ++Index) {
        if ((Sound[Index] & 0xF800) != 0xD800)
            continue;
        const bool IsPair =
            Sound[Index] < 0xDC00 && Index + 1 < Sound.size() && (Sound[Index + 1] & 0xFC00) == 0xDC00;
        if (IsPair)
            ++Index;
        else
            Sound[Index] = 0xFFFD;
    }
    return ToNative(Sound);
}

std::string TagOf(std::string AName) {
    for (char& Char : AName) {
        if (IsControl(static_cast<unsigned char>(Char)) || std::strchr(" :[]", Char) != nullptr)
            Char = '_';
    }
    return AName;
}

// The numbers of syslog, which the journal uses too.
char PriorityOf(TEventType AType) {
    switch (AType) {
    case TEventType::Error: return '3';
    case TEventType::Warning: return '4';
    case TEventType::Success: return '5';
    case TEventType::Information: break;
    }
    return '6';
}

// A field of the journal. A value of several lines has its length in front, as 64 bits from the lowest on.
void AppendField(std::string& AMessage, std::string_view AName, std::string_view AValue) {
    AMessage += AName;
    if (AValue.find('\n') == std::string_view::npos) {
        AMessage += '=';
    } else {
        AMessage += '\n';
        for (unsigned Shift = 0; Shift < 64; Shift += 8)
            AMessage += static_cast<char>(std::uint64_t{AValue.size()} >> Shift & 0xFF);
    }
    AMessage += AValue;
    AMessage += '\n';
}

TSent SendToJournal(TSource& ASource, const std::string& APath, TEventType AType, std::uint32_t AId) {
    std::string& Message = ASource.Message;
    const char Priority = PriorityOf(AType);
    Message.clear();
    AppendField(Message, "PRIORITY", {&Priority, 1});
    AppendField(Message, "SYSLOG_IDENTIFIER", ASource.Name);
    AppendField(Message, "EVENT_ID", std::to_string(AId));
    AppendField(Message, "MESSAGE", ASource.Text);
    const TSent Result = ASource.Datagrams.Send(APath, Message, ASource.Deadline);
    return Result == TSent::TooLong ? ASource.Datagrams.SendFile(APath, Message, ASource.Deadline) : Result;
}

// "<12>Jan 31 08:15:02 source[17]: ", the local time as the daemons expect it. 8 is the facility of users'
// programs. The C library's conversions of time are not used: a child of fork() may find their lock held
// forever.
std::string SyslogHeader(const TSource& ASource, TEventType AType) {
    constexpr const char* cMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    using namespace std::chrono;
    const auto Now = floor<seconds>(system_clock::now()) + seconds(ASource.LocalOffset);
    const auto Day = floor<days>(Now);
    const year_month_day Date(Day);
    const hh_mm_ss Time(Now - Day);
    char Head[48];
    std::snprintf(Head, sizeof Head, "<%d>%s %2u %02d:%02d:%02d ", 8 + PriorityOf(AType) - '0',
                  cMonths[(unsigned{Date.month()} - 1) % 12], unsigned{Date.day()},
                  static_cast<int>(Time.hours().count()), static_cast<int>(Time.minutes().count()),
                  static_cast<int>(Time.seconds().count()));
    return Head + ASource.Tag + '[' + std::to_string(getpid()) + "]: ";
}

TSent SendSyslogMessage(TSource& ASource, const std::string& APath) {
    const TSent Result = ASource.Datagrams.Send(APath, ASource.Message, ASource.Deadline);
    return Result == TSent::NoDaemon ? ASource.Stream.Send(APath, ASource.Message, ASource.Deadline) : Result;
}

std::size_t SequenceLength(unsigned char ALead) {
    return ALead < 0xC0 ? 1 : ALead < 0xE0 ? 2 : ALead < 0xF0 ? 3 : 4;
}

bool SendToSyslog(TSource& ASource, const std::string& APath, TEventType AType) {
    std::string& Message = ASource.Message;
    Message = SyslogHeader(ASource, AType);
    const std::size_t HeaderSize = Message.size();
    const std::string_view Text = ASource.Text;
    for (std::size_t Index = 0; Index < Text.size();) {
        const auto Lead = static_cast<unsigned char>(Text[Index]);
        const std::size_t Length = SequenceLength(Lead);
        char Escape[8];
        std::string_view Piece = Text.substr(Index, Length);
        if (IsControl(Lead) && Lead != '\t')
            Piece = {Escape,
                     static_cast<std::size_t>(std::snprintf(Escape, sizeof Escape, "#%03o", unsigned{Lead}))};
        if (Message.size() + Piece.size() > HeaderSize + cLongestSyslogText) {
            if (SendSyslogMessage(ASource, APath) != TSent::Yes)
                return false;
            Message.resize(HeaderSize);
        }
        Message += Piece;
        Index += Length;
    }
    return SendSyslogMessage(ASource, APath) == TSent::Yes;
}

void KeepRoom(std::string& AText) {
    if (AText.capacity() > cKeptRoom)
        AText = std::string();
}

} // namespace

TSystemLog::TSystemLog(std::string AJournal, std::string ASyslog)
    : FJournal(std::move(AJournal)),
      FSyslog(std::move(ASyslog)) {}

void TSystemLog::EnterSource(std::u16string_view, std::u16string_view) noexcept {}

std::uintptr_t TSystemLog::OpenSource(std::u16string_view AName) noexcept {
    try {
        auto Source = std::make_unique<TSource>();
        Source->Name = Utf8Of(AName);
        Source->Tag = TagOf(Source->Name);
        return reinterpret_cast<std::uintptr_t>(Source.release());
    } catch (const std::exception&) {
        return 0;
    }
}

void TSystemLog::CloseSource(std::uintptr_t ASource) noexcept {
    const std::unique_ptr<TSource> Source(reinterpret_cast<TSource*>(ASource));
}

bool TSystemLog::Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId, std::u16string_view AText,
                       std::int32_t ALocalOffset) noexcept {
    if (ASource == 0)
        return false;
    try {
        TSource& Source = *reinterpret_cast<TSource*>(ASource);
        Source.Text = Utf8Of(AText);
        Source.LocalOffset = ALocalOffset;
        const auto Now = std::chrono::steady_clock::now();
        Source.Deadline = Source.Waits ? Now + cPatience : Now;
        const TSent Sent = SendToJournal(Source, FJournal, AType, AId);
        const bool Result =
            Sent == TSent::Yes || (Sent == TSent::NoDaemon && SendToSyslog(Source, FSyslog, AType));
        Source.Waits = Result;
        KeepRoom(Source.Text);
        KeepRoom(Source.Message);
        return Result;
    } catch (const std::exception&) {
        return false; // no memory
    }
}

} // namespace detail

IEventLog& SystemEventLog() {
    static detail::TSystemLog& Log = *new detail::TSystemLog("/run/systemd/journal/socket", "/dev/log");
    return Log;
}

} // namespace qz::platform

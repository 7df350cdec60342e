// A line of a log file per call, beside spdlog, log4cplus and POCO with the same content: with every line in
// the kernel when the call returns, beside a bare write of the same bytes, and with buffers; and what it
// costs to roll over.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

#include <Poco/AutoPtr.h>
#include <Poco/FormattingChannel.h>
#include <Poco/Logger.h>
#include <Poco/PatternFormatter.h>
#include <Poco/SimpleFileChannel.h>
#include <log4cplus/fileappender.h>
#include <log4cplus/initializer.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>

// Counts the allocations of a thread, in all libraries.
namespace {
thread_local std::int64_t GAllocations = 0;
} // namespace
extern "C" void* __libc_malloc(std::size_t ASize); // NOLINT: the name is the C library's
extern "C" void* malloc(std::size_t ASize) {
    ++GAllocations;
    return __libc_malloc(ASize);
}

namespace {

using namespace qz;

constexpr char16_t cText[] = u"GET /index.html 200 17 ms from 192.168.17.4";
constexpr char cNarrowText[] = "GET /index.html 200 17 ms from 192.168.17.4";
constexpr char cLine[] =
    "2024-01-31 08:15:02:047 - Info root.bench - GET /index.html 200 17 ms from 192.168.17.4\r\n";

// In a directory of this run.
std::string PathOf(const char* AName) {
    static const std::string Directory = [] {
        const auto Result = std::filesystem::temp_directory_path() / ("qz-bench-" + std::to_string(getpid()));
        std::filesystem::create_directories(Result);
        return Result.string();
    }();
    return Directory + "/" + AName;
}

// The allocations of this thread so far.
class TAllocations {
public:
    ~TAllocations() {
        const auto Count = static_cast<double>(GAllocations - FBefore);
        FState.counters["allocs"] = benchmark::Counter(Count, benchmark::Counter::kAvgIterations);
    }
    explicit TAllocations(benchmark::State& AState) : FState(AState) {}

private:
    benchmark::State& FState;
    const std::int64_t FBefore = GAllocations;
};

void Finish(benchmark::State& AState, const std::string& AFile) {
    if (AState.thread_index() != 0)
        return;
    rusage Usage;
    getrusage(RUSAGE_SELF, &Usage);
    AState.counters["peak_MB"] = static_cast<double>(Usage.ru_maxrss) / 1024;
    std::filesystem::remove(AFile);
}

void BareWrite(benchmark::State& AState) {
    static int File;
    const std::string Path = PathOf("bare.log");
    if (AState.thread_index() == 0)
        File = open(Path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0666);
    for (auto _ : AState)
        benchmark::DoNotOptimize(write(File, cLine, sizeof cLine - 1));
    if (AState.thread_index() == 0)
        close(File);
    Finish(AState, Path);
}

void Ours(benchmark::State& AState, std::int64_t ABufferSize) {
    static Ref<IQzLogger> Log;
    const std::string Path = PathOf("ours.log");
    if (AState.thread_index() == 0) {
        const Ref<TQzFileAppender> File(TQzFileAppender::Create(nullptr, u""));
        File->SetFileName(Path);
        File->SetBufferSize(ABufferSize);
        File->SetLayout(QzSimpleLayout);
        Log = Logger().GetLogger("bench");
        Log->SetLevel(llAll);
        Log->SetAdditive(false);
        Log->AddAppender(File.Get());
    }
    const UnicodeString Text = cText;
    {
        const TAllocations Allocations(AState);
        for (auto _ : AState)
            Log->Info(Text);
    }
    if (AState.thread_index() == 0) {
        Log->GetAppenders()->Clear();
        Log.Clear();
    }
    Finish(AState, Path);
}

void OfSpdlog(benchmark::State& AState, bool AFlushes) {
    static std::shared_ptr<spdlog::logger> Log;
    const std::string Path = PathOf("spdlog.log");
    if (AState.thread_index() == 0) {
        Log = std::make_shared<spdlog::logger>(
            "root.bench", std::make_shared<spdlog::sinks::basic_file_sink_mt>(Path, true));
        Log->set_formatter(std::make_unique<spdlog::pattern_formatter>(
            "%Y-%m-%d %H:%M:%S:%e - %l %n - %v", spdlog::pattern_time_type::local, "\r\n"));
        Log->flush_on(AFlushes ? spdlog::level::trace : spdlog::level::warn);
    }
    {
        const TAllocations Allocations(AState);
        for (auto _ : AState)
            Log->info(cNarrowText);
    }
    if (AState.thread_index() == 0)
        Log.reset();
    Finish(AState, Path);
}

void OfLog4cplus(benchmark::State& AState, bool AFlushes) {
    static log4cplus::Initializer Started;
    const std::string Path = PathOf("log4cplus.log");
    log4cplus::Logger Log = log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("root.bench"));
    if (AState.thread_index() == 0) {
        log4cplus::SharedAppenderPtr File(new log4cplus::FileAppender(Path, std::ios_base::trunc, AFlushes));
        File->setLayout(std::make_unique<log4cplus::PatternLayout>(
            LOG4CPLUS_TEXT("%D{%Y-%m-%d %H:%M:%S:%q} - %p %c - %m\r%n")));
        Log.setAdditivity(false);
        Log.setLogLevel(log4cplus::ALL_LOG_LEVEL);
        Log.removeAllAppenders();
        Log.addAppender(File);
    }
    const log4cplus::tstring Text = cNarrowText;
    {
        const TAllocations Allocations(AState);
        for (auto _ : AState)
            Log.log(log4cplus::INFO_LOG_LEVEL, Text);
    }
    if (AState.thread_index() == 0)
        Log.removeAllAppenders();
    Finish(AState, Path);
}

void OfPoco(benchmark::State& AState, bool AFlushes) {
    const std::string Path = PathOf("poco.log");
    Poco::Logger& Log = Poco::Logger::get("root.bench");
    if (AState.thread_index() == 0) {
        Poco::AutoPtr<Poco::SimpleFileChannel> File(new Poco::SimpleFileChannel(Path));
        File->setProperty("flush", AFlushes ? "true" : "false");
        Poco::AutoPtr<Poco::PatternFormatter> Format(
            new Poco::PatternFormatter("%Y-%m-%d %H:%M:%S:%i - %p %s - %t\r"));
        Format->setProperty("times", "local");
        Log.setChannel(Poco::AutoPtr<Poco::FormattingChannel>(new Poco::FormattingChannel(Format, File)));
    }
    const std::string Text = cNarrowText;
    {
        const TAllocations Allocations(AState);
        for (auto _ : AState)
            Log.information(Text);
    }
    if (AState.thread_index() == 0)
        Log.setChannel(nullptr);
    Finish(AState, Path);
}

BENCHMARK(BareWrite)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(Ours, EachLine, 0)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfSpdlog, EachLine, true)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfLog4cplus, EachLine, true)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfPoco, EachLine, true)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(Ours, Buffered, 65536)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfSpdlog, Buffered, false)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfLog4cplus, Buffered, false)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK_CAPTURE(OfPoco, Buffered, false)->Threads(1)->Threads(4)->UseRealTime();

// A family of five files, each message above the limit.
void RollOver(benchmark::State& AState) {
    const Ref<TQzRollingFileAppender> File(TQzRollingFileAppender::Create(nullptr, u""));
    std::filesystem::create_directories(PathOf("roll"));
    File->SetFileName(PathOf("roll/app.log"));
    File->SetLayout(QzSimpleLayout);
    File->Initialize();
    for (auto _ : AState)
        File->RollOver();
    File->SetMaxBackupCount(0);
}
BENCHMARK(RollOver);

} // namespace

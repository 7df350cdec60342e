// The delivery of a message beside log4cplus and spdlog: one that no appender takes, one to appenders that do
// nothing, and the line of text that the layouts make of one.
#include <benchmark/benchmark.h>

#include <log4cplus/initializer.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>
#include <log4cplus/nullappender.h>
#include <log4cplus/spi/loggingevent.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>

namespace {

using namespace qz;

class TNoAppender : public TQzBaseAppender {
    QZ_CLASS(TNoAppender, TQzBaseAppender)

public:
    void Write(const UnicodeString&, const UnicodeString&, TQzLogLevel, const UnicodeString&, PQzDataRec,
               TQzLogIndent) override {}

protected:
    using TQzBaseAppender::TQzBaseAppender;
};

const TClassRec TNoAppender::ClassRec = DescribeLogBase<TNoAppender>(u"TNoAppender", {.Unit = u"Bench"});

const char* Path(std::int64_t ADepth) {
    return ADepth == 1 ? "a" : "a.b.c.d";
}

// The root has an appender, but its level is higher.
Ref<IQzLogger> LoggerThatNobodyReads(std::int64_t ADepth) {
    static const Ref<IQzLogAppender> Appender = Logger().AddAppender(TQzLogBaseClass::Of<TNoAppender>());
    Logger().SetLevel(llError);
    return Logger().GetLogger(Path(ADepth));
}

void NobodyTakes(benchmark::State& AState) {
    const Ref<IQzLogger> Log = LoggerThatNobodyReads(AState.range(0));
    for (auto _ : AState)
        Log->Info(u"connected to the server");
}

void NobodyTakesNarrow(benchmark::State& AState) {
    const Ref<IQzLogger> Log = LoggerThatNobodyReads(4);
    const char* Text = "connected to the server";
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Text);
        Log->Info(Text);
    }
}

void NobodyTakesPattern(benchmark::State& AState) {
    const Ref<IQzLogger> Log = LoggerThatNobodyReads(4);
    int Port = 80;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Port);
        Log->Debug(u"%s:%d answers in %f ms", {u"host", Port, 1.5});
    }
}

log4cplus::Logger Peer(std::int64_t ADepth) {
    static log4cplus::Initializer Started;
    return log4cplus::Logger::getInstance(LOG4CPLUS_C_STR_TO_TSTRING(Path(ADepth)));
}

void NobodyTakesLog4cplus(benchmark::State& AState) {
    log4cplus::Logger Log = Peer(AState.range(0));
    log4cplus::Logger::getRoot().setLogLevel(log4cplus::ERROR_LOG_LEVEL);
    for (auto _ : AState)
        LOG4CPLUS_INFO(Log, LOG4CPLUS_TEXT("connected to the server"));
}

void NobodyTakesSpdlog(benchmark::State& AState) {
    spdlog::logger Log("a", std::make_shared<spdlog::sinks::null_sink_mt>());
    Log.set_level(spdlog::level::err);
    for (auto _ : AState)
        Log.info("connected to the server");
}

void NobodyTakesPatternSpdlog(benchmark::State& AState) {
    spdlog::logger Log("a", std::make_shared<spdlog::sinks::null_sink_mt>());
    Log.set_level(spdlog::level::err);
    int Port = 80;
    for (auto _ : AState) {
        benchmark::DoNotOptimize(Port);
        Log.debug("{}:{} answers in {} ms", "host", Port, 1.5);
    }
}

BENCHMARK(NobodyTakesNarrow);
BENCHMARK(NobodyTakesPattern);
BENCHMARK(NobodyTakesPatternSpdlog);
BENCHMARK(NobodyTakes)->Arg(1)->Arg(4)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK(NobodyTakesLog4cplus)->Arg(1)->Arg(4)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK(NobodyTakesSpdlog)->Arg(1)->Threads(1)->Threads(4)->UseRealTime();

// To so many appenders of the logger, which do nothing.
void Dispatch(benchmark::State& AState) {
    const Ref<IQzLogger> Log = Logger().GetLogger("dispatch");
    Log->SetAdditive(false);
    Log->SetLevel(llAll);
    for (std::int64_t I = 0; I < AState.range(0); ++I)
        Log->AddAppender(TQzLogBaseClass::Of<TNoAppender>());
    const UnicodeString Text = u"connected to the server";
    for (auto _ : AState)
        Log->Info(Text);
}

void DispatchLog4cplus(benchmark::State& AState) {
    Peer(1);
    log4cplus::Logger Log = log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("dispatch"));
    Log.setAdditivity(false);
    Log.setLogLevel(log4cplus::ALL_LOG_LEVEL);
    Log.removeAllAppenders();
    for (std::int64_t I = 0; I < AState.range(0); ++I)
        Log.addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
    const log4cplus::tstring Text = LOG4CPLUS_TEXT("connected to the server");
    for (auto _ : AState)
        Log.log(log4cplus::INFO_LOG_LEVEL, Text);
}

void DispatchSpdlog(benchmark::State& AState) {
    std::vector<spdlog::sink_ptr> Sinks;
    for (std::int64_t I = 0; I < AState.range(0); ++I)
        Sinks.push_back(std::make_shared<spdlog::sinks::null_sink_mt>());
    spdlog::logger Log("dispatch", Sinks.begin(), Sinks.end());
    const std::string Text = "connected to the server";
    for (auto _ : AState)
        Log.info(Text);
}

BENCHMARK(Dispatch)->Arg(1)->Arg(4);
BENCHMARK(DispatchLog4cplus)->Arg(1)->Arg(4);
BENCHMARK(DispatchSpdlog)->Arg(1)->Arg(4);

// Finds one of so many children of the root.
void GetLogger(benchmark::State& AState) {
    std::vector<Ref<IQzLogger>> Siblings;
    for (std::int64_t I = 0; I < AState.range(0); ++I)
        Siblings.push_back(Logger().GetLogger("sibling" + std::to_string(I)));
    for (auto _ : AState)
        benchmark::DoNotOptimize(Logger().GetLogger("sibling0").Get());
}

BENCHMARK(GetLogger)->Arg(1)->Arg(10000);

void FormatLine(benchmark::State& AState) {
    const auto Layout = AsInterface<IQzLogLayout>(TQzSimpleLayout::Create(nullptr, u""));
    const UnicodeString Name = u"root.app.db";
    const UnicodeString Text = u"connected to the server";
    for (auto _ : AState) {
        UnicodeString Line = Layout->FormatLine(Name, llInfo, Text, nullptr, liIndentNone);
        benchmark::DoNotOptimize(Line.data());
    }
}

void FormatLineLog4cplus(benchmark::State& AState) {
    Peer(1);
    log4cplus::PatternLayout Layout(LOG4CPLUS_TEXT("%D{%Y-%m-%d %H:%M:%S:%q} - %p %c - %m"));
    for (auto _ : AState) {
        const log4cplus::spi::InternalLoggingEvent Event(
            LOG4CPLUS_TEXT("root.app.db"), log4cplus::INFO_LOG_LEVEL,
            LOG4CPLUS_TEXT("connected to the server"), __FILE__, __LINE__);
        log4cplus::tostringstream Line;
        Layout.formatAndAppend(Line, Event);
        benchmark::DoNotOptimize(Line);
    }
}

void FormatLineSpdlog(benchmark::State& AState) {
    spdlog::pattern_formatter Formatter("%Y-%m-%d %H:%M:%S:%e - %l %n - %v", spdlog::pattern_time_type::local,
                                        "");
    for (auto _ : AState) {
        const spdlog::details::log_msg Message("root.app.db", spdlog::level::info, "connected to the server");
        spdlog::memory_buf_t Line;
        Formatter.format(Message, Line);
        benchmark::DoNotOptimize(Line.data());
    }
}

BENCHMARK(FormatLine);
BENCHMARK(FormatLineLog4cplus);
BENCHMARK(FormatLineSpdlog);

} // namespace

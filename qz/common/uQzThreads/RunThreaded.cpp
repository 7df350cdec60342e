#include <qz/common/uQzThreads/RunThreaded.h>

#include <array>

#include <qz/platform/Threads.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/threads/Thread.h>

namespace qz {
namespace {

constexpr std::size_t cMaxThreadName = 255;

struct TThreadName {
    std::array<char, cMaxThreadName> Text;
    std::size_t Length = 0;
};
thread_local TThreadName GThreadName;

// Sets the event when the last holder releases the work, whether it ran, failed or was dropped.
class TEventSetter {
public:
    explicit TEventSetter(Ref<IQzSimpleEvent> AEvent) noexcept : FEvent(std::move(AEvent)) {}
    TEventSetter(TEventSetter&& AOther) noexcept = default;
    ~TEventSetter() {
        if (FEvent)
            FEvent->SetEvent();
    }
    IQzSimpleEvent* Event() const noexcept { return FEvent.Get(); }

private:
    Ref<IQzSimpleEvent> FEvent;
};

class TRunThreadXE2 : public TThread {
    QZ_CLASS(TRunThreadXE2, TThread)

protected:
    TRunThreadXE2(TQzProc AProc, Ref<IQzSimpleEvent> AEvent)
        : FEvent(std::move(AEvent)),
          FProc(std::move(AProc)) {
        SetFreeOnTerminate(true);
    }
    void Execute() override {
        const TEventSetter Setter(FEvent);
        try {
            FProc();
        } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): only the event reports the end
        }
    }

private:
    Ref<IQzSimpleEvent> FEvent;
    TQzProc FProc;
};

class TRunThread : public TThread {
    QZ_CLASS(TRunThread, TThread)

protected:
    TRunThread(TQzEventProc AProc, Ref<IQzSimpleEvent> AEvent)
        : FEvent(std::move(AEvent)),
          FProc(std::move(AProc)) {
        SetFreeOnTerminate(true);
    }
    void Execute() override {
        const TEventSetter Setter(FEvent);
        FProc(FEvent);
    }

private:
    Ref<IQzSimpleEvent> FEvent;
    TQzEventProc FProc;
};

constinit const TClassRec TRunThreadXE2::ClassRec =
    DescribeClass<TRunThreadXE2>(u"TRunThreadXE2", {.Unit = u"uQzThreads", .IsPublic = false});
constinit const TClassRec TRunThread::ClassRec =
    DescribeClass<TRunThread>(u"TRunThread", {.Unit = u"uQzThreads", .IsPublic = false});

// Runs AProc and hands a failure to AOnError, or on to the caller without one.
void RunWithHandler(const TQzProc& AProc, const TQzErrorEvent& AOnError) {
    if (!AOnError) {
        AProc();
        return;
    }
    try {
        AProc();
    } catch (...) {
        HandleException(AOnError);
    }
}

void RunInMainThreadAndWait(const TQzProc& AProc, const TQzErrorEvent& AOnError) {
    TThread::Synchronize(nullptr, [&] { RunWithHandler(AProc, AOnError); });
}

} // namespace

void QzSetThreadName(const TStringArg& AName) {
    const std::string Name = Utf16ToUtf8(AName.View().substr(0, cMaxThreadName));
    std::size_t Length = std::min(Name.size(), cMaxThreadName);
    while (Length < Name.size() && (static_cast<unsigned char>(Name[Length]) & 0xC0) == 0x80)
        --Length;
    std::copy_n(Name.data(), Length, GThreadName.Text.data());
    GThreadName.Length = Length;
    platform::SetCurrentThreadName({GThreadName.Text.data(), Length});
}

UnicodeString QzGetThreadName() {
    return std::string_view(GThreadName.Text.data(), GThreadName.Length);
}

void QzRunThreaded(TQzProc AProc, Ref<IQzSimpleEvent> AEvent) {
    TRunThreadXE2::Create(std::move(AProc), std::move(AEvent));
}

Ref<IQzSimpleEvent> QzRunThreaded(TQzEventProc AProc) {
    Ref<IQzSimpleEvent> Event = TQzSimpleEvent::Create();
    TRunThread::Create(std::move(AProc), Event);
    return Event;
}

void QzRunInMainThread(TQzProc AProc, bool AWaitForCompletion, TQzErrorEvent AOnError) {
    if (TThread::IsMainThread()) {
        RunWithHandler(AProc, AOnError);
    } else if (AWaitForCompletion) {
        RunInMainThreadAndWait(AProc, AOnError);
    } else {
        Assert(static_cast<bool>(AOnError),
               u"An Error handler is required when AWaitForCompletion is set to false!");
        TThread::Queue(nullptr, [Proc = std::move(AProc), OnError = std::move(AOnError)] {
            RunWithHandler(Proc, OnError);
        });
    }
}

Ref<IQzSimpleEvent> QzQueue(TQzEventProc AProc) {
    Ref<IQzSimpleEvent> Event = TQzSimpleEvent::Create();
    TThread::Queue(nullptr, [Proc = std::move(AProc), Setter = std::make_shared<TEventSetter>(Event)] {
        Proc(Setter->Event());
    });
    return Event;
}

} // namespace qz

// TQzBaseAppender: the base of all appenders. It has a layout and a lock, and opens what it writes to at the
// first message.
//
//     class TMemoryAppender : public TQzBaseAppender {
//         QZ_CLASS(TMemoryAppender, TQzBaseAppender)
//     public:
//         void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
//                    const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override {
//             const TScopedLock Hold(*this);
//             Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
//             Lines.Add(FormatLine(ALogger, ALevel, AMessage, AValue, AIndent));
//         }
//     };
//
// An appender that is made for a logger with a configurator asks it for its values at the end of Create. A
// closed appender opens again at the next message. Descendants hold the lock during each operation.
#pragma once

#include <vector>

#include <qz/common/uQzLogger/LogBase.h>

namespace qz {

class QZ_API TQzBaseAppender : public TQzLogBaseWith<TQzLogBase, IQzLogAppenderEx> {
    QZ_CLASS(TQzBaseAppender, TQzLogBase)

public:
    // Marks the appender as open; Close marks it as closed. A descendant opens and closes its resource in its
    // overrides.
    virtual void Initialize();
    // Asks for "Layout", if AConfigurator is not null, and sets a new layout of the class of that name.
    virtual void SetConfig(IQzLogConfigurator* AConfigurator);
    // Opens a closed appender. A descendant calls it before it writes.
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;
    // An exception at the end of the appender is reported as a dropped message (LogDrops.h).
    void Close() override;
    // The other two make a layout and call the first. If the layout cannot be made, the old one stays.
    void SetLayout(IQzLogLayout* ALayout) override;
    void SetLayout(TQzLogBaseClass AClass) override;
    void SetLayout(const UnicodeString& AClassName) override;
    Ref<IQzLogLayout> GetLayout();

    // The lock of the appender, which re-enters. Messages of a thread that holds it are delivered after
    // Unlock, 1000 at most.
    void Lock() noexcept;
    void Unlock() noexcept;
    void Enter() noexcept { Lock(); }
    void Leave() noexcept { Unlock(); }

    void AfterConstruction() override;
    // Leaves all lists, then closes the appender, unless another reference exists.
    void BeforeDestruction() override;

protected:
    using TQzLogBaseWith::TQzLogBaseWith;
    ~TQzBaseAppender() override = default;

    TCriticalSection* AppenderLock() noexcept override { return &FLock; }
    // The layout, which may be null, and whether the appender is open; under the lock.
    IQzLogLayout* Layout() const noexcept { return FLayout.Get(); }
    // Whether there is no layout, so that a message cannot be written; calls the drop hook the first time.
    bool LacksLayout() noexcept;
    bool IsInitialized() const noexcept { return FInitialized; }
    // The texts of the layout, which is not null; under the lock. The layout may close the appender or set
    // another layout during the call.
    UnicodeString Header();
    UnicodeString Footer();
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent);
    // For a resource with operations that call nothing outside this library.
    TCriticalSection& OwnLock() noexcept { return FLock; }
    // Whether a call of Initialize is under way.
    bool IsInitializing() const noexcept { return FInitializing != 0; }
    // Counts a call as under way for the length of a block.
    class [[nodiscard]] TInitializing {
    public:
        explicit TInitializing(TQzBaseAppender& AAppender) noexcept : FDepth(AAppender.FInitializing) {
            ++FDepth;
        }
        TInitializing(const TInitializing&) = delete;
        TInitializing& operator=(const TInitializing&) = delete;
        ~TInitializing() { --FDepth; }

    private:
        std::int32_t& FDepth;
    };

private:
    class TFormatting;

    Ref<IQzLogLayout> FLayout;
    std::vector<Ref<IQzLogLayout>> FFormerLayouts; // replaced during a call of theirs
    int FFormatting = 0;
    bool FInitialized = false;
    bool FHasReportedLayout = false;
    std::int32_t FInitializing = 0;
    TCriticalSection FLock;
};

} // namespace qz

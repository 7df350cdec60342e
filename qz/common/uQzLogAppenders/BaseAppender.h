// TQzBaseAppender: the frame of all appenders. It has a layout and a lock, and opens what it writes to at the first message.
//
//     class TMemoryAppender : public TQzBaseAppender {
//         QZ_CLASS(TMemoryAppender, TQzBaseAppender)
//     public:
//         void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
//                    const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override {
//             const TScopedLock Hold(*this);
//             Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
//             Lines.Add(Layout()->FormatLine(ALogger, ALevel, AMessage, AValue, AIndent));
//         }
//     ...
//
// Made for a logger that has a configurator, an appender asks it for its values when it is complete. A closed appender
// opens again at the next message. Descendants hold the lock over each operation.
#pragma once

#include <vector>

#include <qz/common/uQzLogger/LogBase.h>

namespace qz {

class QZ_API TQzBaseAppender : public TQzLogBaseWith<TQzLogBase, IQzLogAppenderEx> {
    QZ_CLASS(TQzBaseAppender, TQzLogBase)

public:
    // Makes the appender open and closed. A descendant opens and closes its resource around these.
    virtual void Initialize();
    // Asks for "Layout", where AConfigurator is not null, and takes a layout of the class of that name.
    virtual void SetConfig(IQzLogConfigurator* AConfigurator);
    // Opens a closed appender. A descendant calls it before it writes.
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override;
    // What it raises when the appender ends is told as a dropped message (LogDrops.h).
    void Close() override;
    // The first of the three is what the others come to. A layout that cannot be made leaves the old one.
    void SetLayout(IQzLogLayout* ALayout) override;
    void SetLayout(TQzLogBaseClass AClass) override;
    void SetLayout(const UnicodeString& AClassName) override;
    Ref<IQzLogLayout> GetLayout();

    // The lock of the appender, which re-enters. Messages of a thread that holds it are delivered after Unlock.
    void Lock() noexcept;
    void Unlock() noexcept;
    void Enter() noexcept { Lock(); }
    void Leave() noexcept { Unlock(); }

    void AfterConstruction() override;
    // Leaves all lists, and closes the appender when nobody holds it any more.
    void BeforeDestruction() override;

protected:
    using TQzLogBaseWith::TQzLogBaseWith;
    ~TQzBaseAppender() override = default;

    TCriticalSection* AppenderLock() noexcept override { return &FLock; }
    // The layout, which may be null, and whether the appender is open; under the lock.
    IQzLogLayout* Layout() const noexcept { return FLayout.Get(); }
    bool IsInitialized() const noexcept { return FInitialized; }
    // The line that the layout, which is not null, makes of a message, and what it wants in front and behind; under the lock.
    // The layout may do as it likes with the appender meanwhile: it may be closed, or have another layout, when these return.
    UnicodeString Header();
    UnicodeString Footer();
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent);
    // For a resource with operations that call nothing outside this library.
    TCriticalSection& OwnLock() noexcept { return FLock; }
    // Whether a call of Initialize is under way.
    bool IsInitializing() const noexcept { return FInitializing != 0; }
    // Tells that one is, as long as it lives.
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
    std::vector<Ref<IQzLogLayout>> FFormerLayouts; // one of which may be formatting
    int FFormatting = 0;
    bool FInitialized = false;
    std::int32_t FInitializing = 0;
    TCriticalSection FLock;
};

} // namespace qz

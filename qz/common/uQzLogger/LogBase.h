// TQzLogBase, which appenders and layouts derive from, and the registries by which they are found by name.
//
//     class TMyAppender : public TQzBaseAppender {
//         QZ_CLASS(TMyAppender, TQzBaseAppender)
//     protected:
//         using TQzBaseAppender::TQzBaseAppender;
//     };
//     const TClassRec TMyAppender::ClassRec =
//         DescribeLogBase<TMyAppender>(u"TMyAppender", {.Unit = u"Demo"});
//     RegisteredAppenders().Add(TQzLogBaseClass::Of<TMyAppender>());
//
// Appenders and layouts are counted, on any number of threads. One in the lists of loggers may also be
// destroyed by Free while other threads log: it leaves all lists first. If another reference exists, Free
// raises, and the appender is in no list any more. A thread that is writing to an appender, or holds the lock
// of an appender or of a list, keeps a reference to what it removes until it is done.
#pragma once

#include <vector>

#include <qz/common/uQzClasses/QzComponent.h>
#include <qz/common/uQzLogger/LogInterfaces.h>
#include <qz/runtime/base/AccessKey.h>
#include <qz/runtime/lists/List.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/threads/CriticalSection.h>

namespace qz {

namespace detail {
class TAppenderSet;
class TLogFork;
} // namespace detail

// The names of the classes of this library, and of two that only other modules can register.
inline constexpr TTextConstant QzFileAppender = u"TQzFileAppender";
inline constexpr TTextConstant QzRollingFileAppender = u"TQzRollingFileAppender";
inline constexpr TTextConstant QzDailyRollingFileAppender = u"TQzDailyRollingFileAppender";
inline constexpr TTextConstant QzEventLogAppender = u"TQzEventLogAppender";
inline constexpr TTextConstant QzLogViewerAppenderServer = u"TQzLogViewerAppenderServer";
inline constexpr TTextConstant QzLogViewerAppenderClient = u"TQzLogViewerAppenderClient";
inline constexpr TTextConstant QzSimpleLayout = u"TQzSimpleLayout";
inline constexpr TTextConstant QzXmlLayout = u"TQzXmlLayout";

class QZ_API TQzLogBase : public TQzComponent, public IQzLogBase {
    QZ_CLASS(TQzLogBase, TQzComponent)

public:
    using TVirtualCreate =
        TVirtualConstructor<TQzLogBase, TQzLogBase*(TQzLogger* ALogger, const UnicodeString& AName)>;

    // The name of the component. Any thread, also while another one calls SetName; Name() is for the thread
    // that does.
    UnicodeString GetName() const override;
    void SetName(const UnicodeString& AName) override;
    // The name given at creation, which SetName does not change. A configurator is asked by it, and
    // AppenderInstances finds it. Without such a name it is that of the component. Any thread.
    UnicodeString ConfiguredName() const;
    TComponent* Component() override { return this; }
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override {
        return Inherited::QueryInterface(AIid, AObject);
    }
    std::uint32_t _AddRef() override { return Inherited::_AddRef(); }
    std::uint32_t _Release() override { return Inherited::_Release(); }

    // Leaves the lists of all loggers, then continues as for any component.
    void BeforeDestruction() override;

    // Unique in this process.
    std::uint64_t Serial() const noexcept { return FSerial; }
    static std::uint64_t NextSerial() noexcept;

    // The lists that hold it; the caller holds the state lock.
    void JoinedSet(detail::TAppenderSet& ASet, TAccessKey<detail::TAppenderSet>) { FSets.push_back(&ASet); }
    void LeftSet(detail::TAppenderSet& ASet, TAccessKey<detail::TAppenderSet>) noexcept;
    // Drops the reference of a list. True if the caller has to call Free, with no lock held.
    bool ReleaseFromSet(TAccessKey<detail::TAppenderSet>);
    // In the child of a fork, for an appender whose lock stays held. The caller holds the state lock.
    void BecomeLost(TAccessKey<detail::TLogFork>);
    // The lock of an appender that may be in use; otherwise null. The caller holds the state lock.
    TCriticalSection* LockForFork(TAccessKey<detail::TLogFork>) noexcept {
        return FIsComplete || !FSets.empty() ? AppenderLock() : nullptr;
    }

protected:
    // ALogger is the logger that it is made for, which may end earlier. An empty name and one that begins
    // with a digit are not set; any other that is no identifier raises EComponentError.
    TQzLogBase(TQzLogger* ALogger, const UnicodeString& AName);
    ~TQzLogBase() override;
    // AppenderInstances finds the object from here on.
    void FinishCreate() override;
    void DestructionRefused() noexcept override;

    // The lock of an appender, which re-enters; null for what is no appender. AppenderInstances lists those
    // that have one.
    virtual TCriticalSection* AppenderLock() noexcept { return nullptr; }
    // The logger that it was made for; null after that has ended.
    Ref<TQzLogger> LoggerOfOrigin() const;

private:
    friend class TQzAppenderInstances;
    const UnicodeString& NameToFind() const noexcept {
        return FConfiguredName.IsEmpty() ? Name() : FConfiguredName;
    }
    void LeaveLists();
    void SetComplete(bool AValue) noexcept;

    const std::uint64_t FSerial = NextSerial();
    const UnicodeString FConfiguredName;
    // These, and the name of the component, are guarded by the state lock.
    TQzLogger* FLogger;
    bool FIsComplete = false;
    std::vector<detail::TAppenderSet*> FSets;
};

// Mixes interfaces into a base that implements the operations of IQzLogBase.
//
//     class TMyLayout : public TQzLogBaseWith<TQzLogBase, IQzLogLayout> {
//         QZ_CLASS(TMyLayout, TQzLogBase)
template <class TBase, class... I> class TQzLogBaseWith : public TBase, public I... {
public:
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override {
        return TBase::QueryInterface(AIid, AObject);
    }
    std::uint32_t _AddRef() override { return TBase::_AddRef(); }
    std::uint32_t _Release() override { return TBase::_Release(); }
    UnicodeString GetName() const override { return TBase::GetName(); }
    TComponent* Component() override { return TBase::Component(); }

protected:
    using TBase::TBase;
    ~TQzLogBaseWith() override = default;
};

// Classes of appenders or of layouts, which are found by name. Any thread.
class QZ_API TQzLogBaseClassList : public TObject {
    QZ_CLASS(TQzLogBaseClassList, TObject)

public:
    // Also calls RegisterClass. Null raises EAssertionFailed. A class is added once.
    void Add(TQzLogBaseClass AClass);
    // In any case of letters. Raises EListError, "Class %s not found!".
    TQzLogBaseClass GetClass(const TStringArg& AName) const;

private:
    TList<TClass> FList; // guarded by the state lock
};

// Both live to the end of the program.
QZ_API TQzLogBaseClassList& RegisteredLayouts();
QZ_API TQzLogBaseClassList& RegisteredAppenders();

// All living appenders with a reference, in the order of their creation.
class QZ_API TQzAppenderInstances {
public:
    TQzAppenderInstances() = default;
    TQzAppenderInstances(const TQzAppenderInstances&) = delete;
    TQzAppenderInstances& operator=(const TQzAppenderInstances&) = delete;

    // Any thread; other threads may change the answers at once.
    int Count() const;
    // The first one of that name, case-sensitive, or else the first one with that TQzLogBase::ConfiguredName;
    // null if there is none.
    Ref<IQzLogAppender> Find(std::u16string_view AName) const;
    std::vector<Ref<IQzLogAppender>> Items() const;

    // Tells those that were made for the logger that it ends.
    void LoseLogger(const TQzLogger* ALogger, TAccessKey<TQzLogger>) noexcept;
    // Appenders and layouts, also incomplete ones. The caller holds the state lock.
    const TList<TQzLogBase*>& All(TAccessKey<detail::TLogFork>) const noexcept { return FList; }

private:
    friend class TQzLogBase;
    TList<TQzLogBase*> FList; // guarded by the state lock
};

QZ_API TQzAppenderInstances& AppenderInstances();

// Makes an object by the virtual constructor of its class. Raises EInvalidOperation, "Class %s cannot be
// made", for null and for a class without one.
QZ_API Ref<IQzLogBase> MakeLogBase(TQzLogBaseClass AClass, TQzLogger* ALogger, const UnicodeString& AName);

namespace detail {

template <class T> TQzLogBase* MakeLogBaseOf(TQzLogger* ALogger, const UnicodeString& AName) {
    return T::Create(ALogger, AName);
}
template <class T>
inline constexpr TMakerEntry cLogBaseMaker[] = {Maker<TQzLogBase::TVirtualCreate, &MakeLogBaseOf<T>>()};

} // namespace detail

// The class record of an appender or layout, by which the registries can make it.
template <std::derived_from<TQzLogBase> T>
consteval TClassRec DescribeLogBase(std::u16string_view AName, TClassDescription AMore) {
    if (AMore.Makers.empty())
        AMore.Makers = detail::cLogBaseMaker<T>;
    return DescribeClass<T>(AName, AMore);
}

} // namespace qz

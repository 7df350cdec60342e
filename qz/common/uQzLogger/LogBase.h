// TQzLogBase, which appenders and layouts derive from, and the registries by which they are found by name.
//
//     class TMyAppender : public TQzBaseAppender {
//         QZ_CLASS(TMyAppender, TQzBaseAppender)
//     protected:
//         using TQzBaseAppender::TQzBaseAppender;
//         void Write(...) override;
//     };
//     const TClassRec TMyAppender::ClassRec = DescribeLogBase<TMyAppender>(u"TMyAppender", {.Unit = u"Demo"});
//     RegisteredAppenders().Add(TQzLogBaseClass::Of<TMyAppender>());
//
// Appenders and layouts are counted, by any number of threads. One in the lists of loggers may also be ended by Free while
// other threads log: it leaves all lists first. If somebody else holds it, Free raises, and it is in no list any more. A thread
// that holds the lock of a list, or writes, counts as somebody else: what it frees then ends when it lets go of that lock.
#pragma once

#include <mutex>
#include <set>

#include <qz/common/uQzClasses/QzComponent.h>
#include <qz/common/uQzLogger/LogAppenderCore.h>
#include <qz/runtime/lists/List.h>
#include <qz/runtime/objects/Describe.h>

// In a class of an appender or layout with interfaces of its own: its part of those is the base's.
#define QZ_LOG_BASE(ABase)                   \
public:                                      \
    QZ_INTERFACE_COUNTING(ABase)             \
public:                                      \
    UnicodeString GetName() const override { \
        return ABase::GetName();             \
    }                                        \
    qz::TComponent* Component() override {   \
        return ABase::Component();           \
    }                                        \
                                             \
private:

namespace qz {

namespace detail {
struct TForkLocks;
}

// The names of the classes of this library, and of two that only other modules can bring.
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

    // The name of the component. Any thread, also while another one calls SetName; Name() is for the thread that does.
    UnicodeString GetName() const override;
    void SetName(const UnicodeString& AName) override;
    // The name that it was made under, which stays when the component gets another one: by it a configurator is asked, and
    // AppenderInstances finds it. For one that was made without, the name of the component. Any thread.
    UnicodeString ConfiguredName() const;
    TComponent* Component() override { return this; }
    HRESULT QueryInterface(const TGUID& AIid, void** AObject) override {
        return Inherited::QueryInterface(AIid, AObject);
    }
    std::uint32_t _AddRef() override { return Inherited::_AddRef(); }
    std::uint32_t _Release() override { return Inherited::_Release(); }

    // Called by Create when the object is complete: from then on AppenderInstances knows it.
    void FinishCreate();
    // Leaves the lists of all loggers, then does as any component.
    void BeforeDestruction() override;
    void DestructionRefused() noexcept override;

    // A number that no other one has in this process.
    std::uint64_t Serial() const noexcept { return FSerial; }
    static std::uint64_t NextSerial() noexcept;

protected:
    // ALogger is the one it is made for, and need not live longer. A name that begins with a digit is not taken, an empty
    // one neither; any other that is no identifier raises EComponentError.
    TQzLogBase(TQzLogger* ALogger, const UnicodeString& AName);
    ~TQzLogBase() override;

    // Whether it stands in AppenderInstances.
    virtual bool IsAppender() const noexcept { return false; }
    // The logger it was made for, while that lives; else null.
    Ref<TQzLogger> LoggerOfOrigin() const;

private:
    friend class TQzAppenderInstances;
    friend struct detail::TForkLocks;
    friend void LinkAppender(TComponent* AComponent, TQzLogAppenderList& AList);
    const UnicodeString& NameToFind() const noexcept {
        return FConfiguredName.IsEmpty() ? Name() : FConfiguredName;
    }
    void LeaveLists();
    void SetComplete(bool AValue) noexcept;

    const std::uint64_t FSerial = NextSerial();
    const UnicodeString FConfiguredName;
    // All of these are guarded by the lock of the instances, and so is the name of the component.
    TQzLogger* FLogger;
    bool FIsComplete = false;
    std::set<std::weak_ptr<detail::TLogAppenderCore>, std::owner_less<>> FLists; // that may hold it
    std::size_t FSweepAt = 16; // the size at which the gone are dropped
};

// The classes of a kind, to be found by name.
class QZ_API TQzLogBaseClassList : public TObject {
    QZ_CLASS(TQzLogBaseClassList, TObject)

public:
    // Also registers the class with RegisterClass; null raises EAssertionFailed. One that is there already is not added again.
    void Add(TQzLogBaseClass AClass);
    // In any case of letters. Raises EListError, "Class %s not found!".
    TQzLogBaseClass GetClass(const TStringArg& AName) const;

private:
    friend struct detail::TForkLocks;
    mutable std::mutex FLock;
    TList<TClass> FList;
};

// Both live to the end of the program. Any thread.
QZ_API TQzLogBaseClassList& RegisteredLayouts();
QZ_API TQzLogBaseClassList& RegisteredAppenders();

// All living appenders that somebody holds, in the order of their making.
class QZ_API TQzAppenderInstances {
public:
    TQzAppenderInstances() = default;
    TQzAppenderInstances(const TQzAppenderInstances&) = delete;
    TQzAppenderInstances& operator=(const TQzAppenderInstances&) = delete;

    // Any thread; the answers are of that moment.
    int Count() const;
    // The first that bears that name, case-sensitive, or else was made under it; null when there is none. See
    // TQzLogBase::ConfiguredName.
    Ref<IQzLogAppender> Find(std::u16string_view AName) const;
    std::vector<Ref<IQzLogAppender>> Items() const;

private:
    friend class TQzLogBase;
    friend class TQzLogger;
    friend struct detail::TForkLocks;
    friend void LinkAppender(TComponent* AComponent, TQzLogAppenderList& AList);
    // Tells all that were made for the logger that it ends.
    void LoseLogger(const TQzLogger* ALogger) noexcept;

    mutable TCriticalSection FLock; // nothing is called under it but counting
    TList<TQzLogBase*> FList;       // appenders and layouts, also those that are not complete
};

QZ_API TQzAppenderInstances& AppenderInstances();

// A new object of the class, by its virtual constructor. Raises EInvalidOperation, "Class %s cannot be made", for a null
// class or one without.
QZ_API Ref<IQzLogBase> MakeLogBase(TQzLogBaseClass AClass, TQzLogger* ALogger, const UnicodeString& AName);

// Has the component leave the list when it ends.
void LinkAppender(TComponent* AComponent, TQzLogAppenderList& AList);

namespace detail {

template <class T> TQzLogBase* MakeLogBaseOf(TQzLogger* ALogger, const UnicodeString& AName) {
    return T::Create(ALogger, AName);
}
template <class T>
inline constexpr TMakerEntry cLogBaseMaker[] = {Maker<TQzLogBase::TVirtualCreate, &MakeLogBaseOf<T>>()};

} // namespace detail

// The record of the class of an appender or layout, which can then be made by name.
template <std::derived_from<TQzLogBase> T>
constexpr TClassRec DescribeLogBase(std::u16string_view AName, TClassDescription AMore) noexcept {
    if (AMore.Makers.empty())
        AMore.Makers = detail::cLogBaseMaker<T>;
    return DescribeClass<T>(AName, AMore);
}

} // namespace qz

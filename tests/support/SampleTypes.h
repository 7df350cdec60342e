// Described types that several tests hold, convert and pass on.
#pragma once

#include "tests/support/Trace.h"
#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {

enum class TDay : std::uint8_t { dyMon, dyTue, dySun = 6 };
using TDays = TSet<TDay, 8>;
using TManyDays = TSet<TDay, 64>;

class INamed : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C11}");
    virtual UnicodeString Name() = 0;
};
class IOther : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C12}");
};

// A counted object that notes its end.
class TNamed : public TInterfacedObject, public INamed {
    QZ_CLASS(TNamed, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
public:
    UnicodeString Name() override { return FName; }

protected:
    explicit TNamed(const UnicodeString& AName = u"a") : FName(AName) {}
    ~TNamed() override { Note("freed", FName); }

private:
    UnicodeString FName;
};
inline constinit const TClassRec TNamed::ClassRec =
    DescribeClass<TNamed>(u"TNamed", {.Unit = u"Test", .Interfaces = Interfaces<TNamed, INamed>()});

class TBoth : public TNamed, public IOther {
    QZ_CLASS(TBoth, TNamed)
    QZ_INTERFACE_COUNTING(TNamed)
protected:
    using TNamed::TNamed;
};
inline constinit const TClassRec TBoth::ClassRec =
    DescribeClass<TBoth>(u"TBoth", {.Unit = u"Test", .Interfaces = Interfaces<TBoth, IOther>()});

// An object that notes its end, and refuses it once on demand.
class TTraced : public TObject {
    QZ_CLASS(TTraced, TObject)
public:
    explicit TTraced(const UnicodeString& AName = u"a", bool ARefuses = false)
        : FRefuses(ARefuses),
          FName(AName) {}
    ~TTraced() override { Note("freed", FName); }
    void BeforeDestruction() override {
        if (std::exchange(FRefuses, false))
            throw EInvalidOperation(u"not now");
    }
    bool FRefuses;

private:
    UnicodeString FName;
};
inline constinit const TClassRec TTraced::ClassRec = DescribeClass<TTraced>(u"TTraced", {.Unit = u"Test"});

} // namespace qz

QZ_TYPE_INFO(qz::TDay);
QZ_TYPE_INFO(qz::TDays);
QZ_TYPE_INFO(qz::TManyDays);
QZ_TYPE_INFO(qz::INamed);
QZ_TYPE_INFO(qz::IOther);

namespace qz {

template <class T> using TInfo = TTypeDescription<T>;
inline constexpr TEnumItem cDays[] = {{u"dyMon", 0}, {u"dyTue", 1}, {u"dySun", 6}};
inline constinit const TTypeInfo TInfo<TDay>::Info = DescribeEnum<TDay>(u"TDay", u"Test", cDays);
inline constinit const TTypeInfo TInfo<TDays>::Info = DescribeOf<TDays, TDay>(tkSet, u"TDays", u"Test");
inline constinit const TTypeInfo TInfo<TManyDays>::Info =
    DescribeOf<TManyDays, TDay>(tkSet, u"TManyDays", u"Test");
inline constinit const TTypeInfo TInfo<INamed>::Info = DescribeInterface<INamed>(u"INamed", u"Test");
inline constinit const TTypeInfo TInfo<IOther>::Info = DescribeInterface<IOther>(u"IOther", u"Test");

} // namespace qz

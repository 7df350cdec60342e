#include <gtest/gtest.h>

#include <thread>

#include "tests/support/Message.h"
#include "tests/support/Trace.h"
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/objects/Persistent.h>

namespace qz {
namespace {

class INamed : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C11}");
    virtual UnicodeString Name() = 0;
};
class IOther : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C12}");
};
class IMissing : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C13}");
};

class TNamed : public TInterfacedObject, public INamed {
    QZ_CLASS(TNamed, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
public:
    UnicodeString Name() override { return FName; }

protected:
    explicit TNamed(const UnicodeString& AName) : FName(AName) {}
    ~TNamed() override { Note("freed", FName); }

private:
    UnicodeString FName;
};
constinit const TClassRec TNamed::ClassRec =
    DescribeClass<TNamed>(u"TNamed", {.Unit = u"Test", .Interfaces = Interfaces<TNamed, INamed>()});

class TBoth : public TNamed, public IOther {
    QZ_CLASS(TBoth, TNamed)
    QZ_INTERFACE_COUNTING(TNamed)
public:
    enum class TFault { None, InConstructor, AfterConstruction };
    void AfterConstruction() override {
        Inherited::AfterConstruction();
        if (FFault == TFault::AfterConstruction)
            throw EInvalidOperation(u"late");
    }

protected:
    explicit TBoth(const UnicodeString& AName, TFault AFault = TFault::None) : TNamed(AName), FFault(AFault) {
        const Ref<IOther> Self(this); // must not end what is being built
        if (AFault == TFault::InConstructor)
            throw EInvalidOperation(u"early");
    }

private:
    TFault FFault;
};
constinit const TClassRec TBoth::ClassRec =
    DescribeClass<TBoth>(u"TBoth", {.Unit = u"Test", .Interfaces = Interfaces<TBoth, IOther>()});

class Objects : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

TEST_F(Objects, LastReferenceEndsTheObject) {
    TNamed* Object = TNamed::Create(u"a");
    EXPECT_EQ(Object->RefCount(), 0);
    Ref<INamed> First = Object;
    Ref<INamed> Second = First;
    EXPECT_EQ(Object->RefCount(), 2);
    Ref<INamed> Third = std::move(First);
    EXPECT_EQ(Object->RefCount(), 2);
    EXPECT_FALSE(First); // NOLINT(bugprone-use-after-move): a moved reference is null
    Second = Third;
    Third = std::move(Second);
    Third = Third.Get();
    EXPECT_EQ(Object->RefCount(), 1);
    const Ref<IInterface> Wide = std::move(Third);
    EXPECT_EQ(Object->RefCount(), 1);
    EXPECT_EQ(TakeTrace(), "");
    const_cast<Ref<IInterface>&>(Wide).Clear();
    EXPECT_EQ(TakeTrace(), "freed(a) ");
}

TEST_F(Objects, AssignmentTakesBeforeItDrops) {
    Ref<INamed> Holder = TNamed::Create(u"old");
    Holder = Ref<INamed>(TNamed::Create(u"new"));
    EXPECT_EQ(TakeTrace(), "freed(old) ");
    INamed* Plain = Holder.Detach();
    EXPECT_EQ(TakeTrace(), "");
    Ref<INamed>::Attach(Plain).Clear();
    EXPECT_EQ(TakeTrace(), "freed(new) ");
}

TEST_F(Objects, QueryInterfaceKeepsIdentity) {
    const Ref<INamed> Named = TBoth::Create(u"a");
    const Ref<IOther> Other = As<IOther>(Named);
    ASSERT_TRUE(Other);
    EXPECT_EQ(As<INamed>(Other), Named);
    EXPECT_EQ(As<IInterface>(Other), As<IInterface>(Named));
    Ref<IMissing> Missing;
    EXPECT_FALSE(Supports(Named, Missing));
    void* Found = &Missing;
    EXPECT_EQ(Named->QueryInterface(IMissing::IID, &Found), E_NOINTERFACE_RESULT);
    EXPECT_EQ(Found, nullptr);
    EXPECT_FALSE(As<IOther>(static_cast<IInterface*>(nullptr)));
}

TEST_F(Objects, FailedConstructionLeaksNothing) {
    EXPECT_THROW(TBoth::Create(u"a", TBoth::TFault::InConstructor), EInvalidOperation);
    EXPECT_EQ(TakeTrace(), "freed(a) ");
    EXPECT_THROW(TBoth::Create(u"b", TBoth::TFault::AfterConstruction), EInvalidOperation);
    EXPECT_EQ(TakeTrace(), "freed(b) ");
}

TEST_F(Objects, FreeWithReferencesIsRefused) {
    TNamed* Object = TNamed::Create(u"a");
    {
        const Ref<INamed> Holder = Object;
        EXPECT_THROW(Object->Free(), EInvalidPointer);
        EXPECT_EQ(Holder->Name(), "a");
    }
    EXPECT_EQ(TakeTrace(), "freed(a) ");
    TNamed* Unused = TNamed::Create(u"b");
    FreeAndNil(Unused);
    EXPECT_EQ(Unused, nullptr);
    EXPECT_EQ(TakeTrace(), "freed(b) ");
}

TEST_F(Objects, ThreadsCountTogether) {
    TNamed* Object = TNamed::Create(u"shared");
    {
        const Ref<INamed> Holder = Object;
        std::vector<std::thread> Threads;
        for (int T = 0; T < 4; ++T)
            Threads.emplace_back([&Holder] {
                for (int I = 0; I < 2000; ++I) {
                    const Ref<INamed> Mine = Holder;
                    const Ref<IInterface> Again = As<IInterface>(Mine);
                }
            });
        for (std::thread& Each : Threads)
            Each.join();
        EXPECT_EQ(Object->RefCount(), 1);
    }
    EXPECT_EQ(TakeTrace(), "freed(shared) ");
}

class TSource : public TPersistent {
    QZ_CLASS(TSource, TPersistent)
public:
    int FValue = 7;
    TPersistent* FOwner = nullptr;

protected:
    TPersistent* GetOwner() const override { return FOwner; }
};
constinit const TClassRec TSource::ClassRec = DescribeClass<TSource>(u"TSource", {.Unit = u"Test"});

class TTarget : public TPersistent {
    QZ_CLASS(TTarget, TPersistent)
public:
    int FValue = 0;
    void Assign(TPersistent* ASource) override {
        if (const auto* Source = dynamic_cast<TSource*>(ASource))
            FValue = Source->FValue;
        else
            Inherited::Assign(ASource);
    }
};
constinit const TClassRec TTarget::ClassRec = DescribeClass<TTarget>(u"TTarget", {.Unit = u"Test"});

TEST_F(Objects, PersistentsAssignOrNameBoth) {
    TSource Source;
    TTarget Target;
    Target.Assign(&Source);
    EXPECT_EQ(Target.FValue, 7);
    EXPECT_EQ(Raised([&] { Source.Assign(&Target); }), "EConvertError: Cannot assign a TTarget to a TSource");
    EXPECT_EQ(Raised([&] { Source.Assign(nullptr); }), "EConvertError: Cannot assign a nil to a TSource");
    TSource Part;
    Part.FOwner = &Source;
    EXPECT_EQ(Part.GetNamePath(), "TSource.TSource");
}

} // namespace
} // namespace qz

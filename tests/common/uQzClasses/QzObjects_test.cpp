#include <gtest/gtest.h>

#include <thread>

#include "tests/support/Message.h"
#include "tests/support/Trace.h"
#include <qz/common/uQzClasses/QzFreeNotifies.h>
#include <qz/common/uQzClasses/QzObjectAdapter.h>
#include <qz/common/uQzClasses/QzObjectEx.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

// Uses itself through an interface while it is built and while it ends.
class TThing : public TQzObject {
    QZ_CLASS(TThing, TQzObject)

public:
    UnicodeString FName;

protected:
    explicit TThing(const UnicodeString& AName) : FName(AName) {
        const Ref<IQzObject> Self(this);
        Note("made", FName);
    }
    ~TThing() override {
        const Ref<IQzObject> Self(this);
        Note("freed", FName);
    }
};
constinit const TClassRec TThing::ClassRec = DescribeClass<TThing>(u"TThing", {.Unit = u"Test"});

class TLinked : public TQzObjectEx {
    QZ_CLASS(TLinked, TQzObjectEx)

public:
    UnicodeString FName;
    std::function<void(TObject*)> FOnDestroyed;

    void OnObjectDestroyed(TObject* AObject) override {
        const Ref<IQzObject> Self = AsInterface<IQzObject>(this);
        const auto* Other = dynamic_cast<TLinked*>(AObject);
        Note("told", FName + u" of " + (Other == nullptr ? UnicodeString(u"a rest") : Other->FName));
        if (FOnDestroyed)
            FOnDestroyed(AObject);
    }
    TObject* FOwner = nullptr;
    TObject* GetOwner() const override { return FOwner; }

protected:
    explicit TLinked(const UnicodeString& AName) : FName(AName) {}
    ~TLinked() override { Note("freed", FName); }
};
constinit const TClassRec TLinked::ClassRec = DescribeClass<TLinked>(u"TLinked", {.Unit = u"Test"});

class QzObjects : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

TEST_F(QzObjects, FirstReferenceDecidesAndTheLastOneEnds) {
    Ref<IQzObject> First = TThing::Create(u"a");
    auto* Thing = static_cast<TThing*>(First->Implementor());
    EXPECT_TRUE(Thing->GetAutoDestroy());
    Ref<IQzObject> Other = First;
    First.Clear();
    EXPECT_EQ(Raised([&] { Thing->Free(); }),
              "Exception: An instance of TThing is destroyed while it's refcount is not 0!");
    EXPECT_EQ(As<IQzObject>(Other)->Implementor(), Thing) << "the object is alive";
    void* Missing = this;
    EXPECT_EQ(Other->QueryInterface(IQzObjectEx::IID, &Missing), E_NOINTERFACE_RESULT);
    EXPECT_EQ(Missing, nullptr);
    EXPECT_EQ(Other->QueryInterface(IQzObject::IID, nullptr), E_POINTER_RESULT);
    EXPECT_EQ(TakeTrace(), "made(a) ");
    Other.Clear();
    EXPECT_EQ(TakeTrace(), "freed(a) ");
}

TEST_F(QzObjects, WithoutReferencesOrWithAForbiddenEndOnlyFreeEndsIt) {
    TThing* Thing = TThing::Create(u"a");
    EXPECT_EQ(Thing->RefCount(), 0);
    EXPECT_EQ(Thing->AutoDestroyPolicy(), radTrue) << "its own constructor referred to it";
    Thing->SetAutoDestroy(false);
    { const Ref<IQzObject> Passing(Thing); }
    EXPECT_EQ(TakeTrace(), "made(a) ");
    Thing->Free();
    EXPECT_EQ(TakeTrace(), "freed(a) ");
    for (const TQzObjectClass Class : {TQzObjectClass::Of<TQzObject>(), TQzObjectClass::Of<TQzObjectEx>()}) {
        const TOwned<TQzObject> Made(TQzObject::TVirtualCreate::Find(Class)());
        EXPECT_EQ(Made->AutoDestroyPolicy(), radComputed);
        EXPECT_EQ(Made->ClassType(), Class.Get());
    }
    EXPECT_EQ(TQzObject::TVirtualCreate::Find(ClassOf<TThing>()), nullptr) << "no maker is listed";
}

TEST_F(QzObjects, CountSurvivesManyThreads) {
    const Ref<IQzObject> Thing = TThing::Create(u"a");
    std::vector<std::thread> Threads;
    for (int I = 0; I < 8; ++I)
        Threads.emplace_back([Copy = Thing] {
            for (int J = 0; J < 1000; ++J)
                const Ref<IQzObject> Passing = Copy;
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    Threads.clear();
    EXPECT_EQ(static_cast<TThing*>(Thing->Implementor())->RefCount(), 1);
}

TEST_F(QzObjects, PartnersAreToldOnceFromTheLastToTheFirst) {
    TLinked* Model = TLinked::Create(u"m");
    const TOwned<TLinked> A(TLinked::Create(u"a")), B(TLinked::Create(u"b")), C(TLinked::Create(u"c"));
    for (TLinked* View : {A.get(), B.get(), C.get()}) {
        View->SetAutoDestroy(false);
        View->FreeNotification(Model);
    }
    Model->FreeNotification(A.get());
    B->RemoveFreeNotification(Model);
    Model->FreeNotificationEx(B.get());
    B->RemoveFreeNotificationEx(static_cast<IQzObjectEx*>(Model));
    C->FOnDestroyed = [](TObject*) { throw EAbort(u"no"); };
    EXPECT_THROW(Model->Free(), EAbort);
    EXPECT_EQ(TakeTrace(), "told(c of m) ") << "a partner that raises keeps the object";
    C->FOnDestroyed = {};
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(c of m) told(a of m) freed(m) ");
}

TEST_F(QzObjects, CountedPartnerSurvivesItsNotification) {
    const Ref<IQzObjectEx> Held = TLinked::Create(u"held");
    TLinked* Undecided = TLinked::Create(u"undecided");
    TLinked* Model = TLinked::Create(u"m");
    Held->FreeNotificationEx(Model);
    Model->FreeNotificationEx(Undecided);
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(undecided of m) told(held of m) freed(m) ");
    EXPECT_EQ(static_cast<TLinked*>(Held->Implementor())->AutoDestroyPolicy(), radTrue);
    EXPECT_EQ(Undecided->AutoDestroyPolicy(), radComputed);
    Undecided->Free();
}

TEST_F(QzObjects, PartnerThatFreesItselfWhileItIsToldIsRefused) {
    TLinked* Model = TLinked::Create(u"m");
    TLinked* View = TLinked::Create(u"v");
    Model->FreeNotification(View);
    View->FOnDestroyed = [&](TObject*) { View->Free(); };
    EXPECT_THROW(Model->Free(), Exception);
    View->FOnDestroyed = [&](TObject*) { EXPECT_THROW(View->Free(), Exception); };
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(v of m) told(v of m) freed(m) ");
    View->Free();
}

TEST_F(QzObjects, PartnerThatFreesOrKeepsTheEndingObjectEndsItOnce) {
    TLinked* Model = TLinked::Create(u"m");
    const TOwned<TLinked> View(TLinked::Create(u"v"));
    Model->FreeNotification(View.get());
    View->FOnDestroyed = [](TObject* AModel) {
        const Ref<IQzObject> Passing = AsInterface<IQzObject>(AModel);
        EXPECT_THROW(AModel->Free(), EInvalidOperation);
    };
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(v of m) freed(m) ");
}

TEST_F(QzObjects, PartnerThatLosesItsLastReferenceMeanwhileEndsAfterwards) {
    TLinked* Model = TLinked::Create(u"m");
    Ref<IQzObjectEx> Held = TLinked::Create(u"v");
    auto* View = static_cast<TLinked*>(Held->Implementor());
    View->FreeNotification(Model);
    View->FOnDestroyed = [&](TObject*) { Held.Clear(); };
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(v of m) freed(v) freed(m) ");
}

// Links itself to another and then cannot be built.
class TUnfinished : public TQzObjectEx {
    QZ_CLASS(TUnfinished, TQzObjectEx)

protected:
    explicit TUnfinished(TLinked* APartner) {
        FreeNotification(APartner);
        throw EAbort(u"no");
    }
};
constinit const TClassRec TUnfinished::ClassRec =
    DescribeClass<TUnfinished>(u"TUnfinished", {.Unit = u"Test"});

// Hears of an end, but is no TQzObjectEx.
class TListener : public TInterfacedObject, public IQzObjectFreeNotificationEvent {
    QZ_CLASS(TListener, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    TObject* Implementor() override { return this; }
    void OnObjectDestroyed(TObject* AObject) override { Note("heard of", AObject->ClassName()); }

protected:
    ~TListener() override { Note("freed", u"listener"); }
};
constinit const TClassRec TListener::ClassRec = DescribeClass<TListener>(
    u"TListener", {.Unit = u"Test", .Interfaces = Interfaces<TListener, IQzObjectFreeNotificationEvent>()});

TEST_F(QzObjects, UnfinishedObjectLeavesNoLinkBehind) {
    TLinked* Partner = TLinked::Create(u"p");
    Partner->FOnDestroyed = [](TObject*) { throw EAbort(u"unheard"); };
    EXPECT_THROW((void)TUnfinished::Create(Partner), EAbort);
    EXPECT_EQ(TakeTrace(), "told(p of a rest) ");
    Partner->Free();
    EXPECT_EQ(TakeTrace(), "freed(p) ");
}

TEST_F(QzObjects, ListenerOfAnotherFamilyHearsThroughItsInterface) {
    TLinked* Model = TLinked::Create(u"m");
    const Ref<IQzObjectFreeNotificationEvent> Listener = TListener::Create();
    Model->FreeNotificationEx(Listener);
    Model->FreeNotificationEx(Listener);
    Model->Free();
    EXPECT_EQ(TakeTrace(), "heard of(TLinked) freed(m) ");
}

TEST_F(QzObjects, AssignOfAClassThatCannotCopyNamesBothClasses) {
    const TOwned<TLinked> First(TLinked::Create(u"a"));
    const TOwned<TLinked> Second(TLinked::Create(u"b"));
    EXPECT_EQ(Raised([&] { First->Assign(Second.get()); }),
              "EConvertError: Cannot assign a TLinked to a TLinked");
    EXPECT_EQ(Raised([&] { First->Assign(nullptr); }), "EConvertError: Cannot assign a nil to a TLinked");
    EXPECT_EQ(First->GetNamePath(), "TLinked");
    First->FOwner = Second.get();
    EXPECT_EQ(First->GetNamePath(), "TLinked.TLinked");
    First->FOwner = nullptr;
}

TEST_F(QzObjects, AdapterEndsWhatItOwnsAndLeavesTheRest) {
    TThing* Owned = TThing::Create(u"owned");
    TThing* Other = TThing::Create(u"other");
    {
        const Ref<IQzObjectAdapter> Adapter = TQzObjectAdapter::Create(Owned, ooOwned);
        const Ref<IQzObjectAdapter> Reference = TQzObjectAdapter::Create(Other, ooReference);
        EXPECT_EQ(As<IQzObject>(Adapter)->Implementor(), Owned);
        EXPECT_EQ(Reference->GetObject(), Other);
        EXPECT_EQ(Reference->GetOwnership(), ooReference);
    }
    EXPECT_EQ(TakeTrace(), "made(owned) made(other) freed(owned) ");
    Other->Free();
}

TEST_F(QzObjects, NodesHearOfEachOther) {
    TObject Owner;
    const auto Teller = [](const char* AName) {
        return [AName](TObject* AObject) {
            Note("told", UnicodeString(AName) + u" of " + AObject->ClassName());
        };
    };
    auto First = TQzFreeNotifies::Create(&Owner, Teller("a"));
    TQzFreeNotifies Second(&Owner, Teller("b"));
    auto Third = TQzFreeNotifies::Create(&Owner, Teller("c"));
    First->Add(&Second);
    Second.Add(First.get());
    First->Add(Third.get());
    First.reset();
    EXPECT_EQ(TakeTrace(), "told(c of TObject) told(b of TObject) ");
    Third.reset();
    EXPECT_EQ(TakeTrace(), "") << "a link that is gone tells nobody";
}

TEST_F(QzObjects, NodeSurvivesAPartnerThatRaisesOrFreesItself) {
    TObject Owner;
    std::unique_ptr<TQzFreeNotifies> Passing;
    Passing = std::make_unique<TQzFreeNotifies>(&Owner, [&](TObject*) { Passing.reset(); });
    TQzFreeNotifies Raising(&Owner, [](TObject*) { throw EAbort(u"no"); });
    auto* Node = new TQzFreeNotifies(&Owner, {});
    Node->Add(Passing.get());
    Node->Add(&Raising);
    EXPECT_THROW(Node->Free(), EAbort);
    EXPECT_NE(Passing, nullptr);
    Node->Free();
    EXPECT_EQ(Passing, nullptr);
}

TEST_F(QzObjects, NodesOfManyThreadsEndAtTheSameMoment) {
    TObject Owner;
    std::atomic<int> Told{0};
    for (int Round = 0; Round < 50; ++Round) {
        std::vector<std::unique_ptr<TQzFreeNotifies>> Nodes;
        for (int I = 0; I < 8; ++I)
            Nodes.push_back(std::make_unique<TQzFreeNotifies>(&Owner, [&](TObject*) { ++Told; }));
        std::vector<std::thread> Threads;
        for (std::size_t I = 0; I < Nodes.size(); ++I)
            for (std::size_t J = 0; J < I; ++J)
                Nodes[I]->Add(Nodes[J].get());
        for (auto& Node : Nodes)
            Threads.emplace_back([&] { Node.reset(); });
        for (std::thread& Thread : Threads)
            Thread.join();
    }
    EXPECT_EQ(Told, 50 * 8 * 7 / 2) << "each link told one of its two sides";
}

} // namespace
} // namespace qz

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

// Refers to itself in its constructor and its destructor.
class TThing : public TQzObject {
    QZ_CLASS(TThing, TQzObject)

protected:
    TThing() { const Ref<IQzObject> Self(this); }
    ~TThing() override {
        const Ref<IQzObject> Self(this);
        Note("freed", u"thing");
    }
};
constinit const TClassRec TThing::ClassRec = DescribeClass<TThing>(u"TThing", {.Unit = u"Test"});

// Links itself to another; throws if its name is empty.
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

protected:
    explicit TLinked(const UnicodeString& AName, TLinked* APartner = nullptr) : FName(AName) {
        if (APartner != nullptr)
            FreeNotification(APartner);
        if (AName.IsEmpty())
            throw EAbort(u"no name");
    }
    ~TLinked() override { Note("freed", FName); }
};
constinit const TClassRec TLinked::ClassRec = DescribeClass<TLinked>(u"TLinked", {.Unit = u"Test"});

class QzObjects : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
    TLinked* Model = TLinked::Create(u"m");
};

TEST_F(QzObjects, FirstReferenceDecidesAndTheLastOneEnds) {
    Model->Free();
    Ref<IQzObject> Other = TThing::Create();
    auto* Thing = static_cast<TThing*>(Other->Implementor());
    EXPECT_TRUE(Thing->GetAutoDestroy());
    EXPECT_EQ(Raised([&] { Thing->Free(); }),
              "Exception: An instance of TThing is destroyed while it's refcount is not 0!");
    EXPECT_EQ(As<IQzObject>(Other)->Implementor(), Thing) << "the object is alive";
    EXPECT_EQ(TakeTrace(), "freed(m) ");
    Other.Clear();
    EXPECT_EQ(TakeTrace(), "freed(thing) ");
    Thing = TThing::Create();
    EXPECT_EQ(Thing->AutoDestroyPolicy(), radTrue) << "its own constructor referred to it";
    Thing->SetAutoDestroy(false);
    Other = Thing;
    Other.Clear();
    EXPECT_EQ(TakeTrace(), "");
    Thing->Free();
}

TEST_F(QzObjects, PartnersAreToldOnceFromTheLastToTheFirst) {
    const TOwned<TLinked> A(TLinked::Create(u"a", Model)), B(TLinked::Create(u"b", Model));
    const TOwned<TLinked> C(TLinked::Create(u"c", Model));
    Model->FreeNotification(A.get());
    B->SetAutoDestroy(false);
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
    Held->FreeNotificationEx(Model);
    Model->FreeNotificationEx(Undecided);
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(undecided of m) told(held of m) freed(m) ");
    EXPECT_EQ(static_cast<TLinked*>(Held->Implementor())->AutoDestroyPolicy(), radTrue);
    EXPECT_EQ(Undecided->AutoDestroyPolicy(), radComputed);
    Undecided->Free();
}

TEST_F(QzObjects, PartnerMayNotFreeItselfOrTheEndingObject) {
    TLinked* View = TLinked::Create(u"v", Model);
    View->FOnDestroyed = [&](TObject*) { View->Free(); };
    EXPECT_THROW(Model->Free(), Exception);
    View->FOnDestroyed = [](TObject* AModel) {
        const Ref<IQzObject> Passing = AsInterface<IQzObject>(AModel);
        EXPECT_THROW(AModel->Free(), EInvalidOperation);
    };
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(v of m) told(v of m) freed(m) ");
    View->Free();
}

TEST_F(QzObjects, PartnerThatLosesItsLastReferenceMeanwhileEndsAfterwards) {
    Ref<IQzObjectEx> Held = TLinked::Create(u"v", Model);
    auto* View = static_cast<TLinked*>(Held->Implementor());
    View->FOnDestroyed = [&](TObject*) { Held.Clear(); };
    Model->Free();
    EXPECT_EQ(TakeTrace(), "told(v of m) freed(v) freed(m) ");
}

TEST_F(QzObjects, UnfinishedObjectLeavesNoLink) {
    Model->FOnDestroyed = [](TObject*) { throw EAbort(u"unheard"); };
    EXPECT_THROW((void)TLinked::Create(u"", Model), EAbort);
    EXPECT_EQ(TakeTrace(), "told(m of a rest) ");
    Model->Free();
    EXPECT_EQ(TakeTrace(), "freed(m) ");
}

TEST_F(QzObjects, AdapterEndsWhatItOwnsAndLeavesTheRest) {
    EXPECT_EQ(Raised([&] { Model->Assign(nullptr); }), "EConvertError: Cannot assign a nil to a TLinked");
    Ref<IQzObjectAdapter> Adapter = TQzObjectAdapter::Create(Model, ooReference);
    Adapter = TQzObjectAdapter::Create(Model, ooOwned);
    EXPECT_EQ(TakeTrace(), "");
    Adapter.Clear();
    EXPECT_EQ(TakeTrace(), "freed(m) ");
}

TEST(QzFreeNotifies, NodeSurvivesAPartnerThatRaisesOrFreesItself) {
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

TEST(QzFreeNotifies, NodesOfManyThreadsEndAtTheSameMoment) {
    TObject Owner;
    std::atomic<int> Told{0};
    for (int Round = 0; Round < 50; ++Round) {
        std::vector<std::unique_ptr<TQzFreeNotifies>> Nodes;
        std::vector<std::thread> Threads;
        for (int I = 0; I < 8; ++I) {
            Nodes.push_back(std::make_unique<TQzFreeNotifies>(&Owner, [&](TObject*) { ++Told; }));
            for (int J = 0; J < I; ++J)
                Nodes.back()->Add(Nodes[static_cast<std::size_t>(J)].get());
        }
        for (auto& Node : Nodes)
            Threads.emplace_back([&] { Node.reset(); });
        for (std::thread& Thread : Threads)
            Thread.join();
    }
    EXPECT_EQ(Told, 50 * 8 * 7 / 2) << "each link told one of its two sides";
}

} // namespace
} // namespace qz

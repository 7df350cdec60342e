#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Trace.h"
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/objects/ClassRegistry.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

class TPart : public TComponent {
    QZ_CLASS(TPart, TComponent)

public:
    std::function<void(TComponent*, TOperation)> FOnNotify;
    bool FRefuses = false;

    static TPart* Make(TComponent* AOwner, const UnicodeString& AName) {
        TPart* Result = Create(AOwner);
        Result->SetName(AName);
        return Result;
    }
    void BeforeDestruction() override {
        Inherited::BeforeDestruction();
        if (FRefuses)
            throw EInvalidOperation(u"not now");
    }

protected:
    explicit TPart(TComponent* AOwner) : TComponent(AOwner) {}
    ~TPart() override { Note("freed", Name()); }
    void Notification(TComponent* AComponent, TOperation AOperation) override {
        Inherited::Notification(AComponent, AOperation);
        if (AOperation == opRemove)
            Note("removed", AComponent->Name() + u" to " + Name());
        if (FOnNotify)
            FOnNotify(AComponent, AOperation);
    }
};
constinit const TClassRec TPart::ClassRec = DescribeComponent<TPart>(u"TPart", {.Unit = u"Test"});

// Cannot be made: raises behind its base's construction, or behind its own.
class TFailing : public TPart {
    QZ_CLASS(TFailing, TPart)

public:
    void AfterConstruction() override { throw EInvalidOperation(u"late"); }

protected:
    TFailing(TComponent* AOwner, bool AEarly) : TPart(AOwner) {
        if (AEarly)
            throw EInvalidOperation(u"early");
    }
};
constinit const TClassRec TFailing::ClassRec = DescribeClass<TFailing>(u"TFailing", {.Unit = u"Test"});

class Components : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
    ~Components() override { FreeRoot(); }
    void FreeRoot() { FreeAndNil(Root); }

    TPart* Root = TPart::Make(nullptr, u"root");
};

TEST_F(Components, EndOfOneIsToldToOwnerBrothersAndPartners) {
    TPart* A = TPart::Make(Root, u"a");
    TPart::Make(Root, u"b");
    TPart* Stranger = TPart::Make(nullptr, u"x");
    Stranger->FreeNotification(A);
    Stranger->FreeNotification(A);
    EXPECT_TRUE(A->ComponentState().Contains(csFreeNotification));
    A->Free();
    EXPECT_EQ(TakeTrace(), "freed(a) removed(a to x) removed(a to b) removed(a to root) ");
    EXPECT_FALSE(Stranger->ComponentState().Contains(csFreeNotification));
    EXPECT_EQ(Root->ComponentCount(), 1);
    Stranger->Free();
}

TEST_F(Components, NotificationMayEndOthers) {
    std::vector<TPart*> Parts;
    for (const char16_t* Name : {u"a", u"b", u"c", u"d"})
        Parts.push_back(TPart::Make(Root, Name));
    int Ended = 0;
    Parts[2]->FOnNotify = [&](TComponent* Other, TOperation Operation) {
        if (Operation == opRemove && Other == Parts[1] && Ended++ == 0) {
            Parts[0]->Free();
            Parts[3]->Free();
        }
    };
    Parts[1]->Free();
    EXPECT_EQ(Root->ComponentCount(), 1);
    EXPECT_EQ(Root->Components(0), Parts[2]);
    // A partner that ends another partner of the same component.
    TPart* Dying = TPart::Make(nullptr, u"dying");
    TPart* First = TPart::Make(nullptr, u"first");
    TPart* Second = TPart::Make(nullptr, u"second");
    Dying->FreeNotification(First);
    Dying->FreeNotification(Second);
    Second->FOnNotify = [&](TComponent*, TOperation) {
        Second->FOnNotify = nullptr;
        First->Free();
    };
    Dying->Free();
    Second->Free();
    FreeRoot();
}

TEST_F(Components, OneThatRefusesItsEndLivesOnWithoutOwner) {
    TPart* A = TPart::Make(Root, u"a");
    TPart* AA = TPart::Make(A, u"aa");
    TPart::Make(Root, u"b");
    A->FRefuses = true;
    EXPECT_THROW(A->Free(), EInvalidOperation);
    EXPECT_EQ(A->Owner(), Root);
    EXPECT_FALSE(AA->ComponentState().Contains(csDestroying));
    FreeRoot();
    EXPECT_EQ(TakeTrace(), "freed(root) freed(b) ");
    EXPECT_EQ(A->Owner(), nullptr);
    EXPECT_FALSE(A->ComponentState().Contains(csDestroying));
    A->FRefuses = false;
    A->Free();
    EXPECT_EQ(TakeTrace(), "freed(a) freed(aa) ");
}

TEST_F(Components, DestroyComponentsStopsAtARefusal) {
    TPart* A = TPart::Make(Root, u"a");
    TPart::Make(Root, u"b");
    A->FRefuses = true;
    EXPECT_THROW(Root->DestroyComponents(), EInvalidOperation);
    EXPECT_EQ(TakeTrace(), "freed(b) removed(b to a) removed(b to root) ");
    EXPECT_EQ(A->Owner(), Root);
    A->FRefuses = false;
    Root->DestroyComponents();
    EXPECT_EQ(Root->ComponentCount(), 0);
}

TEST_F(Components, FailedConstructionLeavesTheOwner) {
    EXPECT_EQ(Message([&] { TFailing::Create(Root, true); }), u"early");
    EXPECT_EQ(Message([&] { TFailing::Create(Root, false); }), u"late");
    Root->FOnNotify = [](TComponent*, TOperation Operation) {
        if (Operation == opInsert)
            throw EInvalidOperation(u"full");
    };
    EXPECT_THROW(TPart::Create(Root), EInvalidOperation);
    EXPECT_EQ(Root->ComponentCount(), 0);
}

TEST_F(Components, NamesAreIdentifiersAndUniqueInTheOwner) {
    TPart* A = TPart::Make(Root, u"Alpha");
    TPart* B = TPart::Create(Root);
    for (const char16_t* Bad : {u"1a", u"a b", u"a.b", u"\u00E4"})
        EXPECT_EQ(Raised([&] { B->SetName(Bad); }),
                  UnicodeString(u"EComponentError: '") + Bad + u"' is not a valid component name");
    EXPECT_EQ(Raised([&] { B->SetName(u"ALPHA"); }),
              "EComponentError: A component named ALPHA already exists");
    A->SetName(u"alpha");
    EXPECT_EQ(Root->FindComponent(u"ALPHA"), A);
    EXPECT_EQ(Root->FindComponent(u""), nullptr);
    const TOwned<TPart> Stranger(TPart::Make(nullptr, u"alpha"));
    EXPECT_THROW(Root->InsertComponent(Stranger.get()), EComponentError);
    EXPECT_EQ(Stranger->Owner(), nullptr);
}

TEST_F(Components, OwnersCanChangeButNotFormACycle) {
    const TOwned<TPart> Other(TPart::Make(nullptr, u"other"));
    TPart* A = TPart::Make(Root, u"a");
    Other->InsertComponent(A);
    EXPECT_EQ(TakeTrace(), "removed(a to root) ");
    EXPECT_EQ(Root->ComponentCount(), 0);
    EXPECT_THROW(A->InsertComponent(A), EComponentError);
    EXPECT_THROW(A->InsertComponent(Other.get()), EComponentError);
    Root->RemoveComponent(A); // not its own
    EXPECT_EQ(A->Owner(), Other.get());
}

TEST_F(Components, IndexesMoveAndAreChecked) {
    TPart* A = TPart::Make(Root, u"a");
    TPart::Make(Root, u"b");
    TPart* C = TPart::Make(Root, u"c");
    const auto Order = [this] {
        UnicodeString Result;
        for (int I = 0; I < Root->ComponentCount(); ++I)
            Result += Root->Components(I)->Name();
        return Result;
    };
    C->SetComponentIndex(0);
    EXPECT_EQ(Order(), "cab");
    C->SetComponentIndex(99);
    A->SetComponentIndex(1);
    EXPECT_EQ(Order(), "bac");
    EXPECT_EQ(Root->ComponentIndex(), -1);
    EXPECT_THROW(Root->Components(3), EListError);
}

TEST_F(Components, IsMadeByNameAndReflectsItsProperties) {
    RegisterClass(ClassOf<TPart>());
    const TClass Class = FindClass(u"tpart");
    TOwned<TComponent> Part(TComponent::TVirtualCreate::Find(Class)(nullptr));
    const UnicodeString Name = u"made";
    GetPropInfo(&Class->Info, u"name")->Set(*Part, &Name);
    EXPECT_EQ(Part->Name(), "made");
    UnRegisterClass(Class);
    EXPECT_THROW(FindClass(u"TPart"), EClassNotFound);
    RegisterType(TypeInfo<int>());
    EXPECT_EQ(FindType(u"System.Integer"), TypeInfo<int>());
    EXPECT_EQ(FindType(u"Integer"), nullptr);
}

TEST_F(Components, PartnersHearOfTheEndThoughOneBeforeThemRaises) {
    TPart* Hears = TPart::Make(Root, u"hears");
    TPart* Ends = TPart::Make(Root, u"ends");
    TPart* Raises = TPart::Make(Root, u"raises");
    Hears->FreeNotification(Ends);
    Raises->FOnNotify = [](TComponent*, TOperation) { throw EInvalidOperation(u"no"); };
    Ends->Free();
    EXPECT_EQ(TakeTrace(), "freed(ends) removed(ends to raises) removed(ends to hears) ");
    Raises->FOnNotify = {};
}

TEST_F(Components, OneMadeForAnEndingOwnerEndsToo) {
    TPart* Ends = TPart::Make(Root, u"ends");
    Root->FOnNotify = [&](TComponent*, TOperation AOperation) {
        if (AOperation == opRemove)
            TComponent::Create(Ends)->SetName(u"late");
    };
    Ends->Free();
    Root->FOnNotify = {};
    EXPECT_EQ(Root->ComponentCount(), 0);
}

TEST_F(Components, IsNotCounted) {
    EXPECT_EQ(AsInterface<IInterface>(Root)->_AddRef(), 0xFFFFFFFFu);
    EXPECT_EQ(TakeTrace(), "");
}

TEST_F(Components, PartnerBrotherHearsOnceAndInATreeThatGoes) {
    TPart* A = TPart::Make(Root, u"a");
    TPart* B = TPart::Make(Root, u"b");
    TPart* C = TPart::Make(Root, u"c");
    A->FreeNotification(B);
    A->FreeNotification(C);
    B->Free();
    EXPECT_EQ(TakeTrace(), "freed(b) removed(b to c) removed(b to a) removed(b to root) ");
    FreeRoot();
    EXPECT_EQ(TakeTrace(), "freed(root) freed(c) removed(c to a) freed(a) ");
}

} // namespace
} // namespace qz

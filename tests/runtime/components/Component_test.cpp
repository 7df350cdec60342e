#include <gtest/gtest.h>

#include "tests/runtime/SampleModel.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/components/Collection.h>
#include <qz/runtime/components/LinkControlToProperty.h>
#include <qz/runtime/objects/ClassRegistry.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/NumberText.h>

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

class TLabel : public TCollectionItem {
    QZ_CLASS(TLabel, TCollectionItem)
public:
    explicit TLabel(TCollection* ACollection) : TCollectionItem(ACollection) {}
    ~TLabel() override { Note("freed", FName); }
    void SetName(const UnicodeString& AName) {
        FName = AName;
        Changed(false);
    }
    UnicodeString DisplayName() const override { return FName; }
    void Assign(TPersistent* ASource) override {
        if (dynamic_cast<TLabel*>(ASource) == nullptr)
            Inherited::Assign(ASource);
        SetName(static_cast<TLabel*>(ASource)->FName);
    }

private:
    UnicodeString FName;
};
constinit const TClassRec TLabel::ClassRec =
    DescribeClass<TLabel>(u"TLabel", {.Unit = u"Test", .Makers = CollectionItemMaker<TLabel>()});

class TLabels : public TOwnedCollection {
    QZ_CLASS(TLabels, TOwnedCollection)
public:
    explicit TLabels(TPersistent* AOwner = nullptr) : TOwnedCollection(AOwner, ClassOf<TLabel>()) {}
    TLabel* AddLabel(const UnicodeString& AName) {
        auto* Result = static_cast<TLabel*>(Add());
        Result->SetName(AName);
        return Result;
    }
    UnicodeString Order() const {
        UnicodeString Result;
        for (const TCollectionItem* Each : *this)
            Result += Each->DisplayName();
        return Result;
    }

protected:
    void Update(TCollectionItem* AItem) override {
        GTrace += AItem == nullptr ? UnicodeString(u"all ") : u"one(" + AItem->DisplayName() + u") ";
    }
    void Notify(TCollectionItem*, TCollectionNotification AAction) override {
        GTrace += AAction == cnAdded ? u"added " : AAction == cnDeleting ? u"deleting " : u"extracting ";
    }
};
constinit const TClassRec TLabels::ClassRec = DescribeClass<TLabels>(u"TLabels", {.Unit = u"Test"});

class Collections : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

TEST_F(Collections, MakeKeepAndEndTheirItems) {
    {
        TLabels Labels;
        Labels.AddLabel(u"a");
        EXPECT_EQ(TakeTrace(), "added all one(a) ");
        Labels.BeginUpdate();
        Labels.AddLabel(u"b");
        static_cast<TLabel*>(Labels.Insert(0))->SetName(u"c");
        Labels.EndUpdate();
        EXPECT_EQ(TakeTrace(), "added added all ");
        EXPECT_EQ(Labels.Order(), "cab");
        Labels.Delete(1);
        EXPECT_EQ(TakeTrace(), "deleting freed(a) all ");
        EXPECT_EQ(Labels.FindItemID(2), Labels[0]);
        EXPECT_EQ(Labels.AddLabel(u"d")->ID(), 3);
        EXPECT_THROW(Labels.Delete(3), EListError);
        EXPECT_THROW(Labels.Insert(-1), EListError);
        TakeTrace();
    }
    EXPECT_EQ(TakeTrace(), "freed(d) freed(b) freed(c) ");
}

TEST_F(Collections, ItemsMoveLeaveAndJoin) {
    TLabels Labels, Others;
    TLabel* A = Labels.AddLabel(u"a");
    Labels.AddLabel(u"b");
    Labels.AddLabel(u"c");
    A->SetIndex(1);
    EXPECT_EQ(Labels.Order(), "bac");
    A->SetIndex(-5);
    EXPECT_EQ(Labels.Order(), "abc");
    Others.AddLabel(u"x");
    TakeTrace();
    A->SetCollection(&Others);
    EXPECT_EQ(TakeTrace(), "extracting all added all ");
    EXPECT_EQ(A->ID(), 1);
    EXPECT_EQ(Others.Order(), "xa");
    A->Free();
    EXPECT_EQ(Others.Order(), "x");
    TCollectionItem Plain(nullptr);
    EXPECT_THROW(Plain.SetCollection(&Labels), EInvalidOperation);
    EXPECT_THROW(TCollection(ClassOf<TObject>()), EInvalidOperation);
}

TEST_F(Collections, AssignCopiesEachItem) {
    TLabels From, To;
    From.AddLabel(u"a");
    From.AddLabel(u"b");
    To.AddLabel(u"old");
    TakeTrace();
    To.Assign(&From);
    EXPECT_EQ(To.Order(), "ab");
    EXPECT_EQ(TakeTrace(), "deleting freed(old) added added all ");
    TCollection Plain(ClassOf<TCollectionItem>());
    Plain.Add();
    EXPECT_THROW(To.Assign(&Plain), EConvertError); // a label is no plain item
    TakeTrace();
    From.AddLabel(u"c");
    To.AddLabel(u"d");
    EXPECT_EQ(TakeTrace(), "added all one(c) added all one(d) "); // the update that failed has ended
    EXPECT_EQ(From[1]->GetNamePath(), "TLabels[1]");
}

using TOptions = TBindings::TCreateOptions;

TBindingExpression* Bind(TObject* ASource, const UnicodeString& AInput, TObject* ADest,
                         const UnicodeString& AOutput, TOptions AOptions = {}) {
    return TBindings::CreateManagedBinding(
        {TBindings::CreateAssociationScope({Associate(ASource, u"src")})}, AInput,
        {TBindings::CreateAssociationScope({Associate(ADest, u"dst")})}, AOutput, AOptions);
}

class Bindings : public testing::Test {
protected:
    TOwned<TModel> FA{TModel::Create(nullptr)};
    TOwned<TModel> FB{TModel::Create(nullptr)};
};

TEST_F(Bindings, BothDirectionsComeToRest) {
    TBindingExpression* There = Bind(FA.get(), u"src.Number", FB.get(), u"dst.Text", {TBindings::coEvaluate});
    TBindingExpression* Back = Bind(FB.get(), u"SRC.text", FA.get(), u"dst.Number");
    EXPECT_EQ(FB->Text(), "0");
    FA->SetNumber(12);
    EXPECT_EQ(FB->Text(), "12");
    FB->SetText(u"$1F");
    EXPECT_EQ(FA->Number(), 31);
    EXPECT_EQ(FB->Text(), "31"); // comes back once, in the form of the number
    EXPECT_THROW(FB->SetText(u"x"), EConvertError);
    TBindings::RemoveBinding(There);
    TBindings::RemoveBinding(Back);
    TBindings::RemoveBinding(Back);
    FA->SetNumber(7);
    EXPECT_EQ(FB->Text(), "x");
}

TEST_F(Bindings, PathFollowsTheObjectOnTheWay) {
    TModel* First = TModel::Create(FA.get());
    TModel* Second = TModel::Create(FA.get());
    TBindingExpression* Binding =
        Bind(FA.get(), u"src.Child.Number", FB.get(), u"dst.Number", {TBindings::coEvaluate});
    First->SetNumber(1);
    FA->SetChild(First);
    First->SetNumber(2);
    EXPECT_EQ(FB->Number(), 2);
    Second->SetNumber(3);
    EXPECT_EQ(FB->Number(), 2);
    FA->SetChild(Second);
    First->SetNumber(4);
    EXPECT_EQ(FB->Number(), 3);
    FA->SetChild(nullptr);
    Second->SetNumber(5);
    EXPECT_EQ(FB->Number(), 3);
    TBindings::RemoveBinding(Binding);
}

TEST_F(Bindings, NotifyOutputCarriesOn) {
    const TOwned<TModel> C(TModel::Create(nullptr));
    TBindingExpression* First =
        Bind(FA.get(), u"src.Number", FB.get(), u"dst.Small", {TBindings::coNotifyOutput});
    TBindingExpression* Second = Bind(FB.get(), u"src.Small", C.get(), u"dst.Number");
    FA->SetNumber(100);
    EXPECT_EQ(C->Number(), 100);
    TBindings::RemoveBinding(First);
    TBindings::RemoveBinding(Second);
}

TEST_F(Bindings, BadExpressionsAreNamed) {
    for (const auto& Case :
         Rows(u"src.Missing => dst.Number => 'Missing'", u"other.Number => dst.Number => 'other'",
              u"src.Number.Deep => dst.Number => 'Number'", u"src.Number => dst.Writes => 'Writes'",
              u"src..Number => dst.Number => src..Number", u"src.Number => dst => 'dst'",
              u" => dst.Number => ''", u"src.Number + 1 => dst.Number => 'Number + 1'")) {
        const UnicodeString Error = Raised([&] { Bind(FA.get(), Case[0], FB.get(), Case[1]); });
        EXPECT_TRUE(Error.View().starts_with(u"EEvaluatorError") &&
                    Error.View().find(Case[2].View()) != std::u16string_view::npos)
            << Case[0] << " to " << Case[1] << ": " << Error;
    }
    FA->SetNumber(1); // nothing was left behind
    EXPECT_EQ(FB->FWrites, 0);
}

TEST_F(Bindings, EndOfABoundComponentEndsTheBinding) {
    TBindingExpression* There = Bind(FA.get(), u"src.Number", FB.get(), u"dst.Number");
    TBindingExpression* Back = Bind(FB.get(), u"src.Number", FA.get(), u"dst.Number");
    FB.reset();
    FA->SetNumber(3);
    EXPECT_FALSE(There->IsActive() || Back->IsActive());
    Back->Evaluate();
    TBindings::RemoveBinding(There);
    TBindings::RemoveBinding(Back);
}

TEST_F(Bindings, ValuesConvertOrAreRefused) {
    const auto Move = [](TModel* From, const char16_t* Input, TModel* To, const char16_t* Output) {
        TBindings::RemoveBinding(Bind(From, UnicodeString(u"src.") + Input, To,
                                      UnicodeString(u"dst.") + Output, {TBindings::coEvaluate}));
    };
    FB->FPrice = Currency::FromUnits(9000000000000000001);
    FA->SetText(u"dytue");
    for (const auto& Case :
         Rows(u"A Text => B Day => dyTue", u"B Day => B Narrow => dyTue", u"B Day => B Number => 1",
              u"B Day => B On => True", u"B On => A Text => True", u"B Big => A Text => 18446744073709551615",
              u"A Text => A Big => 18446744073709551615", u"B Price => B Text => 900000000000000.0001",
              u"B Text => A Price => 900000000000000.0001")) {
        TModel* From = Case[0][0] == u'A' ? FA.get() : FB.get();
        TModel* To = Case[1][0] == u'A' ? FA.get() : FB.get();
        Move(From, Case[0].c_str() + 2, To, Case[1].c_str() + 2);
        EXPECT_EQ(VarToStr(GetPropValue(*To, Case[1].View().substr(2))), Case[2])
            << Case[0] << " to " << Case[1];
    }
    FA->FBig = (1ull << 63) + 1025; // rounded once
    Move(FA.get(), u"Big", FA.get(), u"Float");
    EXPECT_EQ(FA->Float(), static_cast<double>(FA->FBig));
    FA->FPrice = Currency::FromUnits(9000000000000000002);
    Move(FB.get(), u"Price", FA.get(), u"Price"); // the same as a double
    EXPECT_EQ(FA->FPrice, FB->FPrice);
    for (const auto& Case : Rows(u"Text => Day => EConvertError", u"Text => Key => EConvertError",
                                 u"Float => Number => ERangeError", u"Large => Text => EConvertError",
                                 u"Number => Child => EConvertError")) {
        const UnicodeString Error =
            Raised([&] { Move(FA.get(), Case[0].c_str(), FB.get(), Case[1].c_str()); });
        EXPECT_TRUE(Error.View().starts_with(Case[2].View()))
            << Case[0] << " to " << Case[1] << ": " << Error;
    }
}

TEST_F(Bindings, LinkCarriesTheControlToTheProperty) {
    TModel* Control = FB.get();
    TLinkControlToProperty* Link = TLinkControlToProperty::Create(FA.get());
    FA->SetNumber(5);
    Link->SetActive(true);
    Link->SetControl(Control);
    Link->SetComponent(FA.get());
    Link->SetComponentProperty(u"Number");
    EXPECT_EQ(Control->Text(), "5");
    Control->SetText(u"7");
    EXPECT_EQ(FA->Number(), 7);
    Control->Type(u"8");
    EXPECT_EQ(FA->Number(), 7); // not accepted yet
    Link->SetTrack(true);
    Control->Type(u"$9");
    EXPECT_EQ(FA->Number(), 9);
    Link->SetActive(false);
    EXPECT_FALSE(Control->Observers().IsObserving(TObservers::cControlValueId));
    Control->SetText(u"10");
    EXPECT_EQ(FA->Number(), 9);
}

TEST_F(Bindings, LinkOutlivesItsEndsAndChecksThem) {
    const TOwned<TLinkControlToProperty> Link(TLinkControlToProperty::Create(nullptr));
    const TOwned<TComponent> Plain(TLinkControlToProperty::Create(nullptr));
    EXPECT_THROW(Link->SetControl(Plain.get()), EComponentError);
    Link->SetControl(FB.get());
    Link->SetComponent(FA.get());
    Link->SetComponentProperty(u"Missing");
    EXPECT_THROW(Link->SetActive(true), EEvaluatorError);
    EXPECT_FALSE(Link->Active());
    Link->SetComponentProperty(u"Number");
    Link->SetActive(true);
    FA.reset();
    EXPECT_EQ(Link->Component(), nullptr);
    FB->SetText(u"1");
    FB.reset();
    EXPECT_EQ(Link->Control(), nullptr);
}

} // namespace
} // namespace qz

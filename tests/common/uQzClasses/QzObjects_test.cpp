#include <gtest/gtest.h>

#include <thread>

#include "tests/runtime/SampleModel.h"
#include "tests/support/Lines.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzClasses.h>

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

// Has a text and a number, and notifies its bindings of their changes.
class TView : public TQzComponent {
    QZ_CLASS(TView, TQzComponent)

public:
    const UnicodeString& GetTitle() const { return FTitle; }
    void SetTitle(const UnicodeString& ATitle) {
        FTitle = ATitle;
        ++FWrites;
        NotifyBindings(u"Title");
        if (FOnTitle)
            FOnTitle();
    }
    int GetWidth() const { return FWidth; }
    void SetWidth(int AWidth) {
        FWidth = AWidth;
        NotifyBindings(u"Width");
    }
    int FWrites = 0;
    std::function<void()> FOnTitle;

protected:
    explicit TView(TComponent* AOwner) : TQzComponent(AOwner) {}
    ~TView() override { GTrace += u"freed(" + Name() + u") "; }

private:
    UnicodeString FTitle;
    int FWidth = 0;
};

constexpr TPropInfo cViewProps[] = {Property<&TView::GetTitle, &TView::SetTitle>(u"Title"),
                                    Property<&TView::GetWidth, &TView::SetWidth>(u"Width")};
constinit const TClassRec TView::ClassRec =
    DescribeComponent<TView>(u"TView", {.Unit = u"Test", .Properties = cViewProps});

TView* NewView(const UnicodeString& AName, TComponent* AOwner = nullptr) {
    TView* View = TView::Create(AOwner);
    View->SetName(AName);
    return View;
}

class QzComponent : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

class QzBindings : public QzComponent {
protected:
    const TOwned<TView> First{NewView(u"a")};
    const TOwned<TView> Second{NewView(u"b")};
    TOwned<TModel> Edit{TModel::Create(nullptr)};
};

TEST_F(QzComponent, WithoutOwnerDiesWithItsLastReference) {
    Ref<IQzComponent> View = NewView(u"a");
    Ref<IQzObject> Same = As<IQzObject>(View);
    EXPECT_TRUE(View->GetAutoDestroy());
    EXPECT_EQ(Raised([&] { static_cast<TView*>(View.Get())->Free(); }),
              "Exception: An instance of TView with the name a is destroyed while it's refcount is not 0!");
    View.Clear();
    EXPECT_EQ(TakeTrace(), "");
    Same.Clear();
    EXPECT_EQ(TakeTrace(), "freed(a) ");
    TView* Lone = NewView(u"lone");
    Lone->SetAutoDestroy(false);
    { const Ref<IQzComponent> Passing(Lone); }
    EXPECT_EQ(TakeTrace(), "");
    Lone->Free();
}

TEST_F(QzComponent, WithOwnerIsEndedByTheOwnerUnlessItIsReferredTo) {
    TView* Owner = NewView(u"owner");
    TView* Child = NewView(u"child", Owner);
    Ref<IQzComponent> Held = NewView(u"held", Owner);
    { const Ref<IQzComponent> Passing(Child); }
    EXPECT_EQ(Child->AutoDestroyPolicy(), radComputed);
    Owner->Free();
    EXPECT_EQ(TakeTrace(), "freed(owner) freed(child) ");
    EXPECT_EQ(Held->_GetOwner(), nullptr);
    Held.Clear();
    EXPECT_EQ(TakeTrace(), "freed(held) ");
}

TEST_F(QzBindings, BoundPropertiesFollowEachOtherUntilCleared) {
    First->Bind(u"Title", Second.get(), u"Title");
    First->SetTitle(u"one");
    EXPECT_EQ(Second->GetTitle(), u"one");
    Second->SetTitle(u"two");
    EXPECT_EQ(First->GetTitle(), u"two");
    EXPECT_EQ(First->FWrites + Second->FWrites, 4) << "each change is written once on each side";
    First->ClearBindings();
    First->SetTitle(u"three");
    EXPECT_EQ(Second->GetTitle(), u"two");
    First->SetWidth(42);
    First->Bind(u"Width", Second.get(), u"Title", {TBindings::coEvaluate});
    EXPECT_EQ(Second->GetTitle(), u"42");
    EXPECT_THROW(Second->SetTitle(u"wide"), EConvertError);
    EXPECT_EQ(First->GetWidth(), 42);
}

TEST_F(QzBindings, FailedBindLeavesNoHalf) {
    EXPECT_THROW(First->Bind(u"Title", Second.get(), u"Nothing"), EEvaluatorError);
    EXPECT_THROW(First->Bind(u"Sink", Second.get(), u"Title"), EEvaluatorError);
    EXPECT_THROW(First->Bind(u"Title", static_cast<TComponent*>(Second.get())), EAssertionFailed);
    EXPECT_THROW(First->Bind(u"Nothing", Edit.get()), EEvaluatorError);
    First->SetTitle(u"alone");
    EXPECT_EQ(Second->FWrites, 0);
    EXPECT_EQ(First->ComponentCount(), 0) << "no link is left";
}

TEST_F(QzBindings, SetterMayEndTheLinkOrTheControlThatFeedsIt) {
    First->Bind(u"Title", Edit.get());
    First->FOnTitle = [&] { First->ClearBindings(); };
    Edit->Type(u"one");
    First->FOnTitle = {};
    First->Bind(u"Title", Edit.get());
    Second->Bind(u"Title", Edit.get());
    First->FOnTitle = [&] { Edit.reset(); };
    Edit->Type(u"two");
    EXPECT_EQ(First->GetTitle(), u"two");
    EXPECT_EQ(Second->GetTitle(), u"") << "the control ended before its turn";
}

TEST(QzStringList, TokenizeReplacesTheLinesInOneChange) {
    TQzStringList List;
    for (const auto& Case : Rows(u"a,,b => a|b|", u" => ", u",b , => b |", u"\"a,b\" => \"a|b\"|")) {
        List.Tokenize(Case[0], u',');
        EXPECT_EQ(Lines(List), Case[1]) << Case[0];
    }
    int Changes = 0;
    List.SetOnChange([&](TObject*) { ++Changes; });
    List.Tokenize(u"b a c", u' ');
    EXPECT_EQ(Changes, 1);
    List.Tokenize(List[1], u'x');
    EXPECT_EQ(Lines(List), u"a|");
}

class QzKeyDescStringList : public testing::Test {
protected:
    UnicodeString Both() const { return Lines(*List->KeyValues()) + u"/" + Lines(*List->Descriptions()); }
    const TOwned<TQzKeyDescStringList> List{TQzKeyDescStringList::Create(nullptr)};
};

TEST_F(QzKeyDescStringList, FindsEitherSideByTheOther) {
    List->AddItem(u"x");
    List->AddItem(u"y");
    List->AddItem(u"Key", u"first");
    List->AddItem(u"KEY", u"second");
    List->AddItem(-7, u"minus");
    List->AddItem(u"", u"nothing");
    const std::pair<Variant, const char16_t*> Descriptions[] = {{1, u"y"},         {u"key", u"first"},
                                                                {-7, u"minus"},    {Variant(), u"nothing"},
                                                                {u"unknown", u""}, {1.0, u"y"}};
    for (const auto& [Key, Description] : Descriptions)
        EXPECT_EQ(List->GetDescription(Key), Description) << VarToStr(Key);
    EXPECT_EQ(List->GetStrKeyValue(u"SECOND"), u"KEY");
    EXPECT_EQ(List->GetIntKeyValue(u"minus"), -7);
    for (const char16_t* None : {u"z", u"first"})
        EXPECT_EQ(List->GetIntKeyValue(None), -1);
}

TEST_F(QzKeyDescStringList, TakesPairsOrLinesOrRefuses) {
    TStringList Names;
    Names.SetSorted(true);
    Names.SetCommaText(u"b,a");
    List->AddItem(u"old");
    List->Assign(&Names);
    List->AddItems(Names);
    EXPECT_EQ(Both(), u"0|1|2|3|/a|b|a|b|");
    const TOwned<TQzKeyDescStringList> Target(TQzKeyDescStringList::Create(nullptr));
    Target->Assign(List.get());
    List->Assign(List->KeyValues());
    EXPECT_EQ(Both(), u"0|1|2|3|/0|1|2|3|") << "a list of its own";
    EXPECT_EQ(Lines(*Target->Descriptions()), u"a|b|a|b|");
    EXPECT_THROW(List->Assign(nullptr), EConvertError);
}

class TCounted : public TQzObject {
    QZ_CLASS(TCounted, TQzObject)

protected:
    ~TCounted() override { GTrace += u"freed "; }
};
constinit const TClassRec TCounted::ClassRec = DescribeClass<TCounted>(u"TCounted", {.Unit = u"Test"});

TEST(QzObjectList, HoldsWhatCountsItsReferencesWhetherItOwnsOrNot) {
    for (const bool Owns : {true, false}) {
        TakeTrace();
        TQzObjectList List(Owns);
        TCounted* Counted = TCounted::Create();
        Ref<IInterface> Kept(Counted);
        List.Add(Counted);
        List.Remove(Counted);
        EXPECT_EQ(Counted->RefCount(), 1) << "another reference is left";
        List.Add(List.Add(Counted));
        Kept.Clear();
        List.Delete(1);
        EXPECT_EQ(Counted->RefCount(), 1);
        List.Extract(Counted);
        EXPECT_EQ(TakeTrace(), "freed ");
    }
}

TEST(QzMemoList, FindsAndRemovesMemosByCodeInAnyCase) {
    const TOwned<TQzMemoList> List(TQzMemoList::Create(nullptr));
    TQzMemoListItems &Items = *List->Items(), Others(nullptr);
    TStringList Text;
    Text.SetCommaText(u"one,two");
    Items.Add(u"Abc", &Text);
    for (const char16_t* Code : {u"b", u"c", u"d"})
        Items.Add(Code);
    EXPECT_EQ(Lines(*List->MemoByCode(u"aBC")), u"one|two|");
    Others.Assign(&Items);
    Items.Find(u"abc")->Memo()->Clear();
    EXPECT_EQ(Lines(*Others.Find(u"abc")->Memo()), u"one|two|");
    EXPECT_THROW(Text.Assign(&Items), EConvertError);
    EXPECT_EQ(Raised([&] { Items.Add(u"ABC"); }), "EListError: There already is a memo with code ABC!");
    Items.Remove(Others.Find(u"b"));
    Items.Remove(u"unknown");
    Items.Remove(u"C");
    Items.Remove(Items.Find(u"abc"));
    Items.Remove(1);
    ASSERT_EQ(Items.Count(), 1);
    EXPECT_EQ(Items.Code(0), u"b");
}

} // namespace
} // namespace qz

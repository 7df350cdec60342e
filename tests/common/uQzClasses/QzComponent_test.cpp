#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Trace.h"
#include <qz/common/uQzClasses/QzComponent.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

// Has a text and a number, of which changes are told to its bindings.
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

// A control whose value is its text.
class TEdit : public TComponent {
    QZ_CLASS(TEdit, TComponent)

public:
    const UnicodeString& GetText() const { return FText; }
    void SetText(const UnicodeString& AText) { FText = AText; }
    void Type(const UnicodeString& AText) {
        FText = AText;
        Observers().ControlValueModified();
    }
    UnicodeString GetControlValueMember() const override { return u"Text"; }

protected:
    explicit TEdit(TComponent* AOwner) : TComponent(AOwner) {}
    bool CanObserve(int AId) const override { return AId == TObservers::cControlValueId; }

private:
    UnicodeString FText;
};

constexpr TPropInfo cViewProps[] = {Property<&TView::GetTitle, &TView::SetTitle>(u"Title"),
                                    Property<&TView::GetWidth, &TView::SetWidth>(u"Width")};
constexpr TPropInfo cEditProps[] = {Property<&TEdit::GetText, &TEdit::SetText>(u"Text")};
constinit const TClassRec TView::ClassRec =
    DescribeComponent<TView>(u"TView", {.Unit = u"Test", .Properties = cViewProps});
constinit const TClassRec TEdit::ClassRec =
    DescribeComponent<TEdit>(u"TEdit", {.Unit = u"Test", .Properties = cEditProps});

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
    TOwned<TEdit> Edit{TEdit::Create(nullptr)};
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

TEST_F(QzBindings, ControlAndPropertyFollowEachOther) {
    First->SetTitle(u"shown");
    First->Bind(u"Title", Edit.get());
    EXPECT_EQ(Edit->GetText(), u"shown");
    Edit->Type(u"typed");
    EXPECT_EQ(First->GetTitle(), u"typed");
    First->SetTitle(u"set");
    EXPECT_EQ(Edit->GetText(), u"set");
    First->ClearBindings();
    Edit->Type(u"unheard");
    EXPECT_EQ(First->GetTitle(), u"set");
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

} // namespace
} // namespace qz

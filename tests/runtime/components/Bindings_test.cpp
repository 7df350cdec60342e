#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleTypes.h"
#include <qz/runtime/components/Bindings.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/components/LinkControlToProperty.h>
#include <qz/runtime/reflection/Properties.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/BasicTypes.h>
#include <qz/runtime/values/Currency.h>

namespace qz {
namespace {

struct TLarge {
    std::array<std::int64_t, 6> Items{};
    UnicodeString Text;
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TLarge);

namespace qz {
namespace {

// A model and a control in one: each setter tells the bindings and the observers of its value.
class TModel : public TComponent {
    QZ_CLASS(TModel, TComponent)

public:
    int Number() const { return FNumber; }
    void SetNumber(int AValue) { Change(FNumber, AValue, u"Number"); }
    const UnicodeString& Text() const { return FText; }
    void SetText(const UnicodeString& AValue) {
        Change(FText, AValue, u"Text");
        Observers().ControlValueUpdate();
    }
    double Float() const { return FFloat; }
    void SetFloat(double AValue) { Change(FFloat, AValue, u"Float"); }
    TModel* Child() const { return FChild; }
    void SetChild(TModel* AValue) { Change(FChild, AValue, u"Child"); }
    void Type(const UnicodeString& AText) {
        FText = AText;
        Observers().ControlValueModified();
    }
    UnicodeString GetControlValueMember() const override { return u"Text"; }

    TDay FDay = TDay::dyMon;
    bool FFlag = false;
    std::uint8_t FByte = 0;
    std::uint64_t FBig = 0;
    char16_t FChar = u' ';
    WideString FWide;
    TLarge FLarge;
    Currency FMoney;
    int FWrites = 0;

protected:
    explicit TModel(TComponent* AOwner) : TComponent(AOwner) {}
    bool CanObserve(int AId) const override { return AId == TObservers::cControlValueId; }

private:
    template <class T> void Change(T& AField, const T& AValue, std::u16string_view AName) {
        AField = AValue;
        ++FWrites;
        TBindings::Notify(this, AName);
    }

    int FNumber = 0;
    UnicodeString FText;
    double FFloat = 0;
    TModel* FChild = nullptr;
};

constexpr TPropInfo cModelProps[] = {
    Property<&TModel::Number, &TModel::SetNumber>(u"Number"),
    Property<&TModel::Text, &TModel::SetText>(u"Text"),
    Property<&TModel::Float, &TModel::SetFloat>(u"Float"),
    Property<&TModel::Child, &TModel::SetChild>(u"Child"),
    Property<&TModel::FDay, &TModel::FDay>(u"Day"),
    Property<&TModel::FFlag, &TModel::FFlag>(u"Flag"),
    Property<&TModel::FByte, &TModel::FByte>(u"Byte"),
    Property<&TModel::FBig, &TModel::FBig>(u"Big"),
    Property<&TModel::FChar, &TModel::FChar>(u"Char"),
    Property<&TModel::FWide, &TModel::FWide>(u"Wide"),
    Property<&TModel::FLarge, &TModel::FLarge>(u"Large"),
    Property<&TModel::FMoney, &TModel::FMoney>(u"Money"),
    ReadOnly<&TModel::FWrites>(u"Writes"),
};
constinit const TClassRec TModel::ClassRec =
    DescribeComponent<TModel>(u"TModel", {.Unit = u"Test", .Properties = cModelProps});

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

TEST_F(Bindings, LossyCycleEnds) {
    TBindingExpression* There = Bind(FA.get(), u"src.Float", FB.get(), u"dst.Number");
    TBindingExpression* Back = Bind(FB.get(), u"src.Number", FA.get(), u"dst.Float");
    FA->SetFloat(2.5);
    EXPECT_EQ(FB->Number(), 2);
    EXPECT_EQ(FA->Float(), 2);
    const int Writes = FB->FWrites;
    TBindings::Notify(FA.get(), u"Float");
    EXPECT_EQ(FB->FWrites, Writes); // the value is there already
    TBindings::RemoveBinding(There);
    TBindings::RemoveBinding(Back);
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
        Bind(FA.get(), u"src.Number", FB.get(), u"dst.Byte", {TBindings::coNotifyOutput});
    TBindingExpression* Second = Bind(FB.get(), u"src.Byte", C.get(), u"dst.Number");
    FA->SetNumber(200);
    EXPECT_EQ(C->Number(), 200);
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
    FB->FBig = 0xFFFFFFFFFFFFFFFF;
    FB->FMoney = Currency::FromUnits(9000000000000000001);
    FA->SetText(u"dytue");
    for (const auto& Case :
         Rows(u"A Text => B Day => dyTue", u"B Day => B Wide => dyTue", u"B Day => B Number => 1",
              u"B Day => B Flag => True", u"B Flag => A Text => True",
              u"B Big => A Text => 18446744073709551615", u"A Text => A Big => 18446744073709551615",

              u"B Money => B Text => 900000000000000.0001", u"B Text => A Money => 900000000000000.0001")) {
        TModel* From = Case[0][0] == u'A' ? FA.get() : FB.get();
        TModel* To = Case[1][0] == u'A' ? FA.get() : FB.get();
        Move(From, Case[0].c_str() + 2, To, Case[1].c_str() + 2);
        EXPECT_EQ(VarToStr(GetPropValue(*To, Case[1].View().substr(2))), Case[2])
            << Case[0] << " to " << Case[1];
    }
    FA->FBig = (1ull << 63) + 1025; // rounded once
    Move(FA.get(), u"Big", FA.get(), u"Float");
    EXPECT_EQ(FA->Float(), static_cast<double>(FA->FBig));
    FA->FMoney = Currency::FromUnits(9000000000000000002);
    Move(FB.get(), u"Money", FA.get(), u"Money"); // the same as a double
    EXPECT_EQ(FA->FMoney, FB->FMoney);
    FA->FLarge.Items[5] = 9;
    FA->FLarge.Text = u"large";
    Move(FA.get(), u"Large", FB.get(), u"Large");
    EXPECT_EQ(FB->FLarge.Text + IntToStr(FB->FLarge.Items[5]), "large9");
    for (const auto& Case : Rows(u"Text => Day => EConvertError", u"Text => Char => EConvertError",
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

constinit const TTypeInfo TTypeDescription<TLarge>::Info = DescribeRecord<TLarge>(u"TLarge", u"Test");

} // namespace qz

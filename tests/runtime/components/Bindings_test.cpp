#include <gtest/gtest.h>

#include "tests/runtime/SampleModel.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/components/LinkControlToProperty.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

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
              u"A Text => A Big => 18446744073709551615",

              u"B Price => B Text => 900000000000000.0001", u"B Text => A Price => 900000000000000.0001")) {
        TModel* From = Case[0][0] == u'A' ? FA.get() : FB.get();
        TModel* To = Case[1][0] == u'A' ? FA.get() : FB.get();
        Move(From, Case[0].c_str() + 2, To, Case[1].c_str() + 2);
        EXPECT_EQ(VarToStr(GetPropValue(*To, Case[1].View().substr(2))), Case[2])
            << Case[0] << " to " << Case[1];
    }
    TBindings::RemoveBinding(Bind(FA.get(), u"src", FB.get(), u"dst.Child", {TBindings::coEvaluate}));
    EXPECT_EQ(FB->Child(), FA.get());
    FA->FBig = (1ull << 63) + 1025; // rounded once
    Move(FA.get(), u"Big", FA.get(), u"Float");
    EXPECT_EQ(FA->Float(), static_cast<double>(FA->FBig));
    FA->FPrice = Currency::FromUnits(9000000000000000002);
    Move(FB.get(), u"Price", FA.get(), u"Price"); // the same as a double
    EXPECT_EQ(FA->FPrice, FB->FPrice);
    FA->FLarge.Items[5] = 9;
    FA->FLarge.Text = u"large";
    Move(FA.get(), u"Large", FB.get(), u"Large");
    EXPECT_EQ(FB->FLarge.Text + IntToStr(FB->FLarge.Items[5]), "large9");
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

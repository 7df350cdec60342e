// A component with a property of each kind, which tells the bindings and the observers of its values.
#pragma once

#include "tests/support/SampleTypes.h"
#include <qz/runtime/components/Bindings.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/reflection/Properties.h>

namespace qz {

struct TLarge {
    std::array<std::int64_t, 6> Items{};
    UnicodeString Text;
};

class TModel : public TComponent {
    QZ_CLASS(TModel, TComponent)

public:
    int Number() const { return FNumber; }
    void SetNumber(int AValue) { Change(FNumber, AValue, u"Number"); }
    const UnicodeString& Text() const {
        if (FText == u"bad")
            throw EInvalidOperation(u"no text");
        return FText;
    }
    void SetText(const UnicodeString& AValue) {
        Change(FText, AValue, u"Text");
        Observers().ControlValueUpdate();
    }
    double Float() const { return FFloat; }
    void SetFloat(double AValue) { Change(FFloat, AValue, u"Float"); }
    TModel* Child() const { return FChild; }
    void SetChild(TModel* AValue) { Change(FChild, AValue, u"Child"); }
    void SetSecret(std::int64_t AValue) { FWide = AValue; }
    void Type(const UnicodeString& AText) {
        FText = AText;
        Observers().ControlValueModified();
    }
    UnicodeString GetControlValueMember() const override { return u"Text"; }

    std::int8_t FSmall = -5;
    std::uint64_t FBig = UINT64_MAX;
    long long FWide = 1; // described by its width and sign
    char16_t FKey = u'K';
    TDay FDay = TDay::dyTue;
    bool FOn = true;
    TDays FDays = {TDay::dyMon, TDay::dyTue};
    TManyDays FMany = {TDay::dyTue};
    float FSingle = 0.5f;
    Currency FPrice = Currency(1.25);
    AnsiString FNarrow = AnsiString("narrow");
    Variant FAny = 3;
    TLarge FLarge;
    Ref<INamed> FLabel;
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

} // namespace qz

QZ_TYPE_INFO(qz::TLarge);

namespace qz {

inline constinit const TTypeInfo TInfo<TLarge>::Info = DescribeRecord<TLarge>(u"TLarge", u"Test");

constexpr TPropInfo WriteOnly() noexcept {
    TPropInfo Result = Property<&TModel::FWide, &TModel::SetSecret>(u"Secret");
    Result.Get = nullptr;
    return Result;
}

template <auto Member> constexpr TPropInfo Data(std::u16string_view AName) noexcept {
    return Property<Member, Member>(AName);
}

inline constexpr TPropInfo cModelProps[] = {
    Property<&TModel::Number, &TModel::SetNumber>(u"Number"),
    Property<&TModel::Text, &TModel::SetText>(u"Text"),
    Property<&TModel::Float, &TModel::SetFloat>(u"Float"),
    Property<&TModel::Child, &TModel::SetChild>(u"Child"),
    Data<&TModel::FSmall>(u"Small"),
    Data<&TModel::FBig>(u"Big"),
    Data<&TModel::FWide>(u"Wide"),
    Data<&TModel::FKey>(u"Key"),
    Data<&TModel::FDay>(u"Day"),
    Data<&TModel::FOn>(u"On"),
    Data<&TModel::FDays>(u"Days"),
    Data<&TModel::FMany>(u"Many"),
    Data<&TModel::FSingle>(u"Single"),
    Data<&TModel::FPrice>(u"Price"),
    Data<&TModel::FNarrow>(u"Narrow"),
    Data<&TModel::FAny>(u"Any"),
    Data<&TModel::FLarge>(u"Large"),
    Data<&TModel::FLabel>(u"Label"),
    ReadOnly<&TModel::FWrites>(u"Writes"),
    WriteOnly(),
};
inline constinit const TClassRec TModel::ClassRec =
    DescribeComponent<TModel>(u"TModel", {.Unit = u"Test", .Properties = cModelProps});

} // namespace qz

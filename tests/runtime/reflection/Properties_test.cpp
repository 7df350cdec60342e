#include <gtest/gtest.h>

#include "tests/runtime/SampleModel.h"
#include "tests/support/Message.h"
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

class TFineModel : public TModel {
    QZ_CLASS(TFineModel, TModel)

public:
    int FExtra = 1;
    double FWrites = 0.25;

protected:
    using TModel::TModel;
};
constexpr TPropInfo cFineProps[] = {Data<&TFineModel::FExtra>(u"Extra"),
                                    Data<&TFineModel::FWrites>(u"WRITES")};
constinit const TClassRec TFineModel::ClassRec =
    DescribeComponent<TFineModel>(u"TFineModel", {.Unit = u"Test", .Properties = cFineProps});

class Properties : public testing::Test {
protected:
    const TOwned<TModel> FOwner{TModel::Create(nullptr)};
    TModel& Pen = *FOwner;
    TFineModel& Fine = *TFineModel::Create(&Pen);
};

UnicodeString Names(TPropInfos AProps) {
    UnicodeString Result;
    for (const TPropInfo& Prop : AProps)
        Result += UnicodeString(Prop.Name) + u' ';
    return Result;
}

TEST_F(Properties, AreListedParentsFirstAndNewestDeclarationInTheOldPlace) {
    const UnicodeString Inherited = Names(GetPropInfos(ClassOf<TModel>()));
    EXPECT_TRUE(StartsStr(Names(GetPropInfos(ClassOf<TComponent>())), Inherited));
    EXPECT_EQ(Names(GetPropInfos(ClassOf<TFineModel>())),
              StringReplace(Inherited, u"Writes", u"WRITES") + u"Extra ");
    EXPECT_EQ(Names(GetPropInfos(TClass())), u"");
    EXPECT_EQ(PropType(Fine, u"writes"), tkFloat);
    EXPECT_EQ(PropType(Pen, u"writes"), tkInteger);
    EXPECT_TRUE(IsPublishedProp(Pen, u"DAY") && !IsPublishedProp(Pen, u"Extra"));
}

// Each property as a variant, with names preferred and without, after a value that is written and back.
TEST_F(Properties, TravelAsVariants) {
    const struct TRow {
        const char16_t *Name, *Strings, *Plain;
        TVarType PlainType;
        Variant Written;
        const char16_t* Read;
    } cRows[] = {
        {u"small", u"-5", u"-5", varShortInt, u"127", u"127"},
        {u"Big", u"18446744073709551615", u"18446744073709551615", varUInt64, u"18446744073709551613",
         u"18446744073709551613"},
        {u"Wide", u"1", u"1", varInt64, 2.5, u"2"},
        {u"Key", u"K", u"75", varInteger, u"ä", u"ä"},
        {u"Day", u"dyTue", u"1", varInteger, u"DYMON", u"dyMon"},
        {u"On", u"True", u"True", varBoolean, 0.5, u"True"},
        {u"Days", u"dyMon,dyTue", u"3", varInteger, u"[dyTue]", u"dyTue"},
        {u"Many", u"dyTue", u"2", varInteger, 1ull << 63, u"63"},
        {u"Single", u"0.5", u"0.5", varDouble, u"2.25", u"2.25"},
        {u"Price", u"1.25", u"1.25", varCurrency, 2.5, u"2.5"},
        {u"Narrow", u"narrow", u"narrow", varString, 17, u"17"},
        {u"Any", u"3", u"3", varInteger, u"three", u"three"},
    };
    for (const TRow& Row : cRows) {
        const TOwned<TModel> Owner(TModel::Create(nullptr));
        TModel& Model = *Owner;
        EXPECT_EQ(VarToStr(GetPropValue(Model, Row.Name)), Row.Strings) << ToUtf8(Row.Name);
        const Variant Plain = GetPropValue(Model, Row.Name, false);
        EXPECT_EQ(VarToStr(Plain), Row.Plain) << ToUtf8(Row.Name);
        EXPECT_EQ(VarType(Plain), Row.PlainType) << ToUtf8(Row.Name);
        SetPropValue(Model, Row.Name, Row.Written);
        EXPECT_EQ(VarToStr(GetPropValue(Model, Row.Name)), Row.Read) << ToUtf8(Row.Name);
    }
}

TEST_F(Properties, TravelByTheirKind) {
    SetOrdProp(Pen, u"Day", 0);
    EXPECT_EQ(GetOrdProp(Pen, u"Day"), 0);
    SetStrProp(Pen, "Narrow", u"text");
    EXPECT_EQ(GetStrProp(Pen, u"Narrow"), u"text");
    SetFloatProp(Pen, u"Single", 0.1);
    EXPECT_EQ(GetFloatProp(Pen, u"Single"), static_cast<double>(0.1f));
    SetObjectProp(Pen, u"Child", FOwner.get());
    EXPECT_EQ(GetObjectProp(Pen, u"Child"), FOwner.get());
    EXPECT_EQ(GetObjectProp(Pen, u"Child", ClassOf<TFineModel>()), nullptr);

    TNamed* Label = TNamed::Create();
    SetProp(Pen, u"Label", Ref<INamed>(Label));
    EXPECT_EQ(Label->RefCount(), 1);
    EXPECT_EQ(GetProp(Pen, u"Label").AsType<Ref<INamed>>(), Pen.FLabel);
    SetProp(Pen, *GetPropInfo(ClassOf<TModel>()->ClassInfo(), u"Small"), 100LL);
    EXPECT_EQ(GetProp(Pen, u"Small").TypeInfo(), TypeInfo<std::int8_t>());
    EXPECT_EQ(Pen.FSmall, 100);
}

TEST_F(Properties, RefuseWhatDoesNotFit) {
    TNamed* Label = TNamed::Create();
    const Ref<INamed> Holder = Label;
    EXPECT_EQ(Message([&] { GetProp(Pen, u"Nib"); }), u"Property Nib does not exist in TModel");
    EXPECT_EQ(Message([&] { SetOrdProp(Pen, u"Writes", 2); }), u"Property Writes is read-only");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Secret"); }), u"Property Secret cannot be read");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Large"); }), u"Invalid property type: TLarge");
    EXPECT_EQ(Message([&] { SetPropValue(Pen, u"Day", u"dyWed"); }), u"Invalid property element: dyWed");
    EXPECT_THROW(GetPropValue(Pen, u"Child"), EPropertyConvertError);
    EXPECT_THROW(SetPropValue(Pen, u"Label", 0), EPropertyConvertError);
    EXPECT_THROW(GetOrdProp(Pen, u"Text"), EPropertyConvertError);
    EXPECT_THROW(SetObjectProp(Pen, u"Child", Label), EInvalidCast);
    EXPECT_THROW(SetPropValue(Pen, u"Small", 128), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Big", -1), ERangeError);
    EXPECT_THROW(SetFloatProp(Pen, u"Single", 1e300), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"On", 2), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"Days", 256), ERangeError);
    EXPECT_EQ(Label->RefCount(), 1);
    Pen.SetText(u"bad");
    EXPECT_THROW(GetPropValue(Pen, u"Text"), EInvalidOperation);
}

} // namespace
} // namespace qz

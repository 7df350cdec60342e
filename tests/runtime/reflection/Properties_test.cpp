#include <qz/runtime/reflection/Properties.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/SampleTypes.h"
#include <qz/runtime/text/FormatSettings.h>

namespace qz {
namespace {

class TPen : public TObject {
    QZ_CLASS(TPen, TObject)

public:
    const UnicodeString& Title() const {
        if (FTitle == u"bad")
            throw EInvalidOperation(u"no title");
        return FTitle;
    }
    void SetTitle(const UnicodeString& AValue) { FTitle = AValue; }
    void SetSecret(std::int64_t AValue) { FWide = AValue; }

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
    TGUID FId;
    Ref<INamed> FLabel;
    UnicodeString FTitle = u"pen";
    TPen* FNext = nullptr;
};

class TFinePen : public TPen {
    QZ_CLASS(TFinePen, TPen)

public:
    int FExtra = 1;
    double FWidth = 0.25;
};

constexpr TPropInfo WriteOnly() noexcept {
    TPropInfo Result = Property<&TPen::FWide, &TPen::SetSecret>(u"Secret");
    Result.Get = nullptr;
    return Result;
}

template <auto Member> constexpr TPropInfo Data(std::u16string_view AName) noexcept {
    return Property<Member, Member>(AName);
}

constexpr TPropInfo cPenProps[] = {
    Data<&TPen::FSmall>(u"Small"),
    Data<&TPen::FBig>(u"Big"),
    Data<&TPen::FWide>(u"Wide"),
    ReadOnly<&TPen::FSmall>(u"Width"),
    Data<&TPen::FKey>(u"Key"),
    Data<&TPen::FDay>(u"Day"),
    Data<&TPen::FOn>(u"On"),
    Data<&TPen::FDays>(u"Days"),
    Data<&TPen::FMany>(u"Many"),
    Data<&TPen::FSingle>(u"Single"),
    Data<&TPen::FPrice>(u"Price"),
    Data<&TPen::FNarrow>(u"Narrow"),
    Data<&TPen::FAny>(u"Any"),
    Data<&TPen::FId>(u"Id"),
    Data<&TPen::FLabel>(u"Label"),
    WriteOnly(),
    Property<&TPen::Title, &TPen::SetTitle>(u"Title"),
    Data<&TPen::FNext>(u"Next"),
};
constexpr TPropInfo cFineProps[] = {Data<&TFinePen::FExtra>(u"Extra"), Data<&TFinePen::FWidth>(u"WIDTH")};

} // namespace

constinit const TClassRec TPen::ClassRec =
    DescribeClass<TPen>(u"TPen", {.Unit = u"Test", .Properties = cPenProps});
constinit const TClassRec TFinePen::ClassRec =
    DescribeClass<TFinePen>(u"TFinePen", {.Unit = u"Test", .Properties = cFineProps});

namespace {

UnicodeString Names(TPropInfos AProps) {
    UnicodeString Result;
    for (const TPropInfo& Prop : AProps)
        Result += UnicodeString(Prop.Name) + u' ';
    return Result;
}

TEST(Properties, AreListedParentsFirstAndNewestDeclarationInTheOldPlace) {
    EXPECT_EQ(Names(GetPropInfos(ClassOf<TFinePen>())),
              u"Small Big Wide WIDTH Key Day On Days Many Single Price Narrow Any Id Label Secret Title "
              u"Next Extra ");
    EXPECT_EQ(Names(GetPropInfos(TClass())), u"");
    EXPECT_EQ(PropType(TFinePen(), u"width"), tkFloat);
    EXPECT_EQ(PropType(TPen(), u"width"), tkInteger);
    EXPECT_TRUE(IsPublishedProp(TPen(), u"DAY") && !IsPublishedProp(TPen(), u"Extra"));
}

// Each property as a variant, with names preferred and without, after a value that is written and back.
TEST(Properties, TravelAsVariants) {
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
        TPen Pen;
        EXPECT_EQ(VarToStr(GetPropValue(Pen, Row.Name)), Row.Strings) << ToUtf8(Row.Name);
        const Variant Plain = GetPropValue(Pen, Row.Name, false);
        EXPECT_EQ(VarToStr(Plain), Row.Plain) << ToUtf8(Row.Name);
        EXPECT_EQ(VarType(Plain), Row.PlainType) << ToUtf8(Row.Name);
        SetPropValue(Pen, Row.Name, Row.Written);
        EXPECT_EQ(VarToStr(GetPropValue(Pen, Row.Name)), Row.Read) << ToUtf8(Row.Name);
    }
}

TEST(Properties, TravelByTheirKind) {
    TFinePen Pen;
    SetOrdProp(Pen, u"Day", 0);
    EXPECT_EQ(GetOrdProp(Pen, u"Day"), 0);
    SetStrProp(Pen, "Narrow", u"text");
    EXPECT_EQ(GetStrProp(Pen, u"Narrow"), u"text");
    SetFloatProp(Pen, u"Single", 0.1);
    EXPECT_EQ(GetFloatProp(Pen, u"Single"), static_cast<double>(0.1f));
    TPen Plain;
    SetObjectProp(Pen, u"Next", &Plain);
    EXPECT_EQ(GetObjectProp(Pen, u"Next"), &Plain);
    EXPECT_EQ(GetObjectProp(Pen, u"Next", ClassOf<TFinePen>()), nullptr);

    TNamed* Label = TNamed::Create();
    SetProp(Pen, u"Label", Ref<INamed>(Label));
    EXPECT_EQ(Label->RefCount(), 1);
    EXPECT_EQ(GetProp(Pen, u"Label").AsType<Ref<INamed>>(), Pen.FLabel);
    SetProp(Pen, *GetPropInfo(ClassOf<TPen>()->ClassInfo(), u"Small"), 100LL);
    EXPECT_EQ(GetProp(Pen, u"Small").TypeInfo(), TypeInfo<std::int8_t>());
    EXPECT_EQ(Pen.FSmall, 100);
}

TEST(Properties, RefuseWhatDoesNotFit) {
    TPen Pen;
    TNamed* Label = TNamed::Create();
    const Ref<INamed> Holder = Label;
    EXPECT_EQ(Message([&] { GetProp(Pen, u"Nib"); }), u"Property Nib does not exist");
    EXPECT_EQ(Message([&] { SetOrdProp(Pen, u"Width", 2); }), u"Property Width is read-only");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Secret"); }), u"Property Secret cannot be read");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Id"); }), u"Invalid property type: TGUID");
    EXPECT_EQ(Message([&] { SetPropValue(Pen, u"Day", u"dyWed"); }), u"Invalid property element: dyWed");
    EXPECT_THROW(GetPropValue(Pen, u"Next"), EPropertyConvertError);
    EXPECT_THROW(SetPropValue(Pen, u"Label", 0), EPropertyConvertError);
    EXPECT_THROW(GetOrdProp(Pen, u"Title"), EPropertyConvertError);
    EXPECT_THROW(GetStrProp(Pen, u"Day"), EPropertyConvertError);
    EXPECT_THROW(GetFloatProp(Pen, u"Wide"), EPropertyConvertError);
    EXPECT_THROW(GetObjectProp(Pen, u"Label"), EPropertyConvertError);
    EXPECT_THROW(SetObjectProp(Pen, u"Next", Label), EInvalidCast);
    EXPECT_THROW(SetPropValue(Pen, u"Small", 128), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Big", -1), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Price", 1e30), ERangeError);
    EXPECT_THROW(SetFloatProp(Pen, u"Single", 1e300), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"On", 2), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"Days", 256), ERangeError);
    EXPECT_EQ(Label->RefCount(), 1);
    Pen.FTitle = u"bad";
    EXPECT_THROW(GetPropValue(Pen, u"Title"), EInvalidOperation);
}

} // namespace
} // namespace qz

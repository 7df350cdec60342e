#include <qz/runtime/reflection/Properties.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {
namespace {

enum class TInk : std::uint8_t { ikRed, ikBlue };
using TInks = TSet<TInk, 8>;
using TManyInks = TSet<TInk, 64>;

class ILabel : public IInterface {
public:
    static constexpr TGUID IID = Guid("{5B1C6C1E-0E37-4C0B-8B0E-0A5B2D1F7701}");
};
class TLabel : public TInterfacedObject, public ILabel {
    QZ_CLASS(TLabel, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
};
constinit const TClassRec TLabel::ClassRec =
    DescribeClass<TLabel>(u"TLabel", {.Unit = u"Test", .Interfaces = Interfaces<TLabel, ILabel>()});

class TPen : public TObject {
    QZ_CLASS(TPen, TObject)

public:
    TPen* Next() const { return FNext; }
    void SetNext(TPen* AValue) { FNext = AValue; }
    const UnicodeString& Title() const {
        if (FTitle == u"bad")
            throw EInvalidOperation(u"no title");
        return FTitle;
    }
    void SetTitle(const UnicodeString& AValue) { FTitle = AValue; }
    std::int8_t Width() const { return 1; }
    void SetSecret(std::int64_t AValue) { FWide = AValue; }

    std::int8_t FSmall = -5;
    std::uint64_t FBig = UINT64_MAX;
    long long FWide = 1; // described by its width and sign
    char16_t FKey = u'K';
    char FMark = 'm';
    TInk FInk = TInk::ikBlue;
    bool FOn = true;
    TInks FInks = {TInk::ikRed, TInk::ikBlue};
    TManyInks FMany = {TInk::ikBlue};
    float FSingle = 0.5f;
    TDateTime FDay = 2.5;
    Currency FPrice = Currency(1.25);
    AnsiString FNarrow = AnsiString("narrow");
    Variant FAny = 3;
    TGUID FId;
    Ref<ILabel> FLabel;
    UnicodeString FTitle = u"pen";
    TPen* FNext = nullptr;
};

class TFinePen : public TPen {
    QZ_CLASS(TFinePen, TPen)

public:
    int FExtra = 1;
    double FWidth = 0.25;
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TInk);
QZ_TYPE_INFO(qz::TInks);
QZ_TYPE_INFO(qz::TManyInks);
QZ_TYPE_INFO(qz::ILabel);

namespace qz {

constexpr TEnumItem cInks[] = {{u"ikRed", 0}, {u"ikBlue", 1}};
constinit const TTypeInfo TTypeDescription<TInk>::Info = DescribeEnum<TInk>(u"TInk", u"Test", cInks);
constinit const TTypeInfo TTypeDescription<TInks>::Info = DescribeOf<TInks, TInk>(tkSet, u"TInks", u"Test");
constinit const TTypeInfo TTypeDescription<TManyInks>::Info =
    DescribeOf<TManyInks, TInk>(tkSet, u"TManyInks", u"Test");
constinit const TTypeInfo TTypeDescription<ILabel>::Info = DescribeInterface<ILabel>(u"ILabel", u"Test");

namespace {

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
    ReadOnly<&TPen::Width>(u"Width"),
    Data<&TPen::FKey>(u"Key"),
    Data<&TPen::FMark>(u"Mark"),
    Data<&TPen::FInk>(u"Ink"),
    Data<&TPen::FOn>(u"On"),
    Data<&TPen::FInks>(u"Inks"),
    Data<&TPen::FMany>(u"Many"),
    Data<&TPen::FSingle>(u"Single"),
    Data<&TPen::FDay>(u"Day"),
    Data<&TPen::FPrice>(u"Price"),
    Data<&TPen::FNarrow>(u"Narrow"),
    Data<&TPen::FAny>(u"Any"),
    Data<&TPen::FId>(u"Id"),
    Data<&TPen::FLabel>(u"Label"),
    WriteOnly(),
    Property<&TPen::Title, &TPen::SetTitle>(u"Title"),
    Property<&TPen::Next, &TPen::SetNext>(u"Next"),
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
    EXPECT_EQ(
        Names(GetPropInfos(ClassOf<TFinePen>())),
        u"Small Big Wide WIDTH Key Mark Ink On Inks Many Single Day Price Narrow Any Id Label Secret Title "
        u"Next Extra ");
    EXPECT_EQ(Names(GetPropInfos(ClassOf<TObject>())), u"");
    EXPECT_EQ(Names(GetPropInfos(TypeInfo<int>())), u"");
    EXPECT_EQ(Names(GetPropInfos(TClass())), u"");
    EXPECT_EQ(PropType(TFinePen(), u"width"), tkFloat);
    EXPECT_EQ(PropType(TPen(), u"width"), tkInteger);
    EXPECT_TRUE(IsPublishedProp(TPen(), u"INK") && !IsPublishedProp(TPen(), u"Extra"));
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
        {u"Big", u"18446744073709551615", u"18446744073709551615", varUInt64, UINT64_MAX - 1,
         u"18446744073709551614"},
        {u"Big", u"18446744073709551615", u"18446744073709551615", varUInt64, u"18446744073709551613",
         u"18446744073709551613"},
        {u"Wide", u"1", u"1", varInt64, 2.5, u"2"},
        {u"Wide", u"1", u"1", varInt64, true, u"-1"},
        {u"Key", u"K", u"75", varInteger, u"ä", u"ä"},
        {u"Mark", u"m", u"109", varInteger, 65, u"A"},
        {u"Mark", u"m", u"109", varInteger, u"ä", u"ä"},
        {u"Ink", u"ikBlue", u"1", varInteger, u"IKRED", u"ikRed"},
        {u"Ink", u"ikBlue", u"1", varInteger, 0, u"ikRed"},
        {u"On", u"True", u"True", varBoolean, false, u"False"},
        {u"On", u"True", u"True", varBoolean, u"false", u"False"},
        {u"On", u"True", u"True", varBoolean, 0.5, u"True"},
        {u"Inks", u"ikRed,ikBlue", u"3", varInteger, u"[ikBlue]", u"ikBlue"},
        {u"Inks", u"ikRed,ikBlue", u"3", varInteger, 1, u"ikRed"},
        {u"Many", u"ikBlue", u"2", varInteger, 1ull << 63, u"63"},
        {u"Many", u"ikBlue", u"2", varInteger, INT64_MIN, u"63"},
        {u"Single", u"0.5", u"0.5", varDouble, u"2.25", u"2.25"},
        {u"Day", u"2.5", u"2.5", varDouble, 3, u"3"},
        {u"Price", u"1.25", u"1.25", varCurrency, 2.5, u"2.5"},
        {u"Narrow", u"narrow", u"narrow", varString, 17, u"17"},
        {u"Any", u"3", u"3", varInteger, u"three", u"three"},
        {u"Title", u"pen", u"pen", varUString, true, u"True"},
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
    SetOrdProp(Pen, u"Ink", 0);
    SetOrdProp(Pen, u"Inks", 2);
    SetOrdProp(Pen, u"Big", -1);
    EXPECT_EQ(GetOrdProp(Pen, u"Ink"), 0);
    EXPECT_EQ(GetOrdProp(Pen, u"Inks"), 2);
    EXPECT_EQ(GetOrdProp(Pen, u"Small"), -5);
    SetStrProp(Pen, "Narrow", u"text");
    EXPECT_EQ(GetStrProp(Pen, u"Narrow"), u"text");
    SetFloatProp(Pen, u"Single", 0.1);
    EXPECT_EQ(GetFloatProp(Pen, u"Single"), static_cast<double>(0.1f));
    SetFloatProp(Pen, u"Price", 0.5);
    EXPECT_EQ(GetFloatProp(Pen, u"Price"), 0.5);
    TPen Plain;
    SetObjectProp(Pen, u"Next", &Plain);
    EXPECT_EQ(GetObjectProp(Pen, u"Next"), &Plain);
    EXPECT_EQ(GetObjectProp(Pen, u"Next", ClassOf<TFinePen>()), nullptr);
    SetObjectProp(Pen, u"Next", nullptr);
    EXPECT_EQ(GetObjectProp(Pen, u"Next", ClassOf<TPen>()), nullptr);

    TLabel* Label = TLabel::Create();
    SetProp(Pen, u"Label", Ref<ILabel>(Label));
    EXPECT_EQ(Label->RefCount(), 1);
    EXPECT_EQ(GetProp(Pen, u"Label").AsType<Ref<ILabel>>(), Pen.FLabel);
    SetProp(Pen, *GetPropInfo(ClassOf<TPen>()->ClassInfo(), u"Small"), 100LL);
    EXPECT_EQ(GetProp(Pen, u"Small").TypeInfo(), TypeInfo<std::int8_t>());
    EXPECT_EQ(Pen.FSmall, 100);
}

TEST(Properties, RefuseWhatDoesNotFit) {
    TPen Pen;
    TLabel* Label = TLabel::Create();
    const Ref<ILabel> Holder = Label;
    EXPECT_EQ(Message([&] { GetProp(Pen, u"Nib"); }), u"Property Nib does not exist");
    EXPECT_EQ(Message([&] { SetOrdProp(Pen, u"Width", 2); }), u"Property Width is read-only");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Secret"); }), u"Property Secret cannot be read");
    EXPECT_EQ(Message([&] { GetPropValue(Pen, u"Id"); }), u"Invalid property type: TGUID");
    EXPECT_EQ(Message([&] { SetPropValue(Pen, u"Ink", u"ikGreen"); }), u"Invalid property element: ikGreen");
    for (const char16_t* Name : {u"Next", u"Label"}) {
        EXPECT_THROW(GetPropValue(Pen, Name), EPropertyConvertError);
        EXPECT_THROW(SetPropValue(Pen, Name, 0), EPropertyConvertError);
    }
    EXPECT_THROW(GetOrdProp(Pen, u"Title"), EPropertyConvertError);
    EXPECT_THROW(GetStrProp(Pen, u"Ink"), EPropertyConvertError);
    EXPECT_THROW(GetFloatProp(Pen, u"Wide"), EPropertyConvertError);
    EXPECT_THROW(GetObjectProp(Pen, u"Label"), EPropertyConvertError);
    EXPECT_THROW(SetObjectProp(Pen, u"Next", Label), EInvalidCast);
    EXPECT_THROW(SetProp(Pen, u"Small", 128), EInvalidCast);
    EXPECT_THROW(SetStrProp(Pen, u"Key", u"two"), EInvalidCast);
    EXPECT_THROW(SetPropValue(Pen, u"Small", 128), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Big", -1), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Price", 1e30), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Single", 1e300), ERangeError);
    EXPECT_THROW(SetFloatProp(Pen, u"Single", 1e300), ERangeError);
    EXPECT_THROW(SetFloatProp(Pen, u"Price", 1e300), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"On", 2), ERangeError);
    EXPECT_THROW(SetOrdProp(Pen, u"Inks", 256), ERangeError);
    EXPECT_THROW(SetPropValue(Pen, u"Wide", u"x"), EVariantTypeCastError);
    EXPECT_EQ(Pen.FNext, nullptr);
    EXPECT_EQ(Label->RefCount(), 1);
    Pen.FTitle = u"bad";
    EXPECT_THROW(GetPropValue(Pen, u"Title"), EInvalidOperation);
}

} // namespace
} // namespace qz

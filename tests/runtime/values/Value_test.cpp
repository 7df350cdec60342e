#include <qz/runtime/values/Value.h>

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Message.h"
#include "tests/support/SampleTypes.h"
#include "tests/support/SampleVariants.h"
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/ArrayTypes.h>

namespace qz {
namespace {

using TNumbers = TIntegerDynArray;
using TQuad = std::array<std::int64_t, 4>;
using TEvent = std::function<void()>;

class IRound : public INamed {
public:
    static constexpr TGUID IID = Guid("{3C4E0F1A-8C0B-4F5E-9D11-52B6A7E0C102}");
};
class TCircle : public TInterfacedObject, public IRound, public IOther {
    QZ_CLASS(TCircle, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
public:
    UnicodeString Name() override { return u"circle"; }
};
constinit const TClassRec TCircle::ClassRec = DescribeClass<TCircle>(
    u"TCircle", {.Unit = u"Test", .Interfaces = Interfaces<TCircle, IRound, INamed, IOther>()});

// Tells of its copies, and refuses them on demand. Bytes makes it large or small.
inline bool GRefuse = false;
template <std::size_t Bytes> struct TNoted {
    TNoted() = default;
    TNoted(const TNoted& AOther) noexcept(Bytes <= 16) : Id(AOther.Id) {
        if constexpr (Bytes > 16) {
            if (GRefuse)
                throw EAbort(u"no copy");
        }
        Note("copied", Name());
    }
    TNoted(TNoted&& AOther) noexcept : Id(std::exchange(AOther.Id, '-')) {}
    TNoted& operator=(const TNoted&) = default;
    ~TNoted() {
        if (Id != '-')
            Note("freed", Name());
    }
    UnicodeString Name() const { return static_cast<char16_t>(Id); }
    char Id = 'a';
    char Room[Bytes - 1] = {};
};
using TSmallNoted = TNoted<8>;
using TLargeNoted = TNoted<40>;
struct alignas(64) TAligned { // a value also while what it holds is nothing
    const char* Get() const { return nullptr; }
    double X = 0;
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TQuad);
QZ_TYPE_INFO(qz::TEvent);
QZ_TYPE_INFO(qz::IRound);
QZ_TYPE_INFO(qz::TSmallNoted);
QZ_TYPE_INFO(qz::TLargeNoted);
QZ_TYPE_INFO(qz::TAligned);
QZ_TYPE_INFO(qz::ExceptionClass);

namespace qz {

constinit const TTypeInfo TInfo<TQuad>::Info = DescribeOf<TQuad, std::int64_t>(tkArray, u"TQuad", u"Test");
constinit const TTypeInfo TInfo<TEvent>::Info = DescribeType<TEvent>(tkMethod, u"TEvent", u"Test");
constinit const TTypeInfo TInfo<IRound>::Info = DescribeInterface<IRound, INamed>(u"IRound", u"Test");
constinit const TTypeInfo TInfo<TSmallNoted>::Info = DescribeRecord<TSmallNoted>(u"TSmallNoted", u"Test");
constinit const TTypeInfo TInfo<TLargeNoted>::Info = DescribeRecord<TLargeNoted>(u"TLargeNoted", u"Test");
constinit const TTypeInfo TInfo<TAligned>::Info = DescribeRecord<TAligned>(u"TAligned", u"Test");
constinit const TTypeInfo TInfo<ExceptionClass>::Info =
    DescribeOf<ExceptionClass, Exception>(tkClassRef, u"ExceptionClass", u"Test");

namespace {

class Value : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
    void TearDown() override { GRefuse = false; }
};

// What a reading gives, as text; "-" when it is refused.
template <class TRead> UnicodeString Got(const TRead& ARead) {
    try {
        return TValue(ARead()).ToString();
    } catch (const EInvalidCast&) {
        return u"-";
    }
}

UnicodeString Address(const char16_t* AName, const void* APointer) {
    return Format(u"(%s @ %s)", {AName, IntToHex(reinterpret_cast<std::uintptr_t>(APointer))});
}

TEST_F(Value, ReadsEachKindInEachWay) {
    TTraced Plain;
    const Ref<IRound> Round = TCircle::Create();
    const struct TRow {
        TValue Value;
        UnicodeString Text;                                              // ToString
        const char16_t *Integer, *Ordinal, *Extended, *String, *Variant; // AsInteger and so on
    } cRows[] = {
        {{}, u"(empty)", u"-", u"-", u"-", u"-", u""},
        {5, u"5", u"5", u"5", u"5", u"-", u"5"},
        {UINT64_MAX, u"18446744073709551615", u"-", u"-1", u"1.84467440737096E19", u"-",
         u"18446744073709551615"},
        {'A', u"A", u"-", u"65", u"-", u"A", u"A"},
        {true, u"True", u"-", u"1", u"-", u"-", u"True"},
        {TDay::dySun, u"dySun", u"-", u"6", u"-", u"-", u"6"},
        {TValue::FromOrdinal(TypeInfo<TDay>(), 3), u"3", u"-", u"3", u"-", u"-", u"3"},
        {TDays{TDay::dyMon, TDay::dySun}, u"[dyMon,dySun]", u"-", u"65", u"-", u"-", u"65"},
        {TManyDays::FromBits(1ull << 40), u"[40]", u"-", u"1099511627776", u"-", u"-", u"1099511627776"},
        {-2.25, u"-2.25", u"-", u"-", u"-2.25", u"-", u"-2.25"},
        {Currency(2.5), u"2.5", u"-", u"-", u"2.5", u"-", u"2.5"},
        {"täxt", u"täxt", u"-", u"-", u"-", u"täxt", u"täxt"},
        {&Plain, Address(u"TTraced", &Plain), u"-", u"-", u"-", u"-", u"-"},
        {Round, Address(u"IRound", Round.Get()), u"-", u"-", u"-", u"-", u"(interface)"},
        {ClassOf<TTraced>(), u"TTraced", u"-", u"-", u"-", u"-", u"-"},
        {TGUID(), u"(record)", u"-", u"-", u"-", u"-", u"-"},
    };
    for (const TRow& Row : cRows) {
        const TValue& V = Row.Value;
        EXPECT_EQ(V.ToString(), Row.Text);
        EXPECT_EQ(Got([&] { return V.AsInteger(); }), Row.Integer) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsOrdinal(); }), Row.Ordinal) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsExtended(); }), Row.Extended) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsString(); }), Row.String) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsVariant(); }), Row.Variant) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsBoolean(); }), V.IsType<bool>() ? u"True" : u"-") << Row.Text;
        // An integer is read as 64 bits where it is an ordinal; no value is a null reference.
        const bool IsInteger = V.Kind() == tkInteger || V.Kind() == tkInt64;
        EXPECT_EQ(Got([&] { return V.AsInt64(); }), IsInteger ? Row.Ordinal : u"-") << Row.Text;
        const auto Readable = [&](TTypeKind AKind) { return V.Kind() == AKind || V.Kind() == tkUnknown; };
        EXPECT_EQ(Got([&] { return V.AsObject(); }) != u"-", Readable(tkClass)) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsInterface() == nullptr; }) != u"-", Readable(tkInterface)) << Row.Text;
        EXPECT_EQ(Got([&] { return V.AsClass(); }) != u"-", Readable(tkClassRef)) << Row.Text;
    }
}

TEST_F(Value, CastsWhereNothingIsLost) {
    TTraced Plain;
    const Ref<IRound> Round = TCircle::Create();
    TObject* Object = dynamic_cast<TCircle*>(Round.Get());
    const TValue cAsObject = TValue::Make(&Object, TypeInfo<TObject>());
    const TObject* cNull = nullptr;
    const TValue cNullObject = TValue::Make(&cNull, TypeInfo<TObject>());
    constexpr double cTwo63 = 9223372036854775808.0;
    RawByteString Unreadable("x");
    Unreadable.RelabelCodePage(60001);
    const auto CheckOne = [](const TValue& AFrom, PTypeInfo ATo, const UnicodeString& AText) {
        const UnicodeString Name =
            AFrom.ToString() + u" to " + UnicodeString(ATo == nullptr ? u"nothing" : ATo->Name);
        EXPECT_EQ(Got([&] { return AFrom.Cast(ATo); }), AText) << Name;
        TValue Result = u"as before";
        EXPECT_EQ(AFrom.TryCast(ATo, Result), AText != u"-") << Name;
        EXPECT_EQ(Result.TypeInfo(), AText == u"-" ? TypeInfo<UnicodeString>() : ATo) << Name;
    };
    // The type, then values, each with the text of the result; "-" when there is none.
    const auto Check = [&](PTypeInfo ATo, const auto&... ACases) {
        const TValue Cases[] = {TValue(ACases)...};
        for (std::size_t I = 0; I < std::size(Cases); I += 2)
            CheckOne(Cases[I], ATo, Cases[I + 1].AsString());
    };
    Check(TypeInfo<std::uint8_t>(), 255, u"255", 256, u"-");
    Check(TypeInfo<std::uint64_t>(), -1, u"-");
    Check(TypeInfo<std::int64_t>(), UINT64_MAX, u"-");
    Check(TypeInfo<double>(), UINT64_MAX, u"-", 1ull << 63, FloatToStr(cTwo63), INT64_MAX, u"-", 16777217,
          u"16777217", TDateTime(1.5), u"1.5", Currency(0.1), u"0.1",
          Currency::FromUnits(9000000000000000001), u"-");
    Check(TypeInfo<float>(), INT64_MIN, FloatToStr(-cTwo63), 16777217, u"-", 0.1, u"-", 0.5, u"0.5", 1e300,
          u"-", std::nan(""), u"NAN", -INFINITY, u"-INF");
    Check(TypeInfo<Currency>(), 2.5, u"2.5", 0.00001, u"-", std::nan(""), u"-");
    Check(TypeInfo<int>(), 2.0, u"-", 'A', u"-", u"5", u"-", Variant(5), u"-", TValue(), u"-");
    Check(TypeInfo<char>(), u"ö", u"ö", u"Ж", u"-", Unreadable, u"-");
    Check(TypeInfo<UnicodeString>(), '\xE4', u"ä", Unreadable, u"-", 'x', u"x");
    Check(TypeInfo<Variant>(), Unreadable, u"-", TDay::dySun, u"6", TValue(), u"");
    Check(TypeInfo<TCircle>(), &Plain, u"-", cAsObject, Address(u"TCircle", Object), Round, u"-");
    Check(TypeInfo<INamed>(), cAsObject, Address(u"INamed", static_cast<INamed*>(Round.Get())), &Plain, u"-",
          cNullObject, u"(INamed @ 0000000000000000)", Round, Address(u"INamed", Round.Get()));
    Check(TypeInfo<IOther>(), Round, Address(u"IOther", As<IOther>(Round).Get()));
    Check(TypeInfo<IRound>(), As<IOther>(Round), Address(u"IRound", Round.Get()));
    Check(TypeInfo<ExceptionClass>(), ClassOf<EAbort>(), u"EAbort", ClassOf<TTraced>(), u"-");
    Check(TypeInfo<TClass>(), ExceptionClass::Of<EAbort>(), u"EAbort");
    EXPECT_EQ(Message([] { TValue(300).AsType<std::uint8_t>(); }),
              u"A value of type Integer cannot be taken as Byte");
}

TEST_F(Value, GivesTypedValues) {
    UnicodeString Wide = u"before";
    int Number = 7;
    EXPECT_TRUE(TValue(u"text").TryAsType(Wide));
    EXPECT_FALSE(TValue(Wide).TryAsType(Number));
    EXPECT_EQ(Wide + IntToStr(Number), u"text7");
    EXPECT_EQ(TValue().AsType<TTraced*>(), nullptr);
    {
        const TValue Named = Ref<INamed>(TBoth::Create(u"x"));
        EXPECT_EQ(As<INamed>(Named.AsType<Ref<IOther>>()).Get(), Named.AsInterface());
        EXPECT_EQ(TakeTrace(), u"");
    }
    EXPECT_EQ(TakeTrace(), u"freed(x) ");
    const TValue Nested = TValue::From(TValue(5));
    EXPECT_EQ(Nested.AsType<TValue>().AsInteger(), 5);
    EXPECT_THROW(TValue(5).AsType<TValue>(), EInvalidCast);
}

TEST_F(Value, TellsWhatIsEmpty) {
    const auto Check = [](bool AExpected, const auto&... AValues) {
        for (const TValue& Each : {TValue(AValues)...})
            EXPECT_EQ(Each.IsEmpty(), AExpected) << Each.ToString();
    };
    Check(true, TValue(), TNumbers(), TEvent(), TClass(), Ref<INamed>(), static_cast<TObject*>(nullptr),
          ExceptionClass());
    Check(false, 0, u"", Variant(), TNumbers{0}, TEvent([] {}), ClassOf<TTraced>(), TGUID(), TAligned(),
          TDays(), static_cast<void*>(&GRefuse));
}

TEST_F(Value, KnowsItsType) {
    TTraced Plain;
    const TValue AsObject = static_cast<TObject*>(&Plain);
    EXPECT_TRUE(AsObject.IsType<TObject*>() && AsObject.IsType<TTraced*>() && !AsObject.IsType<TCircle*>());
    EXPECT_TRUE(TValue(static_cast<TTraced*>(nullptr)).IsType<TObject*>());
    const TValue Round = Ref<IRound>();
    EXPECT_TRUE(Round.IsType<INamed>() && !Round.IsType<IOther>());
    EXPECT_TRUE(TValue(5).IsType<int>() && !TValue(5).IsType<std::int64_t>() && !TValue().IsType(nullptr));
}

TEST_F(Value, SharesLargeValuesAndMovesSmallOnes) {
    {
        const TSmallNoted Small;
        TValue First = Small;
        EXPECT_EQ(TakeTrace(), u"copied(a) ");
        TValue Moved = std::move(First);
        EXPECT_EQ(First.Kind(), tkUnknown);
        TValue Copied = Moved;
        EXPECT_EQ(TakeTrace(), u"copied(a) ");
        Copied = 5;
        EXPECT_EQ(TakeTrace(), u"freed(a) ");
        Moved = std::move(*&Moved);
        EXPECT_TRUE(Moved.IsType<TSmallNoted>());
    }
    EXPECT_EQ(TakeTrace(), u"freed(a) freed(a) "); // the value, the variable
    {
        TValue First = TLargeNoted();
        const TValue Second = First;
        EXPECT_EQ(First.GetReferenceToRawData(), Second.GetReferenceToRawData());
        First = {};
        EXPECT_EQ(TakeTrace(), u"");
        EXPECT_EQ(Second.AsType<TLargeNoted>().Id, 'a');
        EXPECT_EQ(TakeTrace(), u"copied(a) freed(a) ");
    }
    EXPECT_EQ(TakeTrace(), u"freed(a) ");
    static_assert(std::is_nothrow_copy_constructible_v<TValue> && std::is_nothrow_copy_assignable_v<TValue>);
    const TValue Aligned = TAligned{2.5};
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(Aligned.GetReferenceToRawData()) % alignof(TAligned), 0u);
    EXPECT_EQ(Aligned.AsType<TAligned>().X, 2.5);
}

TEST_F(Value, ARefusedCopyLeavesTheOldValue) {
    const TLargeNoted Large;
    TValue Target = u"old";
    GRefuse = true;
    EXPECT_THROW(Target = Large, EAbort);
    EXPECT_THROW(TValue::Make(&Large, TypeInfo<TLargeNoted>()), EAbort);
    EXPECT_EQ(Target.AsString(), u"old");
    EXPECT_EQ(TakeTrace(), u"");
}

TEST_F(Value, MakesValuesFromRawData) {
    EXPECT_EQ(TValue::Make(nullptr, TypeInfo<double>()).AsExtended(), 0.0);
    const std::uint8_t Byte = 6;
    EXPECT_EQ(TValue::Make(&Byte, TypeInfo<TDay>()).ToString(), u"dySun");
    // Also a set of one byte is read as 32 bits.
    std::uint32_t Bits;
    const TValue Days = TDays{TDay::dyTue};
    std::memcpy(&Bits, Days.GetReferenceToRawData(), sizeof Bits);
    EXPECT_EQ(Bits, 2u);
    EXPECT_EQ(Days.GetDataSize(), 1u);
    EXPECT_EQ(TValue::FromOrdinal(TypeInfo<std::uint64_t>(), -1).ToString(), u"18446744073709551615");
    EXPECT_THROW(TValue::FromOrdinal(TypeInfo<std::int8_t>(), 128), ERangeError);
    EXPECT_THROW(TValue::FromOrdinal(TypeInfo<TDays>(), 256), ERangeError);
    EXPECT_THROW(TValue::FromOrdinal(TypeInfo<double>(), 1), EInvalidCast);
}

TEST_F(Value, AVariantKeepsItsTypeOnTheWayThroughAValue) {
    TTraced Plain;
    std::vector<Variant> Variants = SampleVariants();
    Variants.insert(Variants.end(), {Variant(), Variant::Null(), Ref<IInterface>(TNamed::Create())});
    for (const Variant& Each : Variants) {
        const Variant Back = TValue::FromVariant(Each).AsVariant();
        EXPECT_EQ(VarType(Back), VarType(Each));
        EXPECT_TRUE(Back == Each) << VarType(Each);
    }
    EXPECT_EQ(TValue::FromVariant(Variant(std::uint16_t{5})).TypeInfo(), TypeInfo<std::uint16_t>());
    EXPECT_EQ(TValue::FromVariant(Variant(&Plain)).AsObject(), &Plain);
}

TEST_F(Value, ReachesTheElementsOfArrays) {
    const TNumbers Numbers = {1, 2, 3};
    TValue Dynamic = Numbers;
    EXPECT_EQ(Dynamic.GetArrayLength(), 3u);
    Dynamic.SetArrayElement(2, 7LL); // cast to the type of the elements
    EXPECT_EQ(Numbers[2], 7);
    EXPECT_EQ(Dynamic.GetArrayElement(2).TypeInfo(), TypeInfo<int>());
    EXPECT_THROW(Dynamic.SetArrayElement(0, u"text"), EInvalidCast);
    EXPECT_THROW(Dynamic.GetArrayElement(3), EArgumentOutOfRangeException);
    EXPECT_THROW(TValue(5).GetArrayLength(), EInvalidCast);
    TValue Fixed = TQuad{1, 2, 3, 4};
    const TValue Copy = Fixed;
    Fixed.SetArrayElement(0, 9);
    EXPECT_EQ(Fixed.GetArrayElement(0).AsInt64() * 10 + Copy.GetArrayElement(0).AsInt64(), 91);
}

} // namespace
} // namespace qz

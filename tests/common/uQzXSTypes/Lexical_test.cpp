// Texts, variants, bytes and descriptions of value records.
#include <cstring>

#include <gtest/gtest.h>
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/common/uQzXSTypes.h>
#include <qz/runtime/streams/Streams.h>
#include <qz/runtime/text/FormatSettings.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"

namespace qz {
namespace {

// The text of what was read: input => ToString => ToVariant.
template <class R> void ExpectTexts(const std::vector<std::vector<UnicodeString>>& ARows) {
    for (const auto& Row : ARows) {
        R X = {};
        const UnicodeString Error = Raised([&] { X.FromString(Row[0]); });
        EXPECT_EQ(Error == u"nothing" ? X.ToString() : Error, Row[1]) << Row[0];
        EXPECT_EQ(VarType(X.ToVariant()) == varNull ? u"Null" : VarToStr(X.ToVariant()), Row[2]) << Row[0];
        EXPECT_EQ(Variant(X), X.ToVariant());
    }
}

TEST(XsLexical, TextsOfNumbersAndBooleans) {
    ExpectTexts<TXsBoolean>(Rows(u"true => true => True", u"T => true => True", u"1 => true => True",
                                 u"yes => false => False", u"0 => false => False", u" => false => Null"));
    ExpectTexts<TXsInteger<std::int32_t>>(
        Rows(u"12 => 12 => 12", u" => NaN => Null", u"-2147483648 => -2147483648 => -2147483648",
             u"x => EConvertError: 'x' is not a valid integer value => Null"));
    ExpectTexts<TXsInteger<std::int64_t>>(
        Rows(u"5000000000 => EConvertError: '5000000000' is not a valid integer value => Null"));
    ExpectTexts<TXsInteger<std::uint8_t>>(Rows(u"260 => 4 => 4", u"-1 => 255 => 255"));
    TFormatSettings Comma = TFormatSettings::Neutral();
    Comma.DecimalSeparator = u',';
    const TFormatSettings Before = DefaultFormatSettings();
    SetDefaultFormatSettings(Comma);
    ExpectTexts<TXsRational<double>>(
        Rows(u"1.5 => 1.5 => 1,5", u" => NaN => Null", u"-2E-7 => -2E-7 => -2E-7"));
    ExpectTexts<TXsRational<Extended>>(
        Rows(u"1,5 => EConvertError: '1,5' is not a valid floating point value => Null"));
    SetDefaultFormatSettings(Before);
    EXPECT_EQ(TXsInteger<std::uint64_t>(~0ULL).ToString(), u"18446744073709551615");
    EXPECT_EQ(VarToStr(TXsString(u"ab").ToVariant()), u"ab");
    const TXsString Null;
    EXPECT_TRUE((Null + u"a").IsNull() && (TXsString(u"a") + Null).IsNull() && Null != u"" && !(Null == u""));
    EXPECT_TRUE(VarType(Null.ToVariant()) == varNull && u"a" + Null == u"a");
}

// FValue holds the text of RFC 4648.
template <class E> void ExpectEncoded(std::string_view AText) {
    TMemoryStream Source, Target;
    Source.WriteBuffer("-\0\xFF"
                       "foobar",
                       9);
    Source.SetPosition(3);
    TXsBinaryString<E> X;
    X.SaveBinaryData(Target);
    EXPECT_EQ(Target.GetSize(), 0);
    X.LoadBinaryData(Source);
    EXPECT_EQ(X.FValue.View(), AText);
    X.SaveBinaryData(Target);
    ASSERT_EQ(Target.GetSize(), 6);
    EXPECT_EQ(std::memcmp(Target.Memory(), "foobar", 6), 0);
    EXPECT_EQ(VarType(X.ToVariant()), varString);
    EXPECT_EQ((X + RawByteString("00")).FValue.View(), std::string(AText) + "00");
    EXPECT_TRUE((TXsBinaryString<E>() + X).IsNull());
    Source.SetPosition(9);
    X.LoadBinaryData(Source);
    EXPECT_TRUE(!X.IsNull() && X.FValue.IsEmpty());
}

TEST(XsLexical, BytesAsText) {
    ExpectEncoded<TXsBinaryStringB64Encoding>("Zm9vYmFy");
    ExpectEncoded<TXsBinaryStringHexEncoding>("666F6F626172");
}

// Zero bytes are a null record: a reader of fields sees what the record holds.
template <class R> void ExpectZeroIsNull() {
    alignas(R) const std::byte Zeros[sizeof(R)]{};
    EXPECT_TRUE(reinterpret_cast<const R*>(Zeros)->IsNull());
    const R X(typename R::TXsValue{});
    const PTypeInfo Info = TypeInfo<R>();
    for (const TFieldInfo& Field : Info->Fields)
        if (Field.Name == u"FHasValue") {
            const void* Place = reinterpret_cast<const std::byte*>(&X) + Field.Offset();
            EXPECT_EQ(*static_cast<const UnicodeString*>(Place), u"1");
            EXPECT_EQ(static_cast<const UnicodeString*>(Place)->RefCount(), -1); // never counted
        }
    EXPECT_EQ(TValue(X).AsType<R>(), X);
    EXPECT_EQ(Info->Kind, tkRecord);
    EXPECT_EQ(R::GetTypeInfo(), TypeInfo<typename R::TXsValue>());
    EXPECT_TRUE(R::GetNull().IsNull());
}

TEST(XsLexical, RecordsAreDescribed) {
    ExpectZeroIsNull<TXsBoolean>();
    ExpectZeroIsNull<TXsString>();
    ExpectZeroIsNull<TXsInteger<std::int8_t>>();
    ExpectZeroIsNull<TXsRational<Extended>>();
    ExpectZeroIsNull<TXsBinaryString<TXsBinaryStringHexEncoding>>();
    EXPECT_EQ(TXsString::GetTypeKind(), tkString);
    EXPECT_EQ(TXsInteger<std::int64_t>::GetTypeKind(), tkInt64);
    EXPECT_EQ(TypeInfo<TXsIntegerRestrictions<std::uint8_t>>()->Fields[3].FieldType()->QualifiedName(),
              u"uQzXSTypes.TXsAnySimpleType<System.Byte>");
}

TEST(XsLexical, TheRegistryKnowsTheRecords) {
    const TQzTypeInfo* const Long = TQzTypes::GetTypeInfo(TypeInfo<TXsInteger<std::int64_t>>());
    EXPECT_EQ(Long->SchemaName(u"xs"), u"xs:long");
    EXPECT_EQ(Long->VarType(), varInt64);
    const TQzTypeInfo* const Hex =
        TQzTypes::GetTypeInfo(TypeInfo<TXsBinaryString<TXsBinaryStringHexEncoding>>());
    EXPECT_EQ(Hex->SchemaName(u""), u"hexBinary");
    EXPECT_EQ(Hex->TypeKind(), rtkAString);
}

} // namespace
} // namespace qz

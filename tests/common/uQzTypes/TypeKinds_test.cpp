#include <map>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/common/uQzTypes/NamedTypes.h>
#include <qz/common/uQzTypes/QzTypes.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

// Names that are spelt unlike their neighbours, and codes that a reader would not guess.
TEST(QzTypes, SchemaTypesOfKindsAndCodes) {
    struct TCase {
        UnicodeString Name;
        TQzSchemaDataType Type;
    };
    TQzSchemaDataType Type = xsdDuration;
    const auto OfKind = [&Type](TQzTypeKind AKind) {
        return TCase{TQzTypes::ToSchemaType(AKind, &Type), Type};
    };
    const auto OfCode = [&Type](TVarType ACode) { return TCase{TQzTypes::ToSchemaType(ACode, &Type), Type}; };
    const std::pair<TCase, TCase> Cases[] = {
        {{u"decmimal", xsdDecimal}, OfKind(rtkExtended)},
        {{u"base64Binary", xsdBase64Binary}, OfKind(rtkAString)},
        {{u"any", xsdComplexType}, OfKind(rtkSet)},
        {{u"dateTime", xsdDateTime}, OfKind(rtkDatetime)},
        {{u"byte", xsdByte}, OfCode(varByte)},
        {{u"double", xsdDouble}, OfCode(varCurrency)},
        {{u"any", xsdComplexType}, OfCode(varObject)},
        {{u"ArrayOfInt", xsdArrayOfSimpleType}, OfCode(varArray + 3)},
        {{u"ArrayOfString", xsdArrayOfSimpleType}, OfCode(varArray + 8)},
        {{u"ArrayOfAny", xsdArrayOfSimpleType}, OfCode(varArray + 36)},
        {{u"ArrayOfUnsignedLong", xsdArrayOfSimpleType}, OfCode(varArray + 21)},
        {{u"string", xsdString}, {TQzTypes::VarSchemaType(u"x", &Type), Type}},
    };
    for (const auto& [Expected, Actual] : Cases) {
        EXPECT_EQ(Expected.Name, Actual.Name);
        EXPECT_EQ(Expected.Type, Actual.Type) << Expected.Name;
    }
    EXPECT_EQ(u"ArrayOfInt", TQzTypes::ToSchemaType(varArray + 3));
    EXPECT_EQ(u"int", TQzTypes::ToSchemaType(rtkLongInt, nullptr));
}

TEST(QzTypes, RefusesWhatHasNoCounterpart) {
    TQzSchemaDataType Type = xsdDuration;
    const std::pair<int, int> Codes[] = {
        {0, 0},   {9, 9},     {10, 10}, {12, 12},   {13, 13},      {14, 14},          {15, 15},
        {72, 72}, {273, 273}, {22, 22}, {274, 274}, {8192 + 9, 9}, {8192 + 274, 274}, {16384 + 3, 16387}};
    for (const auto& [Code, Shown] : Codes)
        EXPECT_EQ(
            u"The given TVarType \"" + IntToStr(Shown) + u"\" could not be converted to a valid SchemaType!",
            Message([&, Number = Code] { TQzTypes::ToSchemaType(static_cast<TVarType>(Number), &Type); }));
    EXPECT_EQ(xsdDuration, Type);
    for (const TQzTypeKind Kind : {rtkRecord, rtkPointer, rtkMethod, rtkProcedure, rtkException, rtkClassRef})
        EXPECT_EQ(u"The given datatype cannot be converted to a Variant Type!",
                  Message([&] { TQzTypes::ToVarType(Kind); }));
    EXPECT_EQ(u"The type 22 cannot be converted to a TQzTypeKind!",
              Message([] { TQzTypes::ToTypeKind(static_cast<TTypeKind>(22)); }));
    EXPECT_THROW(TQzTypes::ToMainTypeKind(static_cast<TTypeKind>(255)), EAssertionFailed);
    EXPECT_EQ(u"The format yaml is not supported!!", Message([] { GetDataSerializationFormat(u"yaml"); }));
    EXPECT_EQ(XML, GetDataSerializationFormat(u"xml"));
    EXPECT_EQ(CUSTOM2, GetDataSerializationFormat(u"Custom2"));
}

// A kind keeps its main kind on the way over the code of its variants, with the exceptions that are listed.
TEST(QzTypes, KindsAndCodesAgree) {
    for (int I = 0; I <= static_cast<int>(rtkVariant); ++I) {
        const auto Kind = static_cast<TQzTypeKind>(I);
        const TQzMainTypeKind Expected = Kind == rtkSet ? mtkDateTime
            : Kind == rtkVariant                        ? mtkUnknown
                                                        : TQzTypes::ToMainTypeKind(Kind);
        EXPECT_EQ(Expected, TQzTypes::ToMainTypeKind(TQzTypes::ToVarType(Kind))) << I;
    }
    // Both ways from a code to the main kind, which disagree where the fine kind is coarser or finer.
    const std::map<int, TQzMainTypeKind> Disagree = {{12, mtkOther}, {257, mtkOther}, {273, mtkUnknown}};
    for (int Code = 0; Code <= 0xFFFF; ++Code) {
        const auto Type = static_cast<TVarType>(Code);
        const auto Found = Disagree.find(Code);
        ASSERT_EQ(Found != Disagree.end() ? Found->second : TQzTypes::ToMainTypeKind(Type),
                  TQzTypes::ToMainTypeKind(TQzTypes::ToTypeKind(Type)))
            << Code;
    }
    EXPECT_EQ(mtkArray, TQzTypes::VarMainTypeKind(VarArrayOf({1})));
    EXPECT_EQ(rtkDynArray, TQzTypes::VarTypeKind(VarArrayOf({1})));
    EXPECT_EQ(rtkWString, TQzTypes::VarTypeKind(u"x"));
    static_assert(TQzTypes::ToMainTypeKind(12) == mtkUnknown && TQzTypes::ToTypeKind(12) == rtkVariant);
    static_assert(TQzTypes::ToVarType(tkFloat) == varCurrency &&
                  TQzTypes::ToVarType(tkUString) == varUString);
    static_assert(TQzTypes::IsSimpleTypeKind(tkVariant) && !TQzTypes::IsSimpleTypeKind(tkRecord));
    static_assert(TQzTypes::IsSimpleTypeKind(rtkVariant) && !TQzTypes::IsSimpleTypeKind(mtkOther));
}

TEST(QzTypes, SubRangesHoldTheirBounds) {
    TQzSimpleTypeKind Kind;
    EXPECT_EQ(rtkByte, Kind);
    Kind = rtkVariant;
    EXPECT_EQ(u"The value 25 is not in the range 1 to 24", Message([&] { Kind = rtkArray; }));
    EXPECT_EQ(rtkVariant, Kind);
    static_assert(TQzSchemaSimplexType::cCount == 19 && TQzSchemaIntegerType::cCount == 8 &&
                  TQzSchemaDateTimeType::cCount == 3 && TQzOtherTypeKind::cCount == 6 &&
                  TQzVariantTypeKind::cHigh == rtkInterface && TQzJSONSimpleDataType::cCount == 4);
}

TEST(QzTypes, TextTypesAreTypesOfTheirOwn) {
    EXPECT_EQ(tkUString, TypeInfo<QzXMLString>()->Kind);
    EXPECT_NE(TypeInfo<QzXMLString>(), TypeInfo<QzJSONString>());
    EXPECT_EQ(u"uQzTypes.QzJSONString", TypeInfo<QzJSONString>()->QualifiedName());
    EXPECT_EQ(TypeInfo<Variant>(), TypeInfo<TVariantDynArray>()->ElementType());
    EXPECT_EQ(u"rtkClassRef", UnicodeString(TypeInfo<TQzTypeKind>()->Items.back().Name));
}

} // namespace
} // namespace qz

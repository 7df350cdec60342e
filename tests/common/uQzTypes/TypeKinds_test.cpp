#include <map>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

// Names that are spelt unlike their neighbours, and codes that a reader would not guess.
TEST(QzTypes, SchemaTypesOfKindsAndCodes) {
    TQzSchemaDataType Type = xsdDuration;
    const std::tuple<TVarType, UnicodeString, TQzSchemaDataType> Codes[] = {
        {varByte, u"byte", xsdByte},
        {varCurrency, u"double", xsdDouble},
        {varObject, u"any", xsdComplexType},
        {varArray + 3, u"ArrayOfInt", xsdArrayOfSimpleType},
        {varArray + 36, u"ArrayOfAny", xsdArrayOfSimpleType}};
    for (const auto& [Code, Name, Expected] : Codes) {
        EXPECT_EQ(TQzTypes::ToSchemaType(Code, &Type), Name);
        EXPECT_EQ(Type, Expected) << Name;
    }
    EXPECT_EQ(TQzTypes::ToSchemaType(rtkExtended, &Type), u"decmimal");
    EXPECT_EQ(Type, xsdDecimal);
    EXPECT_EQ(TQzTypes::ToSchemaType(rtkLongInt, nullptr), u"int");
}

TEST(QzTypes, RefusesWhatHasNoCounterpart) {
    TQzSchemaDataType Type = xsdDuration;
    const std::pair<int, int> Codes[] = {{0, 0},     {9, 9},        {15, 15},
                                         {274, 274}, {8192 + 9, 9}, {16384 + 3, 16387}};
    for (const auto& [Code, Shown] : Codes)
        EXPECT_EQ(
            u"The given TVarType \"" + IntToStr(Shown) + u"\" could not be converted to a valid SchemaType!",
            Message([&, Number = Code] { TQzTypes::ToSchemaType(static_cast<TVarType>(Number), &Type); }));
    EXPECT_EQ(Type, xsdDuration);
    for (const TQzTypeKind Kind : {rtkRecord, rtkClassRef})
        EXPECT_EQ(Message([&] { TQzTypes::ToVarType(Kind); }),
                  u"The given datatype cannot be converted to a Variant Type!");
    EXPECT_EQ(Message([] { TQzTypes::ToTypeKind(static_cast<TTypeKind>(22)); }),
              u"The type 22 cannot be converted to a TQzTypeKind!");
    EXPECT_THROW(TQzTypes::ToMainTypeKind(static_cast<TTypeKind>(255)), EAssertionFailed);
    EXPECT_EQ(Message([] { GetDataSerializationFormat(u"yaml"); }), u"The format yaml is not supported!!");
    TQzSimpleTypeKind Simple;
    EXPECT_EQ(Message([&] { Simple = rtkArray; }), u"The value 25 is not in the range 1 to 24");
    EXPECT_EQ(GetDataSerializationFormat(u"Custom2"), CUSTOM2);
}

// A kind keeps its main kind on the way over the code of its variants, with the exceptions that are listed.
TEST(QzTypes, KindsAndCodesAgree) {
    for (int I = 0; I <= static_cast<int>(rtkVariant); ++I) {
        const auto Kind = static_cast<TQzTypeKind>(I);
        const TQzMainTypeKind Expected = Kind == rtkSet ? mtkDateTime
            : Kind == rtkVariant                        ? mtkUnknown
                                                        : TQzTypes::ToMainTypeKind(Kind);
        EXPECT_EQ(TQzTypes::ToMainTypeKind(TQzTypes::ToVarType(Kind)), Expected) << I;
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
    EXPECT_EQ(TQzTypes::VarMainTypeKind(VarArrayOf({1})), mtkArray);
    EXPECT_EQ(TQzTypes::VarTypeKind(VarArrayOf({1})), rtkDynArray);
    static_assert(TQzTypes::ToMainTypeKind(12) == mtkUnknown && TQzTypes::ToTypeKind(12) == rtkVariant);
}

} // namespace
} // namespace qz

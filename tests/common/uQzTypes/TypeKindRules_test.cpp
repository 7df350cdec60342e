// The tables of kinds and codes, held to rules and to each other.
#include <gtest/gtest.h>

#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {
namespace {

template <class T> bool Takes(TVarType ACode, T AValue) {
    try {
        VarAsType(AValue, ACode);
        return true;
    } catch (const EVariantOverflowError&) {
        return false;
    }
}

TEST(QzTypeRules, IntegersAreNamedByWidthAndSign) {
    for (int I = static_cast<int>(rtkByte); I <= static_cast<int>(rtkInt64); ++I) {
        const auto Kind = static_cast<TQzTypeKind>(I);
        const TVarType Code = TQzTypes::ToVarType(Kind);
        const bool IsSigned = Takes(Code, -1);
        unsigned Width = IsSigned ? 1 : 0;
        for (int Bit = 0; Bit < 64 && Takes(Code, std::uint64_t{1} << Bit); ++Bit)
            ++Width;
        const UnicodeString Name = Width == 8 ? u"byte"
            : Width == 16                     ? u"short"
            : Width == 32                     ? u"int"
                                              : u"long";
        EXPECT_TRUE(SameText(TQzTypes::ToSchemaType(Kind), IsSigned ? Name : u"unsigned" + Name)) << Name;
        EXPECT_EQ(TQzTypes::ToTypeKind(Code), Kind);
        EXPECT_EQ(TQzTypes::ToMainTypeKind(Kind), mtkInteger);
    }
}

TEST(QzTypeRules, CodesAreNamedAsTheirKindsButForBytesAndCurrencies) {
    for (const TVarType Code :
         {varSmallint, varInteger, varSingle, varDouble, varDate, varOleStr, varBoolean, varShortInt, varWord,
          varLongWord, varInt64, varUInt64, varString, varUString})
        EXPECT_EQ(TQzTypes::ToSchemaType(Code), TQzTypes::ToSchemaType(TQzTypes::ToTypeKind(Code))) << Code;
}

} // namespace
} // namespace qz

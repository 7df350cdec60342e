#include <qz/runtime/reflection/Rtti.h>

#include <gtest/gtest.h>

#include <random>

#include "tests/support/SampleTypes.h"
#include <qz/platform/Module.h>
#include <qz/runtime/base/NameHash.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/ArrayTypes.h>
#include <qz/runtime/values/Value.h>
#include <qz/runtime/values/WordBool.h>

namespace qz {
namespace {

QZ_REGISTER_TYPES(TDay, TNamed);

class TCounter : public TObject {
    QZ_CLASS(TCounter, TObject)
public:
    int First() const { return 1; }
    void Reset() {}
};
class TChildCounter : public TCounter {
    QZ_CLASS(TChildCounter, TCounter)
};
constexpr TMethodInfo cMethods[] = {Method<&TCounter::First>(u"First"), Method<&TCounter::Reset>(u"Reset")};
constinit const TClassRec TCounter::ClassRec =
    DescribeClass<TCounter>(u"TCounter", {.Unit = u"Test", .Methods = cMethods});
constinit const TClassRec TChildCounter::ClassRec =
    DescribeClass<TChildCounter>(u"TChildCounter", {.Unit = u"Test", .IsPublic = false});

TEST(Rtti, FindsRegisteredTypes) {
    const TRttiContext Context;
    EXPECT_EQ(Context.FindType(u"test.tday").Handle(), TypeInfo<TDay>());
    EXPECT_EQ(Context.FindType(u"System.TStringList"), Context.GetType(ClassOf<TStringList>()));
    EXPECT_FALSE(Context.FindType(u"Test.TChildCounter") || Context.FindType(u"") ||
                 Context.FindType(u"TDay"));
    for (const std::u16string_view Each : {u"Integer", u"string", u"TDateTime", u"Variant", u"TValue",
                                           u"TObject", u"TStringDynArray", u"WordBool"})
        EXPECT_EQ(Context.FindType(u"System." + UnicodeString(Each)).Name(), Each);
    TTypeInfo Second = *TypeInfo<TDay>(); // of two types of one name the last counts
    RegisterType(&Second);
    EXPECT_EQ(FindType(u"Test.TDay"), &Second);
    RegisterType(TypeInfo<TDay>());
    EXPECT_EQ(FindType(u"Test.TDay"), TypeInfo<TDay>());
    EXPECT_TRUE(platform::PinModule(TypeInfo<TDay>()) && platform::PinModule(&Second));
}

TEST(Rtti, ViewsShowTheFormsOfTypes) {
    const TRttiType Class(TypeInfo<TChildCounter>());
    EXPECT_EQ(Class.GetMethod(u"FIRST").ReturnType().QualifiedName(), u"System.Integer");
    EXPECT_TRUE(Class.GetMethod(u"Reset") && !Class.GetMethod(u"Reset").ReturnType());
    EXPECT_FALSE(Class.GetMethod(u"Last") || TRttiType().GetMethod(u"First"));
    EXPECT_EQ(Class.QualifiedName(), u"TChildCounter");
    EXPECT_FALSE(Class.IsPublicType());
    EXPECT_EQ(TRttiInstanceType(Class).BaseType().MetaclassType(), ClassOf<TCounter>());
    EXPECT_FALSE(TRttiInstanceType(TRttiType(TypeInfo<TObject>())).BaseType());
    EXPECT_FALSE(TRttiInstanceType(TRttiType(TypeInfo<int>())));
    const TRttiType Array(TypeInfo<TStringDynArray>());
    EXPECT_EQ(TRttiDynamicArrayType(Array).ElementType().Handle(), TypeInfo<UnicodeString>());
    EXPECT_FALSE(TRttiArrayType(Array) || TRttiArrayType(Array).ElementType());
}

TEST(Rtti, WordBoolKeepsOtherNumbers) {
    EXPECT_EQ(TValue::From(WordBool(true)).ToString(), u"True");
    WordBool Odd = true;
    EXPECT_EQ(ReadOrdinal(TypeInfo<WordBool>(), &Odd), -1);
    Odd.Value = 5;
    EXPECT_TRUE(Odd && !WordBool());
}

// The oracle is SameText; one unit of each pair differs, by case, by the bit of case, or in its high byte.
TEST(NameHash, NamesThatAreTheSameHaveTheSameHash) {
    std::minstd_rand Random(1);
    constexpr char16_t cUnits[] = u"aAzZ@[`{0_\u00C1\u00E1\u0141\u8041\u8061\uFF21\uFF41";
    for (int Count = 0; Count < 20000; ++Count) {
        std::u16string Left(Random() % 13, u'A');
        for (char16_t& Each : Left)
            Each = cUnits[Random() % (std::size(cUnits) - 1)];
        std::u16string Right = Left;
        if (!Right.empty())
            Right[Random() % Right.size()] ^= std::u16string_view(u"\u0020\u0000\u0100\u8000")[Random() % 4];
        const bool IsSame = SameText(Left, Right);
        ASSERT_EQ(SameName(Left, Right, TNameCase::Ignored), IsSame);
        ASSERT_EQ(SameName(Left, Right, TNameCase::Counts), Left == Right);
        ASSERT_EQ(HashName(Left, TNameCase::Ignored) == HashName(Right, TNameCase::Ignored), IsSame);
        ASSERT_EQ(HashName(Left, TNameCase::Counts) == HashName(Right, TNameCase::Counts), Left == Right);
    }
}

} // namespace
} // namespace qz

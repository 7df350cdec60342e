#include <qz/runtime/objects/TypeInfo.h>

#include <gtest/gtest.h>

#include "tests/support/SampleTypes.h"
#include <qz/runtime/time/DateTime.h>

namespace qz {
namespace {

struct TPoint {
    char Tag;
    double X;
    UnicodeString Name;
};

class THidden : public TTraced {
    QZ_CLASS(THidden, TTraced)
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TPoint);

namespace qz {

constexpr TFieldInfo cPointFields[] = {Field<&TPoint::Tag>(u"Tag"), Field<&TPoint::X>(u"X"),
                                       Field<&TPoint::Name>(u"Name")};
constinit const TTypeInfo TTypeDescription<TPoint>::Info =
    DescribeRecord<TPoint>(u"TPoint", u"Test", cPointFields);

constinit const TClassRec THidden::ClassRec =
    DescribeClass<THidden>(u"THidden", {.Unit = u"Test", .IsPublic = false});

namespace {

TEST(TypeInfo, TellsKindAndNameOfTypes) {
    const std::tuple<PTypeInfo, TTypeKind, const char*> Cases[] = {
        {TypeInfo<const int>(), tkInteger, "System.Integer"},
        {TypeInfo<TDateTime>(), tkFloat, "System.TDateTime"},
        {TypeInfo<TBytes>(), tkDynArray, "System.TBytes"},
        {TypeInfo<TTraced*>(), tkClass, "Test.TTraced"},
        {TypeInfo<THidden>(), tkClass, "THidden"},
    };
    for (const auto& [Info, Kind, Name] : Cases) {
        EXPECT_EQ(Info->QualifiedName(), Name);
        EXPECT_EQ(Info->Kind, Kind) << Name;
    }
    EXPECT_EQ(TypeInfo<TBytes>()->ElementType(), TypeInfo<std::uint8_t>());
    EXPECT_EQ(TypeInfo<THidden>()->BaseType(), TypeInfo<TTraced>());
    EXPECT_NE(TypeInfo<TDate>(), TypeInfo<TTime>());
}

TEST(TypeInfo, FieldsStandWhereTheRecordHasThem) {
    const TPoint Point{'t', 2.5, u"p"};
    const auto* Raw = reinterpret_cast<const std::byte*>(&Point);
    const auto Fields = TypeInfo<TPoint>()->Fields;
    ASSERT_EQ(Fields.size(), 3u);
    EXPECT_EQ(*reinterpret_cast<const double*>(Raw + Fields[1].Offset()), 2.5);
    EXPECT_EQ(*reinterpret_cast<const UnicodeString*>(Raw + Fields[2].Offset()), u"p");
    EXPECT_EQ(Fields[2].FieldType(), TypeInfo<UnicodeString>());
}

TEST(TypeInfo, OperationsHandleValuesInRawStorage) {
    const TTypeOps& Ops = *TypeInfo<UnicodeString>()->Ops;
    alignas(UnicodeString) std::byte Storage[sizeof(UnicodeString)];
    const UnicodeString Source = u"shared";
    Ops.Copy(Storage, &Source);
    EXPECT_EQ(Source.RefCount(), 2);
    Ops.Destroy(Storage);
    Ops.Construct(Storage);
    Ops.Assign(Storage, &Source);
    EXPECT_EQ(Source.RefCount(), 2);
    Ops.Destroy(Storage);
    EXPECT_FALSE(Ops.IsTrivial);
    EXPECT_TRUE(TypeInfo<double>()->Ops->IsTrivial);
}

} // namespace
} // namespace qz

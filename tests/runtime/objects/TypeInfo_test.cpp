#include <qz/runtime/objects/TypeInfo.h>

#include <gtest/gtest.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

struct TPoint {
    char Tag;
    double X;
    UnicodeString Name;
};

class TBase : public TObject {
    QZ_CLASS(TBase, TObject)

public:
    int GetWidth() const { return FWidth; }
    void SetWidth(int AWidth) {
        if (AWidth < 0)
            throw ERangeError(u"negative");
        FWidth = AWidth;
    }
    const UnicodeString& GetName() const { return FName; }
    UnicodeString FName = u"name";
    TBase* FNext = nullptr;

private:
    int FWidth = 7;
};

class TDerived : public TBase {
    QZ_CLASS(TDerived, TBase)
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TPoint);

namespace qz {

constexpr TFieldInfo cPointFields[] = {Field<&TPoint::Tag>(u"Tag"), Field<&TPoint::X>(u"X"),
                                       Field<&TPoint::Name>(u"Name")};
constinit const TTypeInfo TTypeDescription<TPoint>::Info =
    DescribeRecord<TPoint>(u"TPoint", u"Test", cPointFields);

constexpr TPropInfo cBaseProps[] = {
    Property<&TBase::GetWidth, &TBase::SetWidth>(u"Width"),
    ReadOnly<&TBase::GetName>(u"Name"),
    Property<&TBase::FNext, &TBase::FNext>(u"Next"),
};
constinit const TClassRec TBase::ClassRec =
    DescribeClass<TBase>(u"TBase", {.Unit = u"Test", .Properties = cBaseProps});
constinit const TClassRec TDerived::ClassRec =
    DescribeClass<TDerived>(u"TDerived", {.Unit = u"Test", .IsPublic = false});

namespace {

TEST(TypeInfo, TellsKindAndNameOfTypes) {
    const std::tuple<PTypeInfo, TTypeKind, const char*> Cases[] = {
        {TypeInfo<const int>(), tkInteger, "System.Integer"},
        {TypeInfo<TDateTime>(), tkFloat, "System.TDateTime"},
        {TypeInfo<TBytes>(), tkDynArray, "System.TBytes"},
        {TypeInfo<TBase*>(), tkClass, "Test.TBase"},
        {TypeInfo<TDerived>(), tkClass, "TDerived"},
    };
    for (const auto& [Info, Kind, Name] : Cases) {
        EXPECT_EQ(Info->QualifiedName(), Name);
        EXPECT_EQ(Info->Kind, Kind) << Name;
    }
    EXPECT_EQ(TypeInfo<TBytes>()->ElementType(), TypeInfo<std::uint8_t>());
    EXPECT_EQ(TypeInfo<TDerived>()->BaseType(), TypeInfo<TBase>());
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

TEST(TypeInfo, PropertiesAreReadAndWrittenThroughTheirAccessors) {
    TDerived Object;
    const TPropInfo* Width = GetPropInfo(TypeInfo<TDerived>(), u"WIDTH");
    int Value = 12;
    Width->Set(Object, &Value);
    Value = 0;
    Width->Get(Object, &Value);
    EXPECT_EQ(Value, 12);
    Value = -1;
    EXPECT_THROW(Width->Set(Object, &Value), ERangeError);
    EXPECT_EQ(GetPropInfo(TypeInfo<TDerived>(), u"Name")->Set, nullptr);

    const TPropInfo* Next = GetPropInfo(TypeInfo<TDerived>(), u"Next");
    EXPECT_EQ(Next->PropType(), TypeInfo<TBase>());
    TObject* Link = &Object;
    Next->Set(Object, &Link);
    EXPECT_EQ(Object.FNext, &Object);
    Link = nullptr;
    Next->Get(Object, &Link);
    EXPECT_EQ(Link, &Object);
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

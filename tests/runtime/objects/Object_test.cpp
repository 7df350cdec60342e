#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include "tests/support/Message.h"
#include "tests/support/SampleTypes.h"
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/Persistent.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {
namespace {

class IMissing : public IInterface {
public:
    static constexpr TGUID IID = Guid("{A2E5B0F4-2B7D-49E6-8C53-5A0E6F2B9C13}");
};

class TFaulty : public TNamed {
    QZ_CLASS(TFaulty, TNamed)
public:
    void AfterConstruction() override {
        Inherited::AfterConstruction();
        throw EInvalidOperation(u"late");
    }

protected:
    TFaulty(const UnicodeString& AName, bool AEarly) : TNamed(AName) {
        const Ref<INamed> Self(this); // must not end what is being built
        if (AEarly)
            throw EInvalidOperation(u"early");
    }
};
constinit const TClassRec TFaulty::ClassRec = DescribeClass<TFaulty>(u"TFaulty", {.Unit = u"Test"});

class Objects : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

TEST_F(Objects, LastReferenceEndsTheObject) {
    TNamed* Object = TNamed::Create(u"a");
    Ref<INamed> First = Object;
    Ref<INamed> Second = First;
    EXPECT_EQ(Object->RefCount(), 2);
    Ref<INamed> Third = std::move(First);
    EXPECT_EQ(Object->RefCount(), 2);
    EXPECT_FALSE(First); // NOLINT(bugprone-use-after-move): a moved reference is null
    Second = Third;
    Third = std::move(Second);
    Third = Third.Get();
    EXPECT_EQ(Object->RefCount(), 1);
    const Ref<IInterface> Wide = std::move(Third);
    EXPECT_EQ(Object->RefCount(), 1);
    EXPECT_EQ(TakeTrace(), "");
    const_cast<Ref<IInterface>&>(Wide).Clear();
    EXPECT_EQ(TakeTrace(), "freed(a) ");
}

TEST_F(Objects, AssignmentTakesBeforeItDrops) {
    Ref<INamed> Holder = TNamed::Create(u"old");
    Holder = Ref<INamed>(TNamed::Create(u"new"));
    EXPECT_EQ(TakeTrace(), "freed(old) ");
    INamed* Plain = Holder.Detach();
    EXPECT_EQ(TakeTrace(), "");
    Ref<INamed>::Attach(Plain).Clear();
    EXPECT_EQ(TakeTrace(), "freed(new) ");
}

TEST_F(Objects, QueryInterfaceKeepsIdentity) {
    const Ref<INamed> Named = TBoth::Create(u"a");
    const Ref<IOther> Other = As<IOther>(Named);
    ASSERT_TRUE(Other);
    EXPECT_EQ(As<INamed>(Other), Named);
    EXPECT_EQ(As<IInterface>(Other), As<IInterface>(Named));
    Ref<IMissing> Missing;
    EXPECT_FALSE(Supports(Named, Missing));
    void* Found = &Missing;
    EXPECT_EQ(Named->QueryInterface(IMissing::IID, &Found), E_NOINTERFACE_RESULT);
    EXPECT_EQ(Found, nullptr);
    EXPECT_FALSE(As<IOther>(static_cast<IInterface*>(nullptr)));
}

TEST_F(Objects, FailedConstructionLeaksNothing) {
    EXPECT_EQ(Raised([] { std::ignore = TFaulty::Create(u"a", true); }), "EInvalidOperation: early");
    EXPECT_EQ(Raised([] { std::ignore = TFaulty::Create(u"b", false); }), "EInvalidOperation: late");
    EXPECT_EQ(TakeTrace(), "freed(a) freed(b) ");
}

TEST_F(Objects, FreeWithReferencesIsRefused) {
    TNamed* Object = TNamed::Create(u"a");
    {
        const Ref<INamed> Holder = Object;
        EXPECT_THROW(Object->Free(), EInvalidPointer);
        EXPECT_EQ(Holder->Name(), "a");
    }
    EXPECT_EQ(TakeTrace(), "freed(a) ");
}

TEST_F(Objects, ThreadsCountTogether) {
    TNamed* Object = TNamed::Create(u"shared");
    {
        const Ref<INamed> Holder = Object;
        AtOnce(4, [&Holder](int) {
            for (int I = 0; I < 2000; ++I) {
                const Ref<INamed> Mine = Holder;
                const Ref<IInterface> Again = As<IInterface>(Mine);
            }
        });
        EXPECT_EQ(Object->RefCount(), 1);
    }
    EXPECT_EQ(TakeTrace(), "freed(shared) ");
}

class TSource : public TPersistent {
    QZ_CLASS(TSource, TPersistent)
public:
    TPersistent* FOwner = nullptr;

protected:
    TPersistent* GetOwner() const override { return FOwner; }
};
constinit const TClassRec TSource::ClassRec = DescribeClass<TSource>(u"TSource", {.Unit = u"Test"});

TEST_F(Objects, PersistentsThatCannotBeAssignedAreNamed) {
    TSource Source, Part;
    struct : TPersistent {
    } Other;
    EXPECT_EQ(Raised([&] { Source.Assign(&Other); }),
              "EConvertError: Cannot assign a TPersistent to a TSource");
    EXPECT_EQ(Raised([&] { Source.Assign(nullptr); }), "EConvertError: Cannot assign a nil to a TSource");
    Part.FOwner = &Source;
    EXPECT_EQ(Part.GetNamePath(), "TSource.TSource");
}

class EPair : public EConvertError {
    QZ_EXCEPTION(EPair, EConvertError)

public:
    EPair(int ALeft, int ARight) : EConvertError(u"%d and %d", {ALeft, ARight}), Left(ALeft) {}
    int Left;
};
constinit const TClassRec EPair::ClassRec = DescribeException<EPair>(u"EPair", u"Test");

TEST(Exceptions, AreHandledAsExceptionsWhateverWasThrown) {
    EXPECT_EQ(Raised([] { throw EOSError(u"a", 5); }), "EOSError: a");
    EXPECT_EQ(Raised([] { throw std::runtime_error("\xC3\xA4"); }), "Exception: ä");
    EXPECT_EQ(Raised([] { throw 17; }), "Exception: Unknown exception");
    EXPECT_EQ(Raised([] { Assert(false); }), "EAssertionFailed: Assertion failure");
    EXPECT_EQ(Raised([] { Abort(); }), "EAbort: Operation aborted");
}

TEST(Exceptions, AKeptOneIsRaisedByItsOwnClassWithAllItHolds) {
    EPair Kept(1, 2);
    EXPECT_STREQ(Kept.what(), "1 and 2");
    Kept.SetMessage(u"\u20AC");
    const Exception& AsBase = Kept;
    try {
        AsBase.Raise();
    } catch (const EPair& E) {
        EXPECT_EQ(E.Left, 1);
        EXPECT_STREQ(E.what(), "€");
    }
}

TEST(Exceptions, AreMadeThroughTheirClassWhereTheyTakeAMessage) {
    EXPECT_EQ(Raised([] { CreateException(ExceptionClass::Of<EReadError>(), u"m")->Raise(); }),
              "EReadError: m");
    EXPECT_EQ(Raised([] { CreateException(ExceptionClass::Of<EPair>(), u"m")->Raise(); }), "Exception: m");
    EXPECT_EQ(Exception::TVirtualCreateCode::Find(ClassOf<EConvertError>()), nullptr);
    EXPECT_FALSE(ClassRef<EStreamError>(ClassOf<EConvertError>()))
        << "a class reference refuses a foreign class";
}

TEST(Exceptions, SystemErrorsNameTheirNumberAndText) {
    EXPECT_EQ(Raised([] { RaiseOSError(2, u"while reading"); }),
              UnicodeString("EOSError: System Error.  Code: 2.\r\n") + SysErrorMessage(2) +
                  "\r\nwhile reading");
    EXPECT_EQ(Raised([] { RaiseOSError(0); }), "EOSError: A call to an OS function failed");
}

struct TPoint {
    char Tag;
    double X;
    UnicodeString Name;
};

} // namespace
} // namespace qz

QZ_TYPE_INFO(qz::TPoint);

namespace qz {

constexpr TFieldInfo cPointFields[] = {Field<&TPoint::Tag>(u"Tag"), Field<&TPoint::X>(u"X"),
                                       Field<&TPoint::Name>(u"Name")};
constinit const TTypeInfo TTypeDescription<TPoint>::Info =
    DescribeRecord<TPoint>(u"TPoint", u"Test", cPointFields);

namespace {

TEST(TypeInfo, TellsKindAndNameOfTypes) {
    const std::tuple<PTypeInfo, TTypeKind, const char*> Cases[] = {
        {TypeInfo<const int>(), tkInteger, "System.Integer"},
        {TypeInfo<TDateTime>(), tkFloat, "System.TDateTime"},
        {TypeInfo<TBytes>(), tkDynArray, "System.TBytes"},
        {TypeInfo<TTraced*>(), tkClass, "Test.TTraced"},
    };
    for (const auto& [Info, Kind, Name] : Cases) {
        EXPECT_EQ(Info->QualifiedName(), Name);
        EXPECT_EQ(Info->Kind, Kind) << Name;
    }
    EXPECT_EQ(TypeInfo<TBytes>()->ElementType(), TypeInfo<std::uint8_t>());
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

} // namespace
} // namespace qz

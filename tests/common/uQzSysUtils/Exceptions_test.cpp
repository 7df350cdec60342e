#include <qz/common/uQzSysUtils.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

class EFirst : public EQzException {
    QZ_EXCEPTION(EFirst, EQzException)
public:
    using EQzException::EQzException;
};
class ESecond : public EQzException {
    QZ_EXCEPTION(ESecond, EQzException)
public:
    using EQzException::EQzException;
};
class EQuiet : public EQzAbort {
    QZ_EXCEPTION(EQuiet, EQzAbort)
public:
    using EQzAbort::EQzAbort;
};
constinit const TClassRec EFirst::ClassRec = DescribeException<EFirst>(u"EFirst", u"Test");
constinit const TClassRec ESecond::ClassRec = DescribeException<ESecond>(u"ESecond", u"Test");
constinit const TClassRec EQuiet::ClassRec = DescribeException<EQuiet>(u"EQuiet", u"Test");

const auto cFirst = EQzExceptionClass::Of<EFirst>();
const auto cSecond = EQzExceptionClass::Of<ESecond>();

TEST(ExceptionRegistry, FindsNothingThatNobodyRegistered) {
    std::int32_t Code = 77;
    EXPECT_EQ(QzGetExceptionClass(u"nobody", 987654), ExceptionClass());
    EXPECT_EQ(QzGetExceptionClassByName(u"ENobody", &Code), ExceptionClass());
    EXPECT_EQ(Code, 0);
}

TEST(ExceptionRegistry, SameCodeStandsInTwoGroupsAndAnEmptyGroupFindsTheEarliest) {
    QzRegisterExceptionClass(u"A", 5, cFirst);
    QzRegisterExceptionClass(u"B", 5, cSecond);
    EXPECT_EQ(QzGetExceptionClass(u"", 5), cFirst);
    EXPECT_EQ(QzGetExceptionClass(u"B", 5), cSecond);
    EXPECT_EQ(QzGetExceptionClass(u"b", 5), ExceptionClass()) << "groups are compared exactly";
    QzRegisterExceptionClass(u"", 7, cFirst);
    QzRegisterExceptionClass(u"D", 7, cSecond);
    EXPECT_EQ(QzGetExceptionClass(u"D", 7), cSecond);
    EXPECT_EQ(QzGetExceptionClass(u"", 7), cFirst);
    EXPECT_THROW(QzRegisterExceptionClass(u"F", 10, EQzExceptionClass()), EAssertionFailed);
}

TEST(ExceptionRegistry, TakenPairRefusesAnotherClassAndKeepsTheHolder) {
    QzRegisterExceptionClass(u"C", 6, cFirst);
    QzRegisterExceptionClass(u"C", 6, cFirst);
    for (const char16_t* Group : {u"C", u""}) {
        EXPECT_EQ(Raised([&] { QzRegisterExceptionClass(Group, 6, cSecond); }),
                  "EAssertionFailed: ErrorCode 6 is already in use by EFirst!");
        EXPECT_EQ(QzGetExceptionClass(u"C", 6), cFirst);
    }
}

TEST(ExceptionRegistry, NameIsFoundInAnyCaseWithTheCodeOfItsEarliestEntry) {
    QzRegisterExceptionClass(u"E", 8, EQzAbortClass::Of<EQuiet>());
    QzRegisterExceptionClass(u"E", 9, EQzAbortClass::Of<EQuiet>());
    std::int32_t Code = 0;
    EXPECT_EQ(QzGetExceptionClassByName(u"equiet", &Code), ExceptionClass::Of<EQuiet>());
    EXPECT_EQ(Code, 8);
    EXPECT_EQ(QzGetExceptionClassByName(u"EQUIET"), ExceptionClass::Of<EQuiet>());
}

TEST(QzException, CarriesItsCodeThroughACatchOfTheBase) {
    try {
        throw EQuiet(u"Stopped at %d", {17}, 1223);
    } catch (const EAbort& E) {
        EXPECT_EQ(E.Message(), "Stopped at 17");
        EXPECT_EQ(dynamic_cast<const EQzAbort&>(E).ErrorCode(), 1223);
    }
    EXPECT_THROW(EQzException(u"%d", {u"text"}, 1), EConvertError);
}

TEST(QzException, IsMadeThroughItsClassWithACode) {
    const auto Make = Exception::TVirtualCreateCode::Find(QzGetExceptionClassByName(u"EFirst"));
    ASSERT_NE(Make, nullptr);
    const auto Made = Make(u"made", 42);
    EXPECT_EQ(Raised([&] { Made->Raise(); }), "EFirst: made");
    EXPECT_EQ(dynamic_cast<const EFirst&>(*Made).ErrorCode(), 42);
}

} // namespace
} // namespace qz

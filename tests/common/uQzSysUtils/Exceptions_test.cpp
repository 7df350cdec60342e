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
class EQuiet : public EQzAbort {
    QZ_EXCEPTION(EQuiet, EQzAbort)
public:
    using EQzAbort::EQzAbort;
};
constinit const TClassRec EFirst::ClassRec = DescribeException<EFirst>(u"EFirst", u"Test");
constinit const TClassRec EQuiet::ClassRec = DescribeException<EQuiet>(u"EQuiet", u"Test");

const auto cFirst = EQzExceptionClass::Of<EFirst>();
const auto cQuiet = EQzAbortClass::Of<EQuiet>();

TEST(ExceptionRegistry, SameCodeStandsInTwoGroupsAndAnEmptyGroupFindsTheEarliest) {
    QzRegisterExceptionClass(u"A", 5, cFirst);
    QzRegisterExceptionClass(u"B", 5, cQuiet);
    EXPECT_EQ(QzGetExceptionClass(u"", 5), cFirst);
    EXPECT_EQ(QzGetExceptionClass(u"B", 5), cQuiet);
    EXPECT_EQ(QzGetExceptionClass(u"b", 5), ExceptionClass()) << "groups are compared exactly";
    EXPECT_THROW(QzRegisterExceptionClass(u"F", 10, EQzExceptionClass()), EAssertionFailed);
}

TEST(ExceptionRegistry, TakenPairRefusesAnotherClassAndKeepsTheHolder) {
    QzRegisterExceptionClass(u"C", 6, cFirst);
    QzRegisterExceptionClass(u"C", 6, cFirst);
    EXPECT_EQ(Raised([&] { QzRegisterExceptionClass(u"", 6, cQuiet); }),
              "EAssertionFailed: ErrorCode 6 is already in use by EFirst!");
    EXPECT_EQ(QzGetExceptionClass(u"C", 6), cFirst);
}

TEST(ExceptionRegistry, NameIsFoundInAnyCaseWithTheCodeOfItsEarliestEntry) {
    std::int32_t Code = 77;
    EXPECT_EQ(QzGetExceptionClassByName(u"ENone", &Code), ExceptionClass());
    EXPECT_EQ(Code, 0);
    QzRegisterExceptionClass(u"E", 4, cQuiet);
    QzRegisterExceptionClass(u"E", 9, cQuiet);
    const ExceptionClass Found = QzGetExceptionClassByName(u"equiet", &Code);
    EXPECT_LT(Code, 9);
    const auto Made = Exception::TVirtualCreateCode::Find(Found)(u"made", 42);
    EXPECT_EQ(Raised([&] { Made->Raise(); }), "EQuiet: made");
    EXPECT_EQ(dynamic_cast<const EQuiet&>(*Made).ErrorCode(), 42);
}

} // namespace
} // namespace qz

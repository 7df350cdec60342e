#include <qz/runtime/objects/Exceptions.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

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

} // namespace
} // namespace qz

// The arithmetic and the comparisons of numbers, beside a reference of 128 bits.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <qz/common/uQzXSTypes.h>

#include "tests/support/Message.h"

namespace qz {
namespace {

using TWide = __int128;
using TWideBits = unsigned __int128;

template <class T> class XsIntegers : public testing::Test {};
using TIntegers = testing::Types<std::int8_t, std::int16_t, std::int32_t, std::int64_t, std::uint8_t,
                                 std::uint16_t, std::uint32_t, std::uint64_t>;
TYPED_TEST_SUITE(XsIntegers, TIntegers);

template <class T> std::vector<T> Borders() {
    using TLimits = std::numeric_limits<T>;
    std::vector<T> Result;
    for (int I = 0; I < 3; ++I)
        for (const TWide Base : {TWide(0), TWide(TLimits::min()), TWide(TLimits::max() / 2), TWide(31)})
            Result.insert(Result.end(),
                          {static_cast<T>(Base + I), static_cast<T>(TWide(TLimits::max()) - I),
                           static_cast<T>(Base - I)});
    return Result;
}

// The bits of the number in the register of the machine for T, as a number without sign.
template <class T> TWide InRegister(TWide AValue) {
    const int Bits = sizeof(T) <= 4 ? 32 : 64;
    return AValue & ((TWide(1) << Bits) - 1);
}

template <class T, class TStep> void ExpectDivision(TWide AExpected, T ARight, const TStep& AStep) {
    if (ARight == 0)
        EXPECT_EQ(Raised([&] { (void)AStep(); }), "EDivByZero: Division by zero");
    else
        EXPECT_EQ(AStep().FValue, static_cast<T>(AExpected));
}

TYPED_TEST(XsIntegers, AgreeWithWideArithmetic) {
    using T = TypeParam;
    using R = TXsInteger<T>;
    for (const T A : Borders<T>())
        for (const T B : Borders<T>()) {
            SCOPED_TRACE(testing::Message() << +A << ' ' << +B);
            const R X(A), Y(B);
            const TWide P = A, Q = B;
            EXPECT_EQ((X + B).FValue, static_cast<T>(P + Q));
            EXPECT_EQ((A - Y).FValue, static_cast<T>(P - Q));
            EXPECT_EQ((X * Y).FValue, static_cast<T>(static_cast<TWideBits>(P) * static_cast<TWideBits>(Q)));
            ExpectDivision(B == 0 ? 0 : P / Q, B, [&] { return X.Div(B); });
            ExpectDivision(B == 0 ? 0 : P % Q, B, [&] { return X % B; });
            const int Count = static_cast<int>(InRegister<T>(Q) % (sizeof(T) <= 4 ? 32 : 64));
            EXPECT_EQ((X << B).FValue, static_cast<T>(InRegister<T>(P) << Count));
            EXPECT_EQ((X >> B).FValue, static_cast<T>(InRegister<T>(P) >> Count));
            EXPECT_EQ((X & B).FValue, static_cast<T>(P & Q));
            EXPECT_EQ((X | Y).FValue, static_cast<T>(P | Q));
            EXPECT_EQ((A ^ Y).FValue, static_cast<T>(P ^ Q));
            EXPECT_EQ((X / B).AsExtended().Value == static_cast<double>(A) / static_cast<double>(B),
                      B != 0 || A != 0); // 0 / 0 is not a number
            for (const auto& [Result, Expected] : {std::pair(X == B, P == Q),
                                                   {X != B, P != Q},
                                                   {X < B, P < Q},
                                                   {A <= Y, P <= Q},
                                                   {X > B, P > Q},
                                                   {A >= Y, P >= Q}})
                EXPECT_EQ(Result, TXsBoolean(Expected));
            EXPECT_EQ((X <=> Y) < 0, P < Q);
            if (std::is_signed_v<T>) {
                EXPECT_EQ((-X).FValue, static_cast<T>(-P));
            }
        }
}

TYPED_TEST(XsIntegers, NullStaysNull) {
    using R = TXsInteger<TypeParam>;
    const R Null, X(3);
    for (const R& Result : {Null + 1, 1 + Null, X + Null, Null * X, Null.Div(0), Null % 0, Null << 1,
                            X & Null, -Null, +Null, R(Null)})
        EXPECT_TRUE(Result.IsNull());
    EXPECT_TRUE((Null / 2).IsEmpty() && (X / Null).IsEmpty());
    EXPECT_TRUE((Null == 0).IsNull() && (1 > Null).IsNull() && (!(Null == 0)).IsNull());
    EXPECT_TRUE(Null == R() && Null < X);
    EXPECT_EQ(static_cast<TypeParam>(Null), 0);
    R Counted = 7;
    EXPECT_EQ(Counted++, R(7));
    EXPECT_EQ(--Counted, R(7));
    if (std::is_unsigned_v<TypeParam>) {
        for (const auto& Step : {std::function([&] { (void)-X; }), std::function([&] { (void)+X; })})
            EXPECT_EQ(Raised(Step),
                      "ENotSupportedException: The negative operation is not allowed on unsigned "
                      "integer types!");
    }
}

TEST(XsNumbers, RecordsOfSeveralWidths) {
    const TXsInteger<std::int8_t> Small = -1;
    const TXsInteger<std::int64_t> Large = 5000000000;
    EXPECT_EQ(Small + Large, TXsInteger<std::int64_t>(4999999999));
    EXPECT_EQ(Large - Small, TXsInteger<std::int64_t>(5000000001));
    EXPECT_TRUE(Small < Large && Large != Small && TXsInteger<std::int64_t>(-1) == Small);
    EXPECT_EQ(Small + TXsRational<double>(2.5), TXsRational<double>(1.0)); // 2.5 is rounded to 2
    EXPECT_TRUE(TXsRational<double>(TXsInteger<std::uint8_t>()).IsNull());
}

// Eighths are exact, so that integers are a reference.
TEST(XsNumbers, TheRightOperandOfARationalIsRounded) {
    for (int A = -20; A <= 20; ++A)
        for (int B = -20; B <= 20; ++B) {
            SCOPED_TRACE(testing::Message() << A << "/8 " << B << "/8");
            const int Floor = (B + 800) / 8 - 100, Rest = (B + 800) % 8;
            const int Whole = Floor + (Rest > 4 || (Rest == 4 && Floor % 2 != 0));
            const TXsRational<double> X(A / 8.0);
            const double Right = B / 8.0;
            EXPECT_EQ((X + Right).FValue, (A + 8 * Whole) / 8.0);
            EXPECT_EQ((X - Right).FValue, (A - 8 * Whole) / 8.0);
            EXPECT_EQ((X * TXsRational<double>(Right)).FValue, A * Whole / 8.0);
            EXPECT_EQ(X == Right, TXsBoolean(A == 8 * Whole));
            EXPECT_EQ(Right > X, TXsBoolean(A < 8 * Whole));
            EXPECT_EQ(X <= static_cast<float>(Right), TXsBoolean(A <= 8 * Whole));
            EXPECT_EQ(X == TXsRational<double>(Right), A == B);
            EXPECT_EQ(TXsRational<float>(static_cast<float>(Right)).Round().FValue,
                      static_cast<float>(Whole));
            EXPECT_EQ(X.Trunc(), TXsInteger<std::int64_t>(A / 8));
        }
    const TXsRational<Extended> Null;
    EXPECT_TRUE((Null + 1.5).IsNull() && (1 / Null).IsNull() && Null.Trunc().IsNull() && (Null < 1).IsNull());
    EXPECT_EQ((TXsRational<double>(3.0) / 1.5).FValue, 1.5);
    EXPECT_TRUE(std::isinf((TXsRational<double>(1.0) / 0.4).FValue));
    for (const double Outside : {9223372036854775808.0, -1e300, std::nan("")})
        EXPECT_THROW((void)TXsRational<double>(Outside).Trunc(), ERangeError);
}

TEST(XsNumbers, BooleansOfThreeValues) {
    const TXsBoolean Null, Yes = true, No = false;
    for (const TXsBoolean& Result : {Null & true, false & Null, Yes | Null, Null ^ No, !Null, Null == true})
        EXPECT_TRUE(Result.IsNull());
    EXPECT_EQ((Yes & No) | (No ^ true), Yes);
    EXPECT_EQ(!Yes, No);
    EXPECT_TRUE((Yes != false) && !(Null || No) && Null < No && No < Yes);
}

} // namespace
} // namespace qz

// Which expressions with value records compile, and as what. All of it happens at compile time.
#include <map>
#include <unordered_set>

#include <gtest/gtest.h>
#include <qz/common/uQzXSTypes.h>

namespace qz {
namespace {

using I = TXsInteger<std::int32_t>;
using L = TXsInteger<std::int64_t>;
using B = TXsInteger<std::uint8_t>;
using U = TXsInteger<std::uint64_t>;
using D = TXsRational<double>;
using F = TXsRational<float>;
using E = TXsRational<Extended>;
using S = TXsString;
using Z = TXsBoolean;
using Hex = TXsBinaryString<TXsBinaryStringHexEncoding>;
using Base64 = TXsBinaryString<TXsBinaryStringB64Encoding>;
using Text = const char (&)[2];
enum TColor { Red };
enum class TShade { Dark };

// The result of a binary operation; nothing where it does not compile.
#define QZ_OPERATION(Name, Operator)                        \
    template <class A, class C, class TResult>              \
    concept Name = requires(A & ALeft, C && ARight) {       \
        { ALeft Operator ARight } -> std::same_as<TResult>; \
    };                                                      \
    template <class A, class C>                             \
    concept No##Name = !requires(A & ALeft, C && ARight) {  \
        ALeft Operator ARight;                              \
    }
QZ_OPERATION(Adds, +);
QZ_OPERATION(Divides, /);
QZ_OPERATION(Modulo, %);
QZ_OPERATION(Shifts, <<);
QZ_OPERATION(Ands, &);
QZ_OPERATION(Equals, ==);
QZ_OPERATION(Differs, !=);
QZ_OPERATION(IsLess, <);
QZ_OPERATION(Increases, +=);
QZ_OPERATION(Assigns, =);

template <class A, class... C>
concept AddsNone = ((NoAdds<A, C> && NoAdds<C, A>)&&...);
template <class A, class... C>
concept ComparesNone = ((NoEquals<A, C> && NoEquals<C, A> && NoDiffers<A, C> && NoIsLess<A, C> &&
                         NoIsLess<C, A>)&&...);
template <class A, class... C>
concept TakesNone = ((NoAssigns<A, C> && !std::convertible_to<C, A>)&&...);
template <class A>
concept Tests = requires(A& AValue) {
    AValue ? 1 : 0;
};

static_assert(Adds<I, int, I> && Adds<int, I, I> && Adds<I, I, I> && Adds<B, int, B> && Adds<L, int, L>);
static_assert(Adds<I, L, L> && Adds<L, I, L> && Adds<I, D, D> && Adds<D, L, D> && Adds<int, D, D>);
static_assert(Adds<D, double, D> && Adds<F, double, F> && Adds<E, double, E> && Adds<E, Extended, E>);
static_assert(Modulo<I, int, I> && Shifts<I, int, I> && Increases<I, int, I&> && Increases<L, I, L&>);
static_assert(Divides<I, int, TValue> && Divides<int, I, TValue> && Divides<D, int, D> && Ands<I, I, I>);
static_assert(Equals<I, int, Z> && Equals<int, I, Z> && Equals<D, double, Z> && IsLess<int, L, Z>);
static_assert(Equals<I, I, bool> && IsLess<I, L, bool> && Equals<D, I, bool> && Differs<L, I, bool>);
static_assert(Equals<S, Text, bool> && Equals<Text, S, bool> && Equals<S, S, bool> && Differs<S, Text, bool>);
static_assert(Adds<S, Text, S> && Adds<S, S, S> && Adds<Text, S, UnicodeString> && Increases<S, S, S&>);
static_assert(Ands<Z, Z, Z> && Ands<Z, bool, Z> && Ands<bool, Z, Z> && Equals<Z, bool, Z>);
static_assert(Adds<Hex, RawByteString, Hex> && Equals<Hex, RawByteString, bool>);
static_assert(Equals<Z, Z, bool> && Adds<Hex, Hex, Hex> && Equals<Hex, Hex, bool> && Tests<Z> && !Tests<I>);
static_assert(Shifts<std::ostream, const I&, std::ostream&> && Shifts<std::ostream, S, std::ostream&>);

static_assert(AddsNone<I, double, bool, char, char16_t, TColor, TShade, unsigned, long long, Extended>);
static_assert(AddsNone<I, TDateTime, Text, UnicodeString, std::nullptr_t, void*, Variant, Z, S>);
static_assert(AddsNone<U, long long, I> && AddsNone<D, bool, Text, TShade> && AddsNone<Z, int, bool, Z>);
static_assert(ComparesNone<I, double, bool, char, TColor, unsigned, Text, UnicodeString, std::nullptr_t>);
static_assert(ComparesNone<I, Variant, Extended, TDateTime, S> && ComparesNone<D, TDateTime, bool, Text>);
static_assert(NoEquals<Z, int> && NoAnds<Z, int> && NoEquals<Hex, Base64> && NoEquals<S, std::nullptr_t>);
static_assert(NoShifts<I, double> && NoModulo<I, double> && NoIncreases<I, double> && NoIncreases<I, L>);
static_assert(NoModulo<D, int> && NoAnds<I, bool> && AddsNone<S, int, std::nullptr_t>);

static_assert(TakesNone<I, double, bool, char, unsigned, long long, Extended, Text, std::nullptr_t, L, D, U>);
static_assert(TakesNone<Z, int, double, std::nullptr_t, Text> && TakesNone<D, bool, Text, std::nullptr_t>);
static_assert(TakesNone<S, std::nullptr_t, int, AnsiString, I> &&
              TakesNone<Base64, Hex, Text, UnicodeString>);
static_assert(TakesNone<std::int16_t, I> && TakesNone<double, I> && TakesNone<bool, I> && TakesNone<int, Z>);
static_assert(TakesNone<std::u16string_view, S> && TakesNone<Variant, S, I> && TakesNone<float, D>);
template <class A, class... C>
concept Takes = ((std::convertible_to<C, A> && std::is_assignable_v<A&, C>)&&...);
static_assert(
    Takes<I, int, short, std::uint16_t, B, std::optional<int>, std::optional<short>, std::nullopt_t>);
static_assert(Takes<D, int, float, std::uint64_t, Extended, I, L, U, std::optional<double>>);
static_assert(Takes<S, Text, UnicodeString, std::string, WideString, std::optional<UnicodeString>>);
static_assert(Takes<int, I> && Takes<std::int64_t, I> && Takes<double, D> && Takes<UnicodeString, S>);
static_assert(Takes<bool, Z> && Takes<RawByteString, Hex> && Takes<L, I, B, int>);
static_assert(std::constructible_from<Variant, S> && std::constructible_from<Variant, Z>);

template <class... R>
concept Moves = (std::is_nothrow_move_constructible_v<R> && ...) &&
    (std::is_nothrow_copy_constructible_v<R> && ...) && (std::is_standard_layout_v<R> && ...);
static_assert(Moves<I, L, B, U, D, F, E, S, Z, Hex, Base64>);

TEST(XsExpressions, EmptyBracesOptionalsAndContainers) {
    I X = 5;
    const std::optional<int> Out = X;
    EXPECT_EQ(Out, 5);
    X.Restrictions = {.MaxInclusive = 7};
    X = std::optional<int>();
    const I Null = X;
    const std::optional<int> Nothing = X, Constant = Null, Temporary = I();
    EXPECT_TRUE(X.IsNull() && !Nothing && !Constant && !Temporary && !X.ToOptional());
    EXPECT_FALSE(X.Restrictions.IsNull());
    X = {};
    EXPECT_TRUE(X.IsNull() && X.Restrictions.IsNull());

    std::vector<I> Sorted = {3, {}, 1, std::nullopt, -2};
    std::sort(Sorted.begin(), Sorted.end());
    EXPECT_TRUE(std::equal(Sorted.begin(), Sorted.end(), std::vector<I>{{}, {}, -2, 1, 3}.begin()));
    EXPECT_EQ(std::unordered_set<I>(Sorted.begin(), Sorted.end()).size(), 4U);
    std::map<S, int> Names = {{u"b", 2}, {{}, 0}, {"a", 1}};
    EXPECT_EQ(Names.begin()->second, 0);
    std::ostringstream Stream;
    Stream << X << ' ' << L(7) << ' ' << (I(3) > 2) << ' ' << S("Zoë") << ' ' << D(1.5);
    EXPECT_EQ(Stream.str(), "null 7 true Zoë 1.5");
}

TEST(XsExpressions, WhatIsNotNumberOfTheTypeRaises) {
    B X = 1;
    EXPECT_THROW(X = 256, ERangeError);
    EXPECT_THROW(X + -1, ERangeError);
    EXPECT_THROW((void)(U(1) == -1), ERangeError);
    EXPECT_EQ(X, B(1));
}

} // namespace
} // namespace qz

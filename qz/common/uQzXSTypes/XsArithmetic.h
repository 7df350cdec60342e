// The arithmetic of the value records, as sets of operators that a record inherits.
//
//     #include <qz/common/uQzXSTypes.h>
//     TXsInteger<std::uint8_t> X = 250;
//     X + 10;                            // 4: it wraps at the width of the type
//     10 + X;                            // a plain left operand has no restrictions
//     X += 1;                            // keeps the restrictions of X and checks them
//
// The result has the restrictions of the left operand and is checked against them. It is null where either
// operand is. An operation that raises changes nothing.
#pragma once

#include <qz/common/uQzXSTypes/XsCompare.h>

namespace qz::detail {

// The operation is one of R: an R and a plain value or a narrower record, in either order, or two R.
template <class A, class B, class R>
concept CXsOperands = (std::same_as<A, R> &&
                       (std::same_as<B, R> || R::template cTakes<B> || R::template cWidens<B>)) ||
    (std::same_as<B, R> && (R::template cTakes<A> || R::template cWidens<A>));
template <class B, class R>
concept CXsOperand = CXsOperands<R, B, R>;

template <class TOperation, class R, class B> void XsApply(R& ATarget, const B& ARight) {
    if (ATarget.IsNull())
        return;
    typename R::TXsValue Value{};
    if (XsRead<R>(ARight, Value))
        ATarget.StoreChecked(TOperation()(ATarget.FValue, R::Operand(Value)));
    else
        ATarget.Clear();
}

template <class TOperation, class R, class A, class B> R XsCombine(const A& ALeft, const B& ARight) {
    R Result(ALeft);
    XsApply<TOperation>(Result, ARight);
    return Result;
}

// The integers as which a machine computes with a T.
template <class T>
using TXsRegister = std::conditional_t<sizeof(T) <= sizeof(std::uint32_t), std::uint32_t, std::uint64_t>;

struct TXsAdd {
    template <CInteger T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(static_cast<TXsRegister<T>>(ALeft) + static_cast<TXsRegister<T>>(ARight));
    }
    template <CXsFloat T> T operator()(T ALeft, T ARight) const noexcept { return ALeft + ARight; }
};
struct TXsSubtract {
    template <CInteger T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(static_cast<TXsRegister<T>>(ALeft) - static_cast<TXsRegister<T>>(ARight));
    }
    template <CXsFloat T> T operator()(T ALeft, T ARight) const noexcept { return ALeft - ARight; }
};
struct TXsMultiply {
    template <CInteger T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(static_cast<TXsRegister<T>>(ALeft) * static_cast<TXsRegister<T>>(ARight));
    }
    template <CXsFloat T> T operator()(T ALeft, T ARight) const noexcept { return ALeft * ARight; }
};
// Integers are cut toward zero; the smallest one divided by -1 is itself.
struct TXsDivide {
    template <CInteger T> T operator()(T ALeft, T ARight) const {
        if (ARight == 0)
            RaiseXsDivByZero();
        if (std::signed_integral<T> && ARight == static_cast<T>(-1))
            return TXsSubtract()(T(), ALeft);
        return static_cast<T>(ALeft / ARight);
    }
    template <CXsFloat T> T operator()(T ALeft, T ARight) const noexcept { return ALeft / ARight; }
};
// The remainder has the sign of the left operand.
struct TXsModulo {
    template <CInteger T> T operator()(T ALeft, T ARight) const {
        if (ARight == 0)
            RaiseXsDivByZero();
        return std::signed_integral<T> && ARight == static_cast<T>(-1) ? T() : static_cast<T>(ALeft % ARight);
    }
};
// Counts are taken modulo 32 or 64, the width of the register. A shift to the right fills with zeros.
struct TXsShiftLeft {
    template <CInteger T> T operator()(T ALeft, T ARight) const noexcept {
        constexpr TXsRegister<T> cMask = 8 * sizeof(TXsRegister<T>) - 1;
        return static_cast<T>(static_cast<TXsRegister<T>>(ALeft)
                              << (static_cast<TXsRegister<T>>(ARight) & cMask));
    }
};
struct TXsShiftRight {
    template <CInteger T> T operator()(T ALeft, T ARight) const noexcept {
        constexpr TXsRegister<T> cMask = 8 * sizeof(TXsRegister<T>) - 1;
        return static_cast<T>(static_cast<TXsRegister<T>>(ALeft) >>
                              (static_cast<TXsRegister<T>>(ARight) & cMask));
    }
};
struct TXsAnd {
    template <class T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(ALeft & ARight);
    }
};
struct TXsOr {
    template <class T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(ALeft | ARight);
    }
};
struct TXsXor {
    template <class T> T operator()(T ALeft, T ARight) const noexcept {
        return static_cast<T>(ALeft ^ ARight);
    }
};

template <class R> struct TXsSums {
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator+(const A& ALeft, const B& ARight) { return XsCombine<TXsAdd, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator-(const A& ALeft, const B& ARight) { return XsCombine<TXsSubtract, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator*(const A& ALeft, const B& ARight) { return XsCombine<TXsMultiply, R>(ALeft, ARight); }
    template <CXsOperand<R> B> friend R& operator+=(R& ATarget, const B& ARight) {
        XsApply<TXsAdd>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator-=(R& ATarget, const B& ARight) {
        XsApply<TXsSubtract>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator*=(R& ATarget, const B& ARight) {
        XsApply<TXsMultiply>(ATarget, ARight);
        return ATarget;
    }
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator+(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator-(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator*(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator/(const A&, const B&) = delete;
};

// Of numbers and Booleans.
template <class R> struct TXsBits {
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator&(const A& ALeft, const B& ARight) { return XsCombine<TXsAnd, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator|(const A& ALeft, const B& ARight) { return XsCombine<TXsOr, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator^(const A& ALeft, const B& ARight) { return XsCombine<TXsXor, R>(ALeft, ARight); }
    template <CXsOperand<R> B> friend R& operator&=(R& ATarget, const B& ARight) {
        XsApply<TXsAnd>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator|=(R& ATarget, const B& ARight) {
        XsApply<TXsOr>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator^=(R& ATarget, const B& ARight) {
        XsApply<TXsXor>(ATarget, ARight);
        return ATarget;
    }
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator&(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator|(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator^(const A&, const B&) = delete;
};

// Of integers alone.
template <class R> struct TXsModuloShifts {
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator%(const A& ALeft, const B& ARight) { return XsCombine<TXsModulo, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator<<(const A& ALeft, const B& ARight) { return XsCombine<TXsShiftLeft, R>(ALeft, ARight); }
    template <class A, class B>
        requires CXsOperands<A, B, R>
    friend R operator>>(const A& ALeft, const B& ARight) {
        return XsCombine<TXsShiftRight, R>(ALeft, ARight);
    }
    template <CXsOperand<R> B> friend R& operator%=(R& ATarget, const B& ARight) {
        XsApply<TXsModulo>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator<<=(R& ATarget, const B& ARight) {
        XsApply<TXsShiftLeft>(ATarget, ARight);
        return ATarget;
    }
    template <CXsOperand<R> B> friend R& operator>>=(R& ATarget, const B& ARight) {
        XsApply<TXsShiftRight>(ATarget, ARight);
        return ATarget;
    }
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator%(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator<<(const A&, const B&) = delete;
    template <class A, class B>
        requires CXsRefused<A, B, R>
    friend R operator>>(const A&, const B&) = delete;
};

} // namespace qz::detail

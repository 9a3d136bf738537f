// Single and Double: floating-point numbers that are always finite.
//
// A formula is written as it is told and gets the right kinds without a cast:
//   Single op Single, Single op whole number            -> Single
//   anything that meets a Double or a double constant   -> Double
//   powers, roots, exponentials, trigonometry           -> Double
// A store to a Single rounds. Each step that overflows, divides by zero or has no value throws
// RuntimeFailure at that step, so no infinity and no NaN is ever stored or shown.
#pragma once

#include <bit>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/runtime_failure.h"

namespace korvane {

template <std::floating_point Real>
class Checked;

/// 32-bit: what fields give through ToNumber, and per-window variables of that kind.
using Single = Checked<float>;
/// 64-bit: strict conversions, constants with a fraction, results of powers and functions.
using Double = Checked<double>;

namespace detail {

template <class T>
inline constexpr bool isChecked = false;
template <class Real>
inline constexpr bool isChecked<Checked<Real>> = true;

template <class T>
concept CheckedNumber = isChecked<T>;
template <class T>
concept Whole = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;
template <class T>
concept Operand = CheckedNumber<T> || Whole<T> || std::same_as<T, double>;
template <class A, class B>
inline constexpr bool anyChecked = isChecked<A> || isChecked<B>;
template <class A, class B>
concept Pair = Operand<A> && Operand<B> && anyChecked<A, B>;

template <class T>
inline constexpr bool staysSingle = std::same_as<T, Single> || Whole<T>;

/// The machine type in which two operands meet.
template <class A, class B>
using Meet = std::conditional_t<staysSingle<A> && staysSingle<B>, float, double>;

}  // namespace detail

template <std::floating_point Real>
class Checked {
 public:
  constexpr Checked() = default;
  constexpr Checked(detail::Whole auto whole) : value_(static_cast<Real>(whole)) {}
  constexpr Checked(double value) : value_(Store(value)) {}
  template <std::floating_point Other>
    requires(!std::same_as<Other, Real>)
  constexpr Checked(Checked<Other> other) : value_(Store(other.Value())) {}

  constexpr Real Value() const { return value_; }
  constexpr explicit operator double() const { return static_cast<double>(value_); }

  constexpr Checked operator-() const { return Finite(-value_); }
  constexpr Checked& operator+=(detail::Operand auto other) { return *this = *this + other; }
  constexpr Checked& operator-=(detail::Operand auto other) { return *this = *this - other; }
  constexpr Checked& operator*=(detail::Operand auto other) { return *this = *this * other; }
  constexpr Checked& operator/=(detail::Operand auto other) { return *this = *this / other; }

  /// The result of one arithmetic step. If it left the finite numbers the step fails: with
  /// overflow, or with the failure that the step tells.
  static constexpr Checked FromStep(Real value, auto fail) {
    if (!IsFinite(value)) [[unlikely]]
      fail();
    return Finite(value);
  }
  static constexpr Checked FromStep(Real value) { return FromStep(value, failures::Overflow); }
  /// The result of a step that can't leave the finite numbers.
  static constexpr Checked Finite(Real value) {
    Checked result;
    result.value_ = value;
    return result;
  }

 private:
  // Infinities and NaNs have the largest bits once the sign is shifted out. A test of whole numbers
  // runs beside the arithmetic; one of floating-point numbers queues up with it.
  static constexpr bool IsFinite(Real value) {
    using Bits = std::conditional_t<std::same_as<Real, float>, std::uint32_t, std::uint64_t>;
    constexpr auto infinity = std::bit_cast<Bits>(std::numeric_limits<Real>::infinity());
    return (std::bit_cast<Bits>(value) << 1) < (infinity << 1);
  }
  static constexpr Real Store(auto value) { return FromStep(static_cast<Real>(value)).value_; }

  Real value_ = 0;
};

namespace detail {

template <class To>
constexpr To Raw(auto operand) {
  if constexpr (CheckedNumber<decltype(operand)>)
    return static_cast<To>(operand.Value());
  else
    return static_cast<To>(operand);
}

}  // namespace detail

template <class A, class B>
  requires detail::Pair<A, B>
constexpr auto operator+(A a, B b) {
  using Real = detail::Meet<A, B>;
  return Checked<Real>::FromStep(detail::Raw<Real>(a) + detail::Raw<Real>(b));
}

template <class A, class B>
  requires detail::Pair<A, B>
constexpr auto operator-(A a, B b) {
  using Real = detail::Meet<A, B>;
  return Checked<Real>::FromStep(detail::Raw<Real>(a) - detail::Raw<Real>(b));
}

template <class A, class B>
  requires detail::Pair<A, B>
constexpr auto operator*(A a, B b) {
  using Real = detail::Meet<A, B>;
  return Checked<Real>::FromStep(detail::Raw<Real>(a) * detail::Raw<Real>(b));
}

template <class A, class B>
  requires detail::Pair<A, B>
constexpr auto operator/(A a, B b) {
  using Real = detail::Meet<A, B>;
  const Real divisor = detail::Raw<Real>(b);
  return Checked<Real>::FromStep(detail::Raw<Real>(a) / divisor, [divisor] {
    divisor == 0 ? failures::DivisionByZero() : failures::Overflow();
  });
}

template <class A, class B>
  requires detail::Pair<A, B>
constexpr bool operator==(A a, B b) { return detail::Raw<double>(a) == detail::Raw<double>(b); }

/// Finite numbers have an order, so that a comparison is a single one.
template <class A, class B>
  requires detail::Pair<A, B>
constexpr bool operator<(A a, B b) { return detail::Raw<double>(a) < detail::Raw<double>(b); }

template <class A, class B>
  requires detail::Pair<A, B>
constexpr bool operator>(A a, B b) { return b < a; }

template <class A, class B>
  requires detail::Pair<A, B>
constexpr bool operator<=(A a, B b) { return detail::Raw<double>(a) <= detail::Raw<double>(b); }

template <class A, class B>
  requires detail::Pair<A, B>
constexpr bool operator>=(A a, B b) { return b <= a; }

// ---- Functions. All give a Double but those that keep their operand's kind. ----

/// Whole part, rounded down: Int(-1.5) is -2.
template <class Real>
Checked<Real> Int(Checked<Real> x) {
  return Checked<Real>::FromStep(std::floor(x.Value()));
}

template <class Real>
Checked<Real> Abs(Checked<Real> x) {
  return Checked<Real>::Finite(std::fabs(x.Value()));
}

Double Power(Double base, Double exponent);  ///< Fails for a negative base with a fraction.

/// Fails below 0.
inline Double Sqrt(Double x) {
  return Double::FromStep(std::sqrt(x.Value()), failures::InvalidCall);
}

inline Double Exp(Double x) { return Double::FromStep(std::exp(x.Value())); }

/// Natural logarithm; fails at 0 and below.
inline Double Ln(Double x) { return Double::FromStep(std::log(x.Value()), failures::InvalidCall); }

inline Double Sin(Double x) { return Double::FromStep(std::sin(x.Value())); }
inline Double Cos(Double x) { return Double::FromStep(std::cos(x.Value())); }
inline Double Tan(Double x) { return Double::FromStep(std::tan(x.Value())); }
inline Double Atan(Double x) { return Double::FromStep(std::atan(x.Value())); }

/// Base 10, as ln(x) / ln(10).
inline Double Log10(Double x) { return Ln(x) / Ln(10); }

/// atan(-x / sqrt(1 - x x)) + 1.5708, in radians. The constant is the suite's own, so that
/// ArcCos(0) is 1.5708 and results are off by 3.7e-6. Fails at |x| = 1 and beyond.
Double ArcCos(Double x);

/// atan(x / sqrt(1 - x x)), in radians. Fails at |x| = 1 and beyond.
Double ArcSin(Double x);

/// To a 16-bit whole number, halves to even; overflow beyond -32768 .. 32767.
short ToInteger16(Double value);
/// To a 32-bit whole number, halves to even; overflow beyond its range.
int ToInteger32(Double value);

}  // namespace korvane

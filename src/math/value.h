// A number of either kind, for variables that have none of their own.
#pragma once

#include <variant>

#include "frame/number.h"

namespace korvane {

/// A Single until a Double comes into its formula: what a field gave is shown again with 7 digits,
/// and what a power has gone into with 15.
class Value {
 public:
  Value() : number_(Single()) {}
  Value(Single number) : number_(number) {}
  Value(Double number) : number_(number) {}
  Value(int whole) : number_(Single(whole)) {}
  Value(double constant) : number_(Double(constant)) {}

  operator Double() const {
    return std::visit([](auto number) { return Double(number); }, number_);
  }

  /// Runs the handler with the number in its kind.
  template <class Handler>
  friend auto Visit(const Value& value, const Handler& handler) {
    return std::visit(handler, value.number_);
  }

  friend Value operator+(const Value& a, const Value& b) {
    return Meet(a, b, [](auto x, auto y) { return Value(x + y); });
  }
  friend Value operator-(const Value& a, const Value& b) {
    return Meet(a, b, [](auto x, auto y) { return Value(x - y); });
  }
  friend Value operator*(const Value& a, const Value& b) {
    return Meet(a, b, [](auto x, auto y) { return Value(x * y); });
  }
  friend Value operator/(const Value& a, const Value& b) {
    return Meet(a, b, [](auto x, auto y) { return Value(x / y); });
  }
  friend Value operator-(const Value& a) {
    return Visit(a, [](auto x) { return Value(-x); });
  }
  friend bool operator==(const Value& a, const Value& b) { return Double(a) == Double(b); }
  friend bool operator<(const Value& a, const Value& b) { return Double(a) < Double(b); }
  friend bool operator>(const Value& a, const Value& b) { return b < a; }
  friend bool operator<=(const Value& a, const Value& b) { return Double(a) <= Double(b); }
  friend bool operator>=(const Value& a, const Value& b) { return b <= a; }

 private:
  template <class Step>
  static Value Meet(const Value& a, const Value& b, const Step& step) {
    return std::visit(step, a.number_, b.number_);
  }

  std::variant<Single, Double> number_;
};

}  // namespace korvane

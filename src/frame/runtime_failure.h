// The failures that end a handler: bad text, faults of arithmetic, files that cannot be used.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace korvane {

/// A run-time failure with its customary number and text. Whoever throws it gives up the running
/// handler; the session's dispatcher shows the error box and ends the program.
class RuntimeFailure : public std::exception {
 public:
  RuntimeFailure(int number, std::string text) : number_(number), text_(std::move(text)) {}

  int Number() const { return number_; }
  const std::string& Text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  int number_;
  std::string text_;
};

/// The failures in use, each thrown by a call: `failures::Overflow()`.
namespace failures {
[[noreturn, gnu::cold]] void InvalidCall();          ///< 5: root or logarithm out of its domain
[[noreturn, gnu::cold]] void Overflow();             ///< 6: a result too large for its kind
[[noreturn, gnu::cold]] void OutOfMemory();          ///< 7: a file too large to be one of ours
[[noreturn, gnu::cold]] void SubscriptOutOfRange();  ///< 9: an index past the end of a table
[[noreturn, gnu::cold]] void DivisionByZero();       ///< 11
[[noreturn, gnu::cold]] void TypeMismatch();  ///< 13: text that is not a number, read strictly
[[noreturn, gnu::cold]] void FileNotFound();  ///< 53
[[noreturn, gnu::cold]] void DeviceError();   ///< 57: reading or writing went wrong
[[noreturn, gnu::cold]] void InputPastEnd();  ///< 62: a file that ends too soon
[[noreturn, gnu::cold]] void PathAccess();    ///< 75: a file that may not be used
[[noreturn, gnu::cold]] void PrinterError();  ///< 482: no printer, or one that fails
[[noreturn, gnu::cold]] void ObjectNotSet();  ///< 91: a control that the window does not have
}  // namespace failures

}  // namespace korvane

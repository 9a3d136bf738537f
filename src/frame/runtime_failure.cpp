#include "frame/runtime_failure.h"

namespace korvane::failures {

void InvalidCall() { throw RuntimeFailure(5, "Invalid procedure call or argument"); }
void Overflow() { throw RuntimeFailure(6, "Overflow"); }
void OutOfMemory() { throw RuntimeFailure(7, "Out of memory"); }
void SubscriptOutOfRange() { throw RuntimeFailure(9, "Subscript out of range"); }
void DivisionByZero() { throw RuntimeFailure(11, "Division by zero"); }
void TypeMismatch() { throw RuntimeFailure(13, "Type mismatch"); }
void FileNotFound() { throw RuntimeFailure(53, "File not found"); }
void DeviceError() { throw RuntimeFailure(57, "Device I/O error"); }
void InputPastEnd() { throw RuntimeFailure(62, "Input past end of file"); }
void PathAccess() { throw RuntimeFailure(75, "Path/File access error"); }
void ObjectNotSet() { throw RuntimeFailure(91, "Object variable not set"); }
void PrinterError() { throw RuntimeFailure(482, "Printer error"); }

}  // namespace korvane::failures

#pragma once

#include <cstdint>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace awizo {

/// The one kind of run-time error: a number and the description that message boxes show.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(std::int32_t number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  std::int32_t number() const { return number_; }
  std::string description() const { return what(); }

 private:
  std::int32_t number_;
};

/// The errors that the system and its platform raise, each with its fixed number and text.
namespace errors {

inline RunTimeError invalidProcedureCall() { return {5, "Invalid procedure call or argument"}; }
inline RunTimeError overflow() { return {6, "Overflow"}; }
inline RunTimeError outOfMemory() { return {7, "Out of memory"}; }
inline RunTimeError subscriptOutOfRange() { return {9, "Subscript out of range"}; }
inline RunTimeError typeMismatch() { return {13, "Type mismatch"}; }
inline RunTimeError outOfStackSpace() { return {28, "Out of stack space"}; }
inline RunTimeError badFileName() { return {52, "Bad file name or number"}; }
inline RunTimeError fileNotFound() { return {53, "File not found"}; }
inline RunTimeError diskFull() { return {61, "Disk full"}; }
inline RunTimeError deviceUnavailable() { return {68, "Device unavailable"}; }
inline RunTimeError permissionDenied() { return {70, "Permission denied"}; }
inline RunTimeError diskNotReady() { return {71, "Disk not ready"}; }
inline RunTimeError pathFileAccess() { return {75, "Path/File access error"}; }
inline RunTimeError pathNotFound() { return {76, "Path not found"}; }
inline RunTimeError objectNotSet() {
  return {91, "Object variable or With block variable not set"};
}
inline RunTimeError invalidUseOfNull() { return {94, "Invalid use of Null"}; }
inline RunTimeError invalidPropertyValue() { return {380, "Invalid property value"}; }
inline RunTimeError listValueRefused() {
  return {380, "Could not set the Value property. Invalid property value."};
}
inline RunTimeError listIndexRefused() {
  return {380, "Could not set the ListIndex property. Invalid property value."};
}
inline RunTimeError cellOutOfRange() { return {381, "Subscript out of range"}; }
inline RunTimeError removeFixedRow() { return {30000, "Cannot do a RemoveItem on a fixed row"}; }
inline RunTimeError invalidRow() { return {30009, "Invalid Row value"}; }
inline RunTimeError invalidColumn() { return {30010, "Invalid Col value"}; }
inline RunTimeError removeLastRow() { return {30015, "Can not remove last non-fixed row"}; }
inline RunTimeError tooManyFixedRows() {
  return {30016, "FixedRows must be at least one less than Rows value"};
}
inline RunTimeError dateOutsidePicker() {
  return {35773,
          "A date was specified that does not fall within the MinDate and MaxDate properties"};
}
inline RunTimeError pickerNeedsDate() {
  return {35787, "Can't set Value to NULL when CheckBox property = FALSE"};
}
inline RunTimeError invalidXPath() { return {-2147467259, "Invalid XPath expression."}; }
inline RunTimeError hostNotFound() {
  return {-2146697211, "The system cannot locate the resource specified."};
}
inline RunTimeError downloadFailed() {
  return {-2146697208, "The download of the specified resource has failed."};
}
inline RunTimeError badCertificate() {
  return {-2146697191, "Security certificate required to access this resource is invalid."};
}
inline RunTimeError replyNotAvailable() {
  return {-2147483638, "The data necessary to complete this operation is not yet available."};
}

}  // namespace errors

/// Runs the work and returns the run-time error that ended it, lack of memory included; nothing if
/// it ran to its end.
template <class Work>
std::optional<RunTimeError> caughtError(Work&& work) {
  try {
    std::forward<Work>(work)();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return errors::outOfMemory();
  }
}

}  // namespace awizo

// Run-time errors: the numbered failures of the file layer and of conversions.
#pragma once

#include <exception>
#include <string>

namespace velmora {

/// Numbers of the classic BASIC set that this program raises.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileNameOrNumber = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIoError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    BadFileName = 64,
    TooManyFiles = 67,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
};

/// The standing text of a number, for example "Disk full" for 61.
const char* errorText(ErrorNumber number);

/// A failed operation of the file layer or a failed conversion: a number and a text.
class RunTimeError : public std::exception {
  public:
    /// Uses the standing text of `number`.
    explicit RunTimeError(ErrorNumber number);
    /// Uses the standing text followed by ": " and `detail` (a path, a value).
    RunTimeError(ErrorNumber number, const std::string& detail);

    ErrorNumber errorNumber() const { return number_; }
    /// The number as it is shown and sent.
    int number() const { return static_cast<int>(number_); }
    const char* what() const noexcept override { return text_.c_str(); }

  private:
    ErrorNumber number_;
    std::string text_;
};

}  // namespace velmora

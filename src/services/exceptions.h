#pragma once

#include <exception>
#include <filesystem>
#include <string>

namespace fundlet {

// The base of every failure that a service reports. Its message is a whole sentence in UTF-8 that
// can be shown to the user.
class RuntimeException : public std::exception {
 public:
  explicit RuntimeException(std::string message) : message_(std::move(message)) {}
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
};

// A required object is missing: it was not given, does not exist, or has another class than the one
// asked for.
class NilObjectException : public RuntimeException {
 public:
  using RuntimeException::RuntimeException;
};

// What was being done to a file when it failed.
enum class FileAction { Open, Create, Read, Write, Close };

// A file operation that failed. The message names the file, what could not be done, and why.
class IOException : public RuntimeException {
 public:
  // Numbers of the failures that no system call reports. 0 means that no reason is known; every
  // other number is an errno value.
  static constexpr int kEndOfFile = -1;
  static constexpr int kNotAFile = -2;
  static constexpr int kNoFolder = -3;
  static constexpr int kNoFile = -4;
  static constexpr int kNoFileName = -5;
  static constexpr int kDeadLink = -6;

  IOException(FileAction action, const std::filesystem::path& file, int error_number);
  int ErrorNumber() const { return error_number_; }

 private:
  int error_number_;
};

// Why an operation failed, for an error number of IOException: a clause for the user, without a
// full stop. A number that has no clause of its own is named.
std::string ReasonText(int error_number);

// The path as UTF-8 text, whatever the platform's own encoding of file names.
std::string PathText(const std::filesystem::path& path);

}  // namespace fundlet

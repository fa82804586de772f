// What stops a command, and the words for it.
#pragma once

#include <stdexcept>
#include <string>

namespace lintavo::tools {

/// A command that cannot be carried out; `what` is the line for the user.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A command that was called in a wrong way, where its words alone do not tell.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A file's name as messages show it; "-" is a standard stream.
std::string DisplayName(const std::string& path);

/// Throws `CommandError` with the message, led by the file's name unless that stands
/// in it.
[[noreturn]] void Fail(const std::string& path, const std::string& message);

}  // namespace lintavo::tools

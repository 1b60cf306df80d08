#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace roteiro_tests {

/// A program that is talked to line by line through pipes. Every wait is bounded; a program that
/// still runs when this goes is killed.
class Program {
 public:
  Program(const std::string& path, const std::vector<std::string>& arguments);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Asks it to end, as the system does.
  void Terminate();
  void Send(const std::string& line);
  /// No line follows.
  void EndInput();
  /// The next line; nothing when the program ended or took too long.
  std::optional<std::string> Read();
  /// Ends the program's input and waits for its exit status; nothing when it was killed, by a
  /// signal or because it took too long.
  std::optional<int> Finish();
  /// Asks it to end, as for a program that works until it is told to; whether it still ran.
  bool Stop();
  /// What it wrote to its standard error, after Finish.
  const std::string& Complaint() const { return complaint_; }

 private:
  void Launch(const std::string& path, const std::vector<std::string>& arguments);

  pid_t process_ = -1;
  int in_ = -1;
  int out_ = -1;
  int errors_ = -1;
  std::string buffer_;
  std::string complaint_;
};

}  // namespace roteiro_tests

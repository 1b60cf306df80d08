#pragma once

#include <optional>
#include <string>

namespace roteiro {

/// Lines from a file descriptor, with the possibility to wait for one only so long.
class LineReader {
 public:
  explicit LineReader(int descriptor) : descriptor_(descriptor) {}

  /// Waits until a line or the end of the input is there, or so many seconds; without a limit, as
  /// long as it takes. False when the time is up.
  bool Wait(std::optional<double> seconds);
  /// The next line without its end; nothing at the end of the input.
  std::optional<std::string> Line();

 private:
  bool HasLine() const { return ended_ || buffer_.find('\n') != std::string::npos; }
  void Fill();

  int descriptor_;
  std::string buffer_;
  bool ended_ = false;
};

}  // namespace roteiro

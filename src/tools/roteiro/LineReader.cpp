#include "tools/roteiro/LineReader.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>

namespace roteiro {

void LineReader::Fill() {
  std::array<char, 65536> chunk;
  const ssize_t count = read(descriptor_, chunk.data(), chunk.size());
  if (count > 0) {
    buffer_.append(chunk.data(), static_cast<std::size_t>(count));
  } else if (count == 0 || errno != EINTR) {
    ended_ = true;
  }
}

bool LineReader::Wait(std::optional<double> seconds) {
  using Clock = std::chrono::steady_clock;
  const auto deadline = Clock::now() + std::chrono::duration<double>(seconds.value_or(0));
  while (!HasLine()) {
    int milliseconds = -1;
    if (seconds) {
      const std::chrono::duration<double, std::milli> left = deadline - Clock::now();
      if (left.count() <= 0) return false;
      milliseconds = static_cast<int>(std::ceil(std::min(left.count(), 60'000.0)));
    }
    pollfd watched{descriptor_, POLLIN, 0};
    if (poll(&watched, 1, milliseconds) > 0) Fill();
  }
  return true;
}

std::optional<std::string> LineReader::Line() {
  Wait(std::nullopt);
  const std::size_t end = buffer_.find('\n');
  if (end == std::string::npos && buffer_.empty()) return std::nullopt;
  std::string line = buffer_.substr(0, end);
  buffer_.erase(0, end == std::string::npos ? end : end + 1);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace roteiro

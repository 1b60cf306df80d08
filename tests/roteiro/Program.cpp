#include "roteiro/Program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace roteiro_tests {
namespace {

// Far more than any answer takes, sanitizers on a busy machine included.
constexpr std::chrono::seconds kPatience{30};

struct Pipe {
  Pipe() {
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  std::array<int, 2> ends{};
};

/// Appends what is there to read; false at the end of the stream.
bool Take(int descriptor, std::string& text) {
  std::array<char, 4096> chunk;
  const ssize_t count = read(descriptor, chunk.data(), chunk.size());
  if (count > 0) text.append(chunk.data(), static_cast<std::size_t>(count));
  return count > 0;
}

}  // namespace

Program::Program(const std::string& path, const std::vector<std::string>& arguments) {
  signal(SIGPIPE, SIG_IGN);
  Launch(path, arguments);
}

void Program::Launch(const std::string& path, const std::vector<std::string>& arguments) {
  const Pipe in;
  const Pipe out;
  const Pipe errors;
  std::vector<char*> words{const_cast<char*>(path.c_str())};
  for (const std::string& each : arguments) words.push_back(const_cast<char*>(each.c_str()));
  words.push_back(nullptr);
  process_ = fork();
  if (process_ == 0) {
    dup2(in.ends[0], STDIN_FILENO);
    dup2(out.ends[1], STDOUT_FILENO);
    dup2(errors.ends[1], STDERR_FILENO);
    execv(path.c_str(), words.data());
    _exit(127);
  }
  close(in.ends[0]);
  close(out.ends[1]);
  close(errors.ends[1]);
  in_ = in.ends[1];
  out_ = out.ends[0];
  errors_ = errors.ends[0];
}

Program::~Program() {
  Finish();
  close(out_);
  close(errors_);
}

void Program::Terminate() {
  if (process_ > 0) kill(process_, SIGTERM);
}

void Program::Send(const std::string& line) {
  const std::string whole = line + "\n";
  std::size_t sent = 0;
  while (sent < whole.size()) {
    const ssize_t count = write(in_, whole.data() + sent, whole.size() - sent);
    if (count <= 0) return;  // It ended; the next Read tells.
    sent += static_cast<std::size_t>(count);
  }
}

void Program::EndInput() {
  if (in_ >= 0) close(in_);
  in_ = -1;
}

std::optional<std::string> Program::Read() {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  for (;;) {
    if (const std::size_t end = buffer_.find('\n'); end != std::string::npos) {
      std::string line = buffer_.substr(0, end);
      buffer_.erase(0, end + 1);
      return line;
    }
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        deadline - std::chrono::steady_clock::now());
    pollfd watched{out_, POLLIN, 0};
    if (left.count() <= 0 || poll(&watched, 1, static_cast<int>(left.count())) <= 0) {
      return std::nullopt;
    }
    if (!Take(out_, buffer_)) return std::nullopt;
  }
}

std::optional<int> Program::Finish() {
  if (process_ < 0) return std::nullopt;
  EndInput();
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  int status = 0;
  while (waitpid(process_, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() >= deadline) kill(process_, SIGKILL);
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  process_ = -1;
  while (Take(errors_, complaint_)) {
  }
  if (!WIFEXITED(status)) return std::nullopt;
  return WEXITSTATUS(status);
}

bool Program::Stop() {
  siginfo_t state{};
  const bool runs =
      process_ > 0 &&
      waitid(P_PID, static_cast<id_t>(process_), &state, WEXITED | WNOHANG | WNOWAIT) == 0 &&
      state.si_pid == 0;
  if (runs) kill(process_, SIGTERM);
  Finish();
  return runs;
}

}  // namespace roteiro_tests

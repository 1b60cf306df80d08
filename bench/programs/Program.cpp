#include "programs/Program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "support/Bench.h"

extern char** environ;

namespace bench {
namespace {

struct Pipe {
  Pipe() {
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  ~Pipe() {
    for (const int end : ends) {
      if (end >= 0) close(end);
    }
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  std::array<int, 2> ends{};
};

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size());
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  return pointers;
}

pid_t Start(const std::vector<std::string>& command, const std::string& input,
            const std::vector<std::string>& settings, int output) {
  std::vector<char*> arguments = Pointers(command);
  arguments.push_back(nullptr);
  // The first of two settings of one name counts.
  std::vector<char*> environment = Pointers(settings);
  for (char** each = environ; *each != nullptr; ++each) environment.push_back(*each);
  environment.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
  pid_t process = -1;
  const int failed = posix_spawn(&process, arguments.front(), &files, nullptr, arguments.data(),
                                 environment.data());
  posix_spawn_file_actions_destroy(&files);
  if (failed != 0) throw std::runtime_error("cannot start " + command.front());
  return process;
}

}  // namespace

Run RunProgram(const std::vector<std::string>& command, const std::string& input,
               const std::vector<std::string>& settings) {
  Run run;
  rusage usage{};
  int status = 0;
  run.seconds = SecondsOf([&] {
    Pipe pipe;
    const pid_t process = Start(command, input, settings, pipe.ends[1]);
    close(pipe.ends[1]);
    pipe.ends[1] = -1;
    std::array<char, 65'536> chunk;
    ssize_t count = 0;
    while ((count = read(pipe.ends[0], chunk.data(), chunk.size())) > 0) {
      run.output.append(chunk.data(), static_cast<std::size_t>(count));
    }
    if (wait4(process, &status, 0, &usage) != process) throw std::runtime_error("wait4");
  });
  constexpr int kSignalled = 128;
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
  constexpr long kKilo = 1024;
  run.peakMemory = usage.ru_maxrss * kKilo;
  return run;
}

}  // namespace bench

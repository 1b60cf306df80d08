#include "support/Crowd.h"

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <exception>
#include <stdexcept>

namespace bench {
namespace {

/// What a process is told: until when to work, by the steady clock, which all share.
struct Order {
  double until = 0;
};
/// What it answers, ahead of the operations and the words of its failure, if any.
struct Answer {
  double end = 0;
  std::size_t done = 0;
  std::size_t words = 0;
};

double Now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool Send(int line, const void* data, std::size_t size) {
  for (const char* at = static_cast<const char*>(data); size > 0;) {
    const ssize_t sent = send(line, at, size, MSG_NOSIGNAL);
    if (sent <= 0) return false;
    at += sent;
    size -= static_cast<std::size_t>(sent);
  }
  return true;
}

bool Receive(int line, void* data, std::size_t size) {
  return size == 0 || recv(line, data, size, MSG_WAITALL) == static_cast<ssize_t>(size);
}

void Obey(int line, const Order& order, const Crowd::Operation& operation) {
  std::vector<Crowd::Done> done;
  std::string words;
  double now = Now();
  try {
    do {
      const double before = now;
      const std::int64_t number = operation();
      now = Now();
      done.push_back({number, now - before});
    } while (now < order.until);
  } catch (const std::exception& error) {
    words = error.what();
    if (words.empty()) words = "no words";
  }
  const Answer answer{now, done.size(), words.size()};
  Send(line, &answer, sizeof(answer));
  Send(line, done.data(), done.size() * sizeof(Crowd::Done));
  Send(line, words.data(), words.size());
}

/// The life of a process: it ends when nobody talks to it any more.
void Live(int line, int place, const Crowd::Start& start) {
  Crowd::Operation operation;
  try {
    operation = start(place);
  } catch (const std::exception& error) {
    operation = [words = std::string(error.what())]() -> std::int64_t {
      throw std::runtime_error(words);
    };
  }
  for (Order order; Receive(line, &order, sizeof(order));) Obey(line, order, operation);
}

}  // namespace

Crowd::Crowd(int processes, const Start& start) {
  for (int place = 0; place < processes; ++place) Add(place, start);
}

void Crowd::Add(int place, const Start& start) {
  int lines[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, lines) != 0) {
    throw std::runtime_error("no line to another process");
  }
  const pid_t parent = getpid();
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(1);
    close(lines[0]);
    Live(lines[1], place, start);
    _exit(0);
  }
  close(lines[1]);
  members_.push_back({process, lines[0]});
  if (process < 0) throw std::runtime_error("no further process");
}

Crowd::~Crowd() {
  for (const Member& member : members_) {
    // Also when processes that were started later hold this end of the line.
    shutdown(member.line, SHUT_RDWR);
    close(member.line);
    if (member.process > 0) waitpid(member.process, nullptr, 0);
  }
}

Crowd::Slice Crowd::Work(double seconds) {
  Slice slice;
  std::string words;
  const double start = Now();
  const Order order{start + seconds};
  for (const Member& member : members_) Send(member.line, &order, sizeof(order));
  for (const Member& member : members_) {
    Answer answer;
    if (!Receive(member.line, &answer, sizeof(answer))) {
      throw std::runtime_error("a process has ended untimely");
    }
    const std::size_t before = slice.done.size();
    slice.done.resize(before + answer.done);
    std::string told(answer.words, ' ');
    if (!Receive(member.line, slice.done.data() + before, answer.done * sizeof(Done)) ||
        !Receive(member.line, told.data(), told.size())) {
      throw std::runtime_error("a process has ended in mid-sentence");
    }
    if (words.empty()) words = told;
    slice.seconds = std::max(slice.seconds, answer.end - start);
  }
  if (!words.empty()) throw std::runtime_error(words);
  return slice;
}

}  // namespace bench

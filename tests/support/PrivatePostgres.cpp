#include "support/PrivatePostgres.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace support {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr const char* kUser = "caixa";

/// Where the server's programs are: the newest version that is installed.
fs::path Programs() {
  fs::path newest;
  std::error_code none;
  for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", none)) {
    const fs::path programs = version.path() / "bin";
    if (fs::exists(programs / "initdb") && programs > newest) newest = programs;
  }
  if (newest.empty()) throw std::runtime_error("PostgreSQL is not installed (postgresql-15)");
  return newest;
}

/// The server refuses to run as root.
const passwd* Unprivileged() {
  if (geteuid() != 0) return nullptr;
  for (const char* name : {"postgres", "nobody"}) {
    if (const passwd* user = getpwnam(name)) return user;
  }
  throw std::runtime_error("no unprivileged user to run PostgreSQL as");
}

/// Starts a program that dies when this process does, its words going to a file.
pid_t Start(const std::vector<std::string>& command, const fs::path& folder) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& each : command) arguments.push_back(const_cast<char*>(each.c_str()));
  arguments.push_back(nullptr);
  const passwd* user = Unprivileged();
  const std::string log = (folder / "log").string();
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child != 0) return child;
  if (user != nullptr &&
      (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)) {
    _exit(126);
  }
  prctl(PR_SET_PDEATHSIG, SIGQUIT);
  if (getppid() != parent) _exit(126);
  const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  if (chdir(folder.c_str()) != 0) _exit(126);
  execv(arguments[0], arguments.data());
  _exit(127);
}

std::string LogOf(const fs::path& folder) {
  std::ifstream file(folder / "log");
  return {std::istreambuf_iterator<char>(file), {}};
}

void RunToEnd(const std::vector<std::string>& command, const fs::path& folder) {
  int status = 0;
  const pid_t child = Start(command, folder);
  if (waitpid(child, &status, 0) != child || status != 0) {
    throw std::runtime_error(command.front() + " failed:\n" + LogOf(folder));
  }
}

int FreePort() {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof(address);
  auto* const generic = reinterpret_cast<sockaddr*>(&address);
  const bool isBound =
      bind(listener, generic, length) == 0 && getsockname(listener, generic, &length) == 0;
  close(listener);
  if (!isBound) throw std::runtime_error("no free port");
  return ntohs(address.sin_port);
}

/// The last line of the server's own note of how far it is.
bool IsReady(const fs::path& data) {
  std::ifstream file(data / "postmaster.pid");
  std::string last;
  for (std::string line; std::getline(file, line);) last = line;
  return last.starts_with("ready");
}

}  // namespace

PrivatePostgres::PrivatePostgres(bool durable) : durable_(durable) {
  std::string name = (fs::temp_directory_path() / "caixa-pg-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = name;
  if (const passwd* user = Unprivileged()) {
    if (chown(name.c_str(), user->pw_uid, user->pw_gid) != 0) throw std::runtime_error("chown");
  }
  try {
    RunToEnd({Programs() / "initdb", "-D", folder_ / "dados", "-U", kUser, "-E", "UTF8",
              "--locale=C.UTF-8", "-A", "trust", "--no-sync"},
             folder_);
    port_ = FreePort();
    BringBack();
  } catch (...) {
    TakeDown();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    throw;
  }
}

PrivatePostgres::~PrivatePostgres() {
  TakeDown();
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

void PrivatePostgres::Launch() {
  server_ =
      Start({Programs() / "postgres", "-D", folder_ / "dados", "-p", std::to_string(port_), "-c",
             "listen_addresses=127.0.0.1", "-c", "unix_socket_directories=" + folder_.string(),
             "-c", durable_ ? "fsync=on" : "fsync=off", "-c", "max_connections=40"},
            folder_);
}

void PrivatePostgres::BringBack() {
  Launch();
  const auto end = std::chrono::steady_clock::now() + 60s;
  while (!IsReady(folder_ / "dados")) {
    int status = 0;
    const bool hasEnded = waitpid(server_, &status, WNOHANG) == server_;
    if (hasEnded) server_ = -1;
    if (hasEnded || std::chrono::steady_clock::now() > end) {
      throw std::runtime_error("PostgreSQL did not start:\n" + LogOf(folder_));
    }
    std::this_thread::sleep_for(20ms);
  }
}

void PrivatePostgres::TakeDown() {
  if (server_ <= 0) return;
  int status = 0;
  kill(server_, SIGQUIT);
  const auto end = std::chrono::steady_clock::now() + 30s;
  while (waitpid(server_, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > end) kill(server_, SIGKILL);
    std::this_thread::sleep_for(10ms);
  }
  server_ = -1;
  std::error_code ignored;
  fs::remove(folder_ / "dados" / "postmaster.pid", ignored);
}

std::string PrivatePostgres::NewDatabase() {
  const std::string name = "clinica" + std::to_string(++databases_);
  RunToEnd(
      {Programs() / "createdb", "-h", "127.0.0.1", "-p", std::to_string(port_), "-U", kUser, name},
      folder_);
  return "postgresql:" + ConnectionText(name);
}

std::string PrivatePostgres::ConnectionText(const std::string& name) const {
  return "host=127.0.0.1 port=" + std::to_string(port_) + " user=" + kUser + " dbname=" + name;
}

}  // namespace support

#include "services/faults/CuttingProxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <string_view>

namespace services {
namespace {

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

int Connect(int port) {
  const int server = socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = Loopback(port);
  if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) _exit(1);
  return server;
}

/// Passes everything on between the two; true when they are to be cut at a commit.
bool Pass(int client, int server, bool mayCut, CuttingProxy::Cut cut) {
  std::array<char, 65'536> part{};
  bool isCommitting = false;
  for (;;) {
    std::array<pollfd, 2> ends{{{client, POLLIN, 0}, {server, POLLIN, 0}}};
    poll(ends.data(), ends.size(), -1);
    for (std::size_t from = 0; from < ends.size(); ++from) {
      if (ends[from].revents == 0) continue;
      const auto length = read(ends[from].fd, part.data(), part.size());
      if (length <= 0) return false;
      const std::string_view words(part.data(), static_cast<std::size_t>(length));
      if (from == 1 && isCommitting) return true;
      isCommitting = mayCut && from == 0 && words.find("COMMIT") != std::string_view::npos;
      if (write(ends[1 - from].fd, words.data(), words.size()) != length) return false;
      if (isCommitting && cut == CuttingProxy::Cut::kWhileCommitting) return true;
    }
  }
}

[[noreturn]] void Serve(int listener, int serverPort, CuttingProxy::Cut cut, bool& hasCut) {
  for (;;) {
    const int client = accept(listener, nullptr, nullptr);
    const int server = Connect(serverPort);
    if (Pass(client, server, !hasCut, cut)) hasCut = true;
    close(client);
    close(server);
  }
}

}  // namespace

CuttingProxy::CuttingProxy(int serverPort, Cut cut)
    : hasCut_(static_cast<bool*>(
          mmap(nullptr, sizeof(bool), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address = Loopback(0);
  socklen_t length = sizeof address;
  auto* const generic = reinterpret_cast<sockaddr*>(&address);
  constexpr int kBacklog = 8;
  if (bind(listener, generic, length) != 0 || listen(listener, kBacklog) != 0 ||
      getsockname(listener, generic, &length) != 0) {
    throw std::runtime_error("no port for the proxy");
  }
  port_ = ntohs(address.sin_port);
  process_ = fork();
  if (process_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    signal(SIGPIPE, SIG_IGN);
    Serve(listener, serverPort, cut, *hasCut_);
  }
  close(listener);
}

CuttingProxy::~CuttingProxy() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  munmap(hasCut_, sizeof(bool));
}

}  // namespace services

#include "services/faults/CuttingProxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace services {
namespace {

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

}  // namespace

/// A client (0) and the server (1) as one connection joins them.
struct CuttingProxy::Pair {
  std::array<int, 2> ends{-1, -1};
  bool isCommitting = false;
  bool isMute = false;
  std::string commit = {};  ///< The name that the client has given to that statement.
  std::string held = {};    ///< From the client, kept from the server.

  void Close() {
    for (int& end : ends) close(std::exchange(end, -1));
  }
};

/// The other process.
class CuttingProxy::Server {
 public:
  Server(int listener, int serverPort, Moment moment, Deed deed, Shared& shared)
      : listener_(listener), port_(serverPort), moment_(moment), deed_(deed), shared_(shared) {}

  [[noreturn]] void Serve() {
    for (;;) {
      std::vector<pollfd> all{{listener_, POLLIN, 0}};
      for (const Pair& pair : pairs_) {
        // What is mute is not even heard to hang up.
        for (const int end : pair.ends) all.push_back({pair.isMute ? -1 : end, POLLIN, 0});
      }
      constexpr int kMilliseconds = 5;
      poll(all.data(), all.size(), kMilliseconds);
      for (std::size_t i = 0; i < pairs_.size(); ++i) {
        for (std::size_t from = 0; from < 2; ++from) {
          if (all[1 + 2 * i + from].revents != 0) Pass(pairs_[i], from);
        }
        if (pairs_[i].isMute && shared_.letsIn) Release(pairs_[i]);
      }
      if (all[0].revents != 0) Accept();
    }
  }

 private:
  void Accept() {
    const int client = accept(listener_, nullptr, nullptr);
    const bool isShut = deed_ == Deed::kGone && shared_.hasStruck && !shared_.letsIn;
    const int server = isShut ? -1 : socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(port_);
    const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
    if (isShut || connect(server, generic, sizeof address) != 0) {
      close(client);
      close(server);
      return;
    }
    pairs_.push_back({{client, server}});
  }

  void Pass(Pair& pair, std::size_t from) {
    std::array<char, 65'536> part{};
    const auto length = read(pair.ends[from], part.data(), part.size());
    if (length <= 0) return pair.Close();
    std::string words(part.data(), static_cast<std::size_t>(length));
    const bool struckBefore = shared_.hasStruck;
    const std::string rest = struckBefore ? "" : TakeBack(pair, from, words);
    if (!words.empty() && write(pair.ends[1 - from], words.data(), words.size()) < 0) {
      return pair.Close();
    }
    if (struckBefore || !shared_.hasStruck) return;
    if (deed_ != Deed::kMute) return pair.Close();
    pair.isMute = true;
    if (from == 0) pair.held = rest;
  }

  /// Strikes when the moment is there: cuts from the words what is not to pass any more.
  std::string TakeBack(Pair& pair, std::size_t from, std::string& words) {
    const bool saysCommit = from == 0 && SaysCommit(pair, words);
    // Those before it pass.
    const bool isTheCommit = saysCommit && shared_.commits == shared_.mostCommits;
    if (saysCommit) shared_.commits = shared_.commits + 1;
    std::size_t passing = words.size();
    bool strikes = false;
    if (moment_ == Moment::kClientBytes || moment_ == Moment::kServerBytes) {
      if (!shared_.isArmed || from != (moment_ == Moment::kClientBytes ? 0U : 1U)) return "";
      const std::int64_t left = shared_.most - shared_.bytes;
      strikes = static_cast<std::int64_t>(words.size()) >= left;
      if (strikes) passing = static_cast<std::size_t>(left);
      shared_.bytes = shared_.bytes + static_cast<std::int64_t>(passing);
    } else if (moment_ == Moment::kCommitted) {
      strikes = from == 1 && pair.isCommitting;
      if (strikes) passing = 0;
      pair.isCommitting = pair.isCommitting || isTheCommit;
    } else {
      strikes = isTheCommit;
      if (strikes && moment_ == Moment::kCommitArrives) passing = 0;
    }
    if (strikes) shared_.hasStruck = true;
    const std::string rest = words.substr(passing);
    words.resize(passing);
    return rest;
  }

  /// The first time the word itself comes, and a name for it, each later time the name alone.
  static bool SaysCommit(Pair& pair, const std::string& words) {
    const std::size_t word = words.find(std::string("\0COMMIT", 7));
    if (word != std::string::npos) {
      const std::size_t name = words.rfind("caixa", word);
      if (name != std::string::npos) pair.commit = words.substr(name, word - name);
    }
    return words.find("COMMIT") != std::string::npos ||
           (!pair.commit.empty() && words.find('\0' + pair.commit + '\0') != std::string::npos);
  }

  static void Release(Pair& pair) {
    pair.isMute = false;
    if (write(pair.ends[1], pair.held.data(), pair.held.size()) < 0) pair.Close();
  }

  int listener_;
  int port_;
  Moment moment_;
  Deed deed_;
  Shared& shared_;
  std::vector<Pair> pairs_;
};

CuttingProxy::CuttingProxy(int serverPort, Moment moment, Deed deed)
    : shared_(static_cast<Shared*>(mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE,
                                        MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
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
    Server(listener, serverPort, moment, deed, *shared_).Serve();
  }
  close(listener);
}

CuttingProxy::~CuttingProxy() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  munmap(shared_, sizeof(Shared));
}

void CuttingProxy::LetCommitsPass(int count) {
  shared_->commits = 0;
  shared_->mostCommits = count;
}

void CuttingProxy::Arm(std::int64_t most) {
  shared_->bytes = 0;
  shared_->most = most;
  shared_->isArmed = true;
}

}  // namespace services

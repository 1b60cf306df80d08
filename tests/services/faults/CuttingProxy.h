#pragma once

#include <sys/types.h>

#include <cstdint>

namespace services {

/// Stands between a client and a server on the loopback address, in a process of its own, and does
/// something to the first connection on which a moment comes. Later connections pass whole.
class CuttingProxy {
 public:
  enum class Moment {
    kCommitArrives,  ///< The client says COMMIT; the server never hears it.
    kCommitting,     ///< The server has just been told.
    kCommitted,      ///< The server has carried it out; its answer does not go back.
    kClientBytes,    ///< So many bytes have come from the client since Arm.
    kServerBytes,    ///< The same from the server.
  };
  enum class Deed {
    kCut,   ///< Both ends are closed.
    kGone,  ///< The same, and nobody gets in any more until LetIn.
    kMute,  ///< Nothing passes any more, and the ends stay open; what was held back goes on at
            ///< LetIn.
  };

  CuttingProxy(int serverPort, Moment moment, Deed deed);
  ~CuttingProxy();
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;

  int Port() const { return port_; }
  bool HasStruck() const { return shared_->hasStruck; }
  /// From here on bytes count, up to `most`.
  void Arm(std::int64_t most);
  /// From here on so many commits pass before the moment of one comes; the very first is the one
  /// that counts otherwise.
  void LetCommitsPass(int count);
  int Commits() const { return shared_->commits; }
  std::int64_t Bytes() const { return shared_->bytes; }
  void LetIn() { shared_->letsIn = true; }

 private:
  /// What the two processes tell each other.
  struct Shared {
    volatile bool isArmed, hasStruck, letsIn;
    volatile std::int64_t bytes, most;
    volatile int commits, mostCommits;
  };
  struct Pair;
  class Server;

  Shared* shared_;
  int port_ = 0;
  pid_t process_ = -1;
};

}  // namespace services

#pragma once

#include <sys/types.h>

namespace services {

/// Stands between a client and a server on the loopback address, in a process of its own, and cuts
/// the first connection on which the client says COMMIT. Later connections pass whole.
class CuttingProxy {
 public:
  enum class Cut {
    kWhenCommitted,    ///< Once the server has carried it out, but before its answer goes back.
    kWhileCommitting,  ///< As soon as the server has been told.
  };
  CuttingProxy(int serverPort, Cut cut);
  ~CuttingProxy();
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;

  int Port() const { return port_; }
  bool HasCut() const { return *hasCut_; }

 private:
  bool* hasCut_;  ///< Shared with the process.
  int port_ = 0;
  pid_t process_ = -1;
};

}  // namespace services

#pragma once

#include <sys/types.h>

namespace services {

/// Stands between a client and a server on the loopback address, in a process of its own, and cuts
/// the first connection on which the client says COMMIT: once the server has carried it out, but
/// before its answer goes back. Later connections pass whole.
class CuttingProxy {
 public:
  explicit CuttingProxy(int serverPort);
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

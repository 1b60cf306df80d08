#pragma once

#include <sys/types.h>

#include <filesystem>
#include <memory>
#include <string>

namespace support {

/// A PostgreSQL server of the test's own: a cluster in a temporary folder, on a free port of the
/// loopback address, run as an unprivileged user when the test is root. It ends with the object,
/// and with the test's process however that ends.
class PrivatePostgres {
 public:
  /// Starts one; std::runtime_error says why it could not. `durable` makes commits wait for the
  /// disk as in a clinic; without it tests run faster, and nothing but a power failure differs.
  explicit PrivatePostgres(bool durable = false);
  ~PrivatePostgres();
  PrivatePostgres(const PrivatePostgres&) = delete;
  PrivatePostgres& operator=(const PrivatePostgres&) = delete;

  /// Creates an empty database, and gives its address for services::AbrirBanco.
  std::string NewDatabase();
  /// The connection text of a database by its name.
  std::string ConnectionText(const std::string& name) const;

  int Port() const { return port_; }

  /// Takes the server away as a power failure does, without a word to its clients.
  void TakeDown();
  /// Brings it back on the same port, and waits until it answers.
  void BringBack();

 private:
  void Launch();

  std::filesystem::path folder_;
  bool durable_;
  int port_ = 0;
  int databases_ = 0;
  pid_t server_ = -1;
};

}  // namespace support

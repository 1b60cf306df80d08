#include "services/banco/NewFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string_view>

#include "services/banco/DatabaseError.h"
#include "services/banco/Schema.h"
#include "services/banco/SqliteSession.h"

namespace services {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(std::string_view what) {
  const bool isForbidden = errno == EACCES || errno == EPERM || errno == EROFS;
  throw DatabaseError(isForbidden ? Trouble::kNoPermission : Trouble::kStorage,
                      std::string(what) + ": " + std::strerror(errno));
}

/// A file that nobody else knows, for its owner alone; gone with the object, as are its log and
/// index.
class OwnFile {
 public:
  explicit OwnFile(const std::string& beside) : name_(beside + ".nova-XXXXXX") {
    const int file = mkstemp(name_.data());
    if (file < 0) Fail(name_);
    close(file);
  }
  ~OwnFile() {
    for (const char* suffix : {"", "-wal", "-shm"}) unlink((name_ + suffix).c_str());
  }
  OwnFile(const OwnFile&) = delete;
  OwnFile& operator=(const OwnFile&) = delete;

  const std::string& Name() const { return name_; }
  /// Nothing of it lies outside the file itself.
  bool IsWhole() const {
    std::error_code none;
    const auto left = fs::file_size(name_ + "-wal", none);
    return none || left == 0;
  }

 private:
  std::string name_;
};

void Build(const std::string& file) {
  SqliteSession session(file, SqliteSession::File::kMustExist);
  session.UseLog();
  Migrate(session);
}

/// Makes the new name last, as the file's contents do.
void SyncFolderOf(const std::string& path) {
  const fs::path folder = fs::path(path).parent_path();
  const int handle =
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;  // It can be written to but not listed.
  const bool isDone = fsync(handle) == 0 || errno == EINVAL;
  close(handle);
  if (!isDone) Fail(path);
}

/// Gives the file its name, where nothing bears it. Not all file systems know links, nor a renaming
/// that replaces nothing: there an empty file is left, which is a database yet to be created.
void PutInPlace(const std::string& own, const std::string& path) {
  if (link(own.c_str(), path.c_str()) == 0 || errno == EEXIST) return;
  if (renameat2(AT_FDCWD, own.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) return;
  if (errno == EEXIST) return;
  constexpr mode_t kOwner = 0600;
  const int empty = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwner);
  if (empty < 0 && errno != EEXIST) Fail(path);
  if (empty >= 0) close(empty);
}

}  // namespace

void CreateWhole(const std::string& path) {
  const OwnFile own(path);
  Build(own.Name());
  if (!own.IsWhole()) throw DatabaseError(Trouble::kStorage, own.Name() + "-wal");
  PutInPlace(own.Name(), path);
  SyncFolderOf(path);
}

}  // namespace services

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/vfs.h>

#include <csignal>
#endif

#include <array>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/Desktop.h"

namespace platform::files {
namespace {

namespace fs = std::filesystem;
using base::Fault;
using base::RuntimeError;

/// Only what the system says is not there is not found: a file that it does not let be looked at
/// may well be there, and whoever took it for absent would put a new one in its place.
[[noreturn]] void Refuse(const fs::path& path, int fault) {
  if (fault != ENOENT && fault != ENOTDIR) throw RuntimeError(Fault::kPermissionDenied);
  std::error_code ignored;
  const fs::path folder = path.parent_path();
  const bool hasFolder = folder.empty() || fs::is_directory(folder, ignored);
  throw RuntimeError(hasFolder ? Fault::kFileNotFound : Fault::kPathNotFound);
}

struct Look {
  bool isPlain = false;  ///< Neither a folder nor a pipe.
  off_t size = 0;
  timespec changed{};
};

struct OpenFile {
  explicit OpenFile(int opened) : descriptor(opened) {}
  ~OpenFile() {
    if (descriptor >= 0) close(descriptor);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  Look LookAt() const {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return {};
    return {S_ISREG(status.st_mode), status.st_size, status.st_mtim};
  }

  int descriptor;
};

#ifdef __linux__
/// Whether a program of this machine has the file open for writing: a lease for reading is not
/// granted then. On a network folder that refusal says nothing, nor is one granted on the file of
/// another user.
bool HasWriter(int file) {
  constexpr std::array<std::uint32_t, 3> kNetworks{0x6969, 0xFF534D42, 0xFE534D42};  // NFS, SMB
  struct statfs system {};
  if (fstatfs(file, &system) != 0) return false;
  for (const std::uint32_t network : kNetworks) {
    if (static_cast<std::uint32_t>(system.f_type) == network) return false;
  }
  // A writer that comes while the lease stands is announced with a signal that nobody minds; it
  // waits until the lease is given back, which is at once.
  fcntl(file, F_SETSIG, SIGURG);
  if (fcntl(file, F_SETLEASE, F_RDLCK) != 0) return errno == EAGAIN;
  fcntl(file, F_SETLEASE, F_UNLCK);
  return false;
}
#else
bool HasWriter(int) {
  return false;
}
#endif

/// Whether another program has locked the file, or is still at work on it.
bool IsBeingWritten(int file) {
  struct flock lock {};
  lock.l_type = F_RDLCK;
  lock.l_whence = SEEK_SET;
  if (fcntl(file, F_GETLK, &lock) == 0 && lock.l_type == F_WRLCK) return true;
  if (flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK) return true;
  return HasWriter(file);
}

std::function<bool(const std::string&)>& Keeper() {
  static std::function<bool(const std::string&)> keeper;
  return keeper;
}

}  // namespace

bool Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored) && !fs::is_directory(path, ignored);
}

void InsteadOfDeleting(std::function<bool(const std::string& path)> keep) {
  Keeper() = std::move(keep);
}

void Delete(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) Refuse(path, errno);
  if (S_ISDIR(status.st_mode)) Refuse(path, EISDIR);
  if (Keeper() && Keeper()(path)) return;
  if (unlink(path.c_str()) != 0) Refuse(path, errno);
}

std::string Read(const std::string& path) {
  // Not waiting for a writer, should it be a pipe.
  const OpenFile file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.descriptor < 0) Refuse(path, errno);
  const Look before = file.LookAt();
  if (!before.isPlain || IsBeingWritten(file.descriptor)) {
    throw RuntimeError(Fault::kPermissionDenied);
  }
  std::string bytes;
  std::array<char, 65'536> piece{};
  ssize_t got = 0;
  while ((got = read(file.descriptor, piece.data(), piece.size())) > 0) {
    bytes.append(piece.data(), static_cast<std::size_t>(got));
  }
  const Look after = file.LookAt();
  const bool changed = after.changed.tv_sec != before.changed.tv_sec ||
                       after.changed.tv_nsec != before.changed.tv_nsec ||
                       bytes.size() != static_cast<std::size_t>(after.size);
  if (got < 0 || changed) throw RuntimeError(Fault::kPermissionDenied);
  return bytes;
}

bool MakeFolder(const std::string& path) {
  std::error_code failed;
  for (fs::path level; const fs::path& name : fs::path(path)) {
    level /= name;
    // Customers and their affairs are told in what lies there.
    if (!fs::is_directory(level, failed) && mkdir(level.c_str(), 0700) != 0 && errno != EEXIST) {
      return false;
    }
  }
  return fs::is_directory(path, failed);
}

}  // namespace platform::files

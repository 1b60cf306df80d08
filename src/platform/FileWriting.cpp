#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>

#include "base/RuntimeError.h"
#include "platform/Desktop.h"

namespace platform::files {
namespace {

namespace fs = std::filesystem;
using base::Fault;
using base::RuntimeError;

[[noreturn]] void Refuse(int fault) {
  const bool noFolder = fault == ENOENT || fault == ENOTDIR;
  throw RuntimeError(noFolder ? Fault::kPathNotFound : Fault::kPermissionDenied);
}

std::optional<struct stat> StatusOf(const fs::path& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT) Refuse(errno);
  return std::nullopt;
}

/// Where the bytes lie that a path names: a link goes on being one, and what it names is replaced.
/// One that another user has put there is not followed, since they would choose what is
/// overwritten.
fs::path Followed(fs::path path) {
  constexpr int kMostLinks = 16;
  for (int links = 0; links < kMostLinks; ++links) {
    const std::optional<struct stat> status = StatusOf(path);
    if (!status || !S_ISLNK(status->st_mode)) return path;
    if (status->st_uid != geteuid() && status->st_uid != 0) break;
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length <= 0) break;
    // An absolute target takes the place of the folder.
    path = path.parent_path() / std::string(target.data(), static_cast<std::size_t>(length));
  }
  throw RuntimeError(Fault::kPermissionDenied);
}

/// Renaming over a file asks nothing of that file, so its protection is looked at first.
bool IsReplaceable(const fs::path& path, const std::optional<struct stat>& status) {
  if (!status) return true;
  return S_ISREG(status->st_mode) && (status->st_mode & (S_IWUSR | S_IWGRP)) != 0 &&
         access(path.c_str(), W_OK) == 0;
}

/// A new file of ours in the folder of the one that it is to replace, gone with this object unless
/// it took that place. Nobody can have foreseen its name, and none but us can read it.
class Beside {
 public:
  explicit Beside(const fs::path& folder)
      : path_((folder / ".caixa-XXXXXX").string()), file_(mkostemp(path_.data(), O_CLOEXEC)) {
    if (file_ < 0) Refuse(errno);
  }
  ~Beside() {
    Close();
    if (!path_.empty()) unlink(path_.c_str());
  }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;

  bool Write(const std::string& bytes) const {
    for (std::size_t sent = 0; sent < bytes.size();) {
      const ssize_t count = write(file_, bytes.data() + sent, bytes.size() - sent);
      if (count < 0 && errno != EINTR) return false;
      if (count > 0) sent += static_cast<std::size_t>(count);
    }
    return true;
  }
  /// Takes the owner, the group and the protection of the file that it replaces.
  bool BeLike(const struct stat& replaced) const {
    mode_t mode = replaced.st_mode & 07777;
    // An administrator's program may not take the settings away from whom they belong to.
    const bool kept = fchown(file_, replaced.st_uid, replaced.st_gid) == 0 ||
                      fchown(file_, static_cast<uid_t>(-1), replaced.st_gid) == 0;
    // What that group could read is none of the business of another one.
    if (!kept) mode &= ~static_cast<mode_t>(S_IRWXG);
    return fchmod(file_, mode) == 0;
  }
  bool TakePlaceOf(const fs::path& path) {
    if (fsync(file_) != 0 || !Close() || rename(path_.c_str(), path.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

 private:
  bool Close() {
    const bool closed = file_ < 0 || close(file_) == 0;
    file_ = -1;
    return closed;
  }

  std::string path_;
  int file_;
};

/// A renaming lasts once its folder is on the disk. Not every network folder can be told so.
void Sync(const fs::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

}  // namespace

void Write(const std::string& path, const std::string& bytes) {
  const fs::path target = Followed(path);
  const std::optional<struct stat> replaced = StatusOf(target);
  if (!IsReplaceable(target, replaced)) throw RuntimeError(Fault::kPermissionDenied);
  // Written beside and renamed over: a machine that dies in between leaves the old file whole.
  const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
  Beside beside(folder);
  const bool written = beside.Write(bytes) && (!replaced || beside.BeLike(*replaced));
  if (!written || !beside.TakePlaceOf(target)) throw RuntimeError(Fault::kPermissionDenied);
  Sync(folder);
}

}  // namespace platform::files

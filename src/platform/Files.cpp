#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/RuntimeError.h"
#include "platform/Desktop.h"

namespace platform::files {
namespace {

namespace fs = std::filesystem;
using base::Fault;
using base::RuntimeError;

[[noreturn]] void Refuse(const fs::path& path) {
  std::error_code ignored;
  const fs::path folder = path.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, ignored)) {
    throw RuntimeError(Fault::kPathNotFound);
  }
  throw RuntimeError(fs::exists(path, ignored) ? Fault::kPermissionDenied : Fault::kFileNotFound);
}

/// Renaming over a file asks nothing of that file, so its protection is looked at first.
bool IsReadOnly(const std::string& path) {
  constexpr fs::perms kWritable = fs::perms::owner_write | fs::perms::group_write;
  std::error_code failed;
  const fs::perms perms = fs::status(path, failed).permissions();
  return Exists(path) &&
         ((perms & kWritable) == fs::perms::none || access(path.c_str(), W_OK) != 0);
}

}  // namespace

bool Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored) && !fs::is_directory(path, ignored);
}

void Delete(const std::string& path) {
  std::error_code failed;
  if (!Exists(path) || !fs::remove(path, failed) || failed) Refuse(path);
}

std::string Read(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in || !Exists(path)) Refuse(path);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  if (in.bad()) throw RuntimeError(Fault::kPermissionDenied);
  return std::move(bytes).str();
}

void Write(const std::string& path, const std::string& bytes) {
  if (IsReadOnly(path)) throw RuntimeError(Fault::kPermissionDenied);
  // Written beside and renamed over: a machine that dies in between leaves the old file whole.
  const std::string beside = path + ".novo";
  std::FILE* const out = std::fopen(beside.c_str(), "wb");
  if (out == nullptr) {
    const bool noFolder = errno == ENOENT || errno == ENOTDIR;
    throw RuntimeError(noFolder ? Fault::kPathNotFound : Fault::kPermissionDenied);
  }
  bool written = std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
  written = std::fflush(out) == 0 && written;
  written = fsync(fileno(out)) == 0 && written;
  written = std::fclose(out) == 0 && written;
  if (!written || std::rename(beside.c_str(), path.c_str()) != 0) {
    std::remove(beside.c_str());
    throw RuntimeError(Fault::kPermissionDenied);
  }
}

}  // namespace platform::files

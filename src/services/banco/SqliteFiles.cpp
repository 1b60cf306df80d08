#include "services/banco/SqliteFiles.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <array>
#include <cerrno>
#include <utility>

namespace services {
namespace {

// The places of numbers in the files, as SQLite documents its formats.
constexpr int kHeader = 16;         ///< Of a database, where its page size stands.
constexpr int kPagesInHeader = 28;  ///< Its count of pages.
constexpr off_t kLogHeader = 32;
constexpr off_t kFrameHeader = 24;
constexpr int kIndexPage = 32'768;  ///< A piece of the index of the log.

/// The beginning of the index of the log, which all connections map.
struct IndexHeader {
  std::uint32_t version, unused, changes;
  std::uint8_t isInitialised, isBigEndian;
  std::uint16_t pageSize;  ///< 1 stands for 65,536.
  std::uint32_t frames;    ///< Of the log, up to the last commit.
  std::uint32_t pages, lastChecksum[2];
  std::uint32_t
      salt[2];  ///< In all pieces of the log; another one each time that it is begun anew.

  std::uint64_t Salt() const volatile { return std::uint64_t{salt[0]} << 32U | salt[1]; }
};

std::uint32_t BigEndian(const unsigned char* bytes, int count) {
  std::uint32_t number = 0;
  for (int i = 0; i < count; ++i) number = number << 8U | bytes[i];
  return number;
}

off_t PageSize(std::uint32_t told) {
  return told == 1 ? 65'536 : off_t{told};
}

/// SQLite's own handle of the database file. It may not be opened past SQLite: closing it would let
/// go of all locks of this process on it.
sqlite3_file* FileOf(sqlite3* database) {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
  return file;
}

/// Null when the connection has none mapped.
const volatile IndexHeader* IndexOf(sqlite3* database) {
  sqlite3_file* const file = FileOf(database);
  void volatile* mapped = nullptr;
  if (file == nullptr || file->pMethods == nullptr || file->pMethods->iVersion < 2) return nullptr;
  if (file->pMethods->xShmMap(file, 0, kIndexPage, 0, &mapped) != SQLITE_OK) return nullptr;
  return static_cast<const volatile IndexHeader*>(mapped);
}

}  // namespace

SqliteFiles::SqliteFiles(sqlite3* database, std::string path)
    : database_(database), path_(std::move(path)) {
  // SQLite goes through links to the file itself, and keeps its log beside that.
  const std::string file = sqlite3_db_filename(database_, "main");
  logPath_ = file + "-wal";
  indexPath_ = file + "-shm";
  main_ = Found(path_, {});
  log_ = Found(logPath_, {});
  index_ = Found(indexPath_, {});
}

SqliteFiles::Identity SqliteFiles::Found(const std::string& path, const Identity& last) {
  // Not the times: of a file whose times were asked for the kernel has to note the very next write,
  // which costs that write ten times what the question does.
  struct statx found {};
  if (statx(AT_FDCWD, path.c_str(), 0, STATX_INO | STATX_SIZE, &found) != 0) {
    // A disk that does not say has not said that the file is gone.
    return errno == EIO || errno == ENOMEM ? last : Identity{};
  }
  return {makedev(found.stx_dev_major, found.stx_dev_minor), found.stx_ino,
          static_cast<off_t>(found.stx_size)};
}

bool SqliteFiles::IsDatabaseThere() {
  const Identity now = Found(path_, main_);
  if (now != main_) return false;
  if (now.size < main_.size && IsShorterThanItSays(now.size)) return false;
  main_.size = now.size;
  return true;
}

bool SqliteFiles::IsShorterThanItSays(off_t size) const {
  // A file that was made smaller as it should be says so at its beginning.
  std::array<unsigned char, kPagesInHeader + 4 - kHeader> header{};
  sqlite3_file* const file = FileOf(database_);
  const int status = file->pMethods->xRead(file, header.data(), header.size(), kHeader);
  if (status != SQLITE_OK) return status == SQLITE_IOERR_SHORT_READ;
  const std::uint32_t pages = BigEndian(&header[kPagesInHeader - kHeader], 4);
  return size < pages * PageSize(BigEndian(header.data(), 2));
}

bool SqliteFiles::IsLogThere() {
  const volatile IndexHeader* const index = IndexOf(database_);
  if (index == nullptr) return false;
  const off_t frame = kFrameHeader + PageSize(index->pageSize);
  while (true) {
    const End end{.frames = index->frames, .salt = index->Salt()};
    constexpr off_t kUnknown = -1;
    const Identity now = Found(logPath_, {log_.device, log_.node, kUnknown});
    if (now != log_ || Found(indexPath_, index_) != index_) return false;
    const bool isLongEnough =
        now.size == kUnknown || now.size >= kLogHeader + frame * static_cast<off_t>(end.frames);
    const bool isKept = end.salt != end_.salt || IsInLog(end_, frame);
    if (end.frames == 0 || (isLongEnough && isKept)) {
      end_ = end;
      return true;
    }
    // Another program may just have emptied the log into the database.
    if (end.frames == index->frames && end.salt == index->Salt()) return false;
  }
}

bool SqliteFiles::IsInLog(const End& end, off_t frameSize) const {
  constexpr int kSaltInFrame = 8;
  sqlite3_file* log = nullptr;
  sqlite3_file_control(database_, "main", SQLITE_FCNTL_JOURNAL_POINTER, static_cast<void*>(&log));
  if (end.frames == 0 || log == nullptr || log->pMethods == nullptr) return true;
  std::array<std::uint32_t, 2> salt{};
  const off_t at = kLogHeader + frameSize * static_cast<off_t>(end.frames - 1) + kSaltInFrame;
  const int status = log->pMethods->xRead(log, salt.data(), sizeof salt, at);
  if (status != SQLITE_OK) return status != SQLITE_IOERR_SHORT_READ;
  return (std::uint64_t{salt[0]} << 32U | salt[1]) == end.salt;
}

std::uint32_t SqliteFiles::PagesInLog() const {
  const volatile IndexHeader* const index = IndexOf(database_);
  return index == nullptr ? 0 : index->frames;
}

}  // namespace services

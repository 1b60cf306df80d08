#pragma once

#include <sqlite3.h>

#include <functional>

namespace services {

/// Stands between SQLite and its files, for every database that is opened while it lives; one at a
/// time. What was opened so is closed before it goes.
class SqliteShim {
 public:
  SqliteShim();
  ~SqliteShim();
  SqliteShim(const SqliteShim&) = delete;
  SqliteShim& operator=(const SqliteShim&) = delete;

  /// What writing to a log, and making it last, answer instead of being done; SQLITE_OK lets it be
  /// done.
  std::function<int()> writing = [] { return SQLITE_OK; };
  std::function<int()> syncing = [] { return SQLITE_OK; };

  /// Checkpoints that this process has begun beside others, and those of them that began while no
  /// connection of this process held the writing up.
  int checkpoints = 0;
  int unguarded = 0;

 private:
  static int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags);
  static int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at);
  static int Sync(sqlite3_file* file, int flags);
  static int Lock(sqlite3_file* file, int place, int count, int flags);

  static inline SqliteShim* now_ = nullptr;

  sqlite3_vfs* real_;
  sqlite3_vfs own_;
  const sqlite3_io_methods* realDatabase_ = nullptr;
  const sqlite3_io_methods* realLog_ = nullptr;
  sqlite3_io_methods database_{};
  sqlite3_io_methods log_{};
  int writersHeld_ = 0;
};

}  // namespace services

#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

struct sqlite3;

namespace services {

/// The files of a database in write-ahead mode as its connection has them open: SQLite goes on
/// writing to a file that was deleted or replaced under its name, and takes no notice when one is
/// cut short. Looking costs a few microseconds.
class SqliteFiles {
 public:
  /// The connection is in write-ahead mode and has read; nobody has touched the files since. `path`
  /// is what the database was opened by.
  SqliteFiles(sqlite3* database, std::string path);

  /// Whether the database itself is still the file under its name, and as long as it must be.
  bool IsDatabaseThere();
  /// The same of the log, which holds all that was committed and is not in the database yet, and of
  /// the index of the log. What the log held when this was last asked must be there still: one that
  /// was cut and written to again is as long as ever.
  bool IsLogThere();
  bool AreThere() { return IsDatabaseThere() && IsLogThere(); }

  /// How many pages the log holds that a reader has to look for there.
  std::uint32_t PagesInLog() const;

 private:
  struct Identity {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    bool operator==(const Identity& other) const {
      return device == other.device && node == other.node;
    }
  };

  /// The end of the log at some time: its last piece that counts, and which of its lives it is in.
  struct End {
    std::uint32_t frames = 0;
    std::uint64_t salt = 0;
  };

  /// What bears the name now; `last` when the disk fails to say.
  static Identity Found(const std::string& path, const Identity& last);
  bool IsInLog(const End& end, off_t frameSize) const;
  bool IsShorterThanItSays(off_t size) const;

  sqlite3* database_;
  std::string path_, logPath_, indexPath_;
  Identity main_, log_, index_;
  End end_;
};

}  // namespace services

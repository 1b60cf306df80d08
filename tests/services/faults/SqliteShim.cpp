#include "services/faults/SqliteShim.h"

namespace services {
namespace {

// The places of locks in the index of the log.
constexpr int kWriting = 0;
constexpr int kCheckpointing = 1;

}  // namespace

SqliteShim::SqliteShim() : real_(sqlite3_vfs_find(nullptr)), own_(*real_) {
  own_.zName = "prova";
  own_.xOpen = Open;
  now_ = this;
  sqlite3_vfs_register(&own_, 1);
}

SqliteShim::~SqliteShim() {
  sqlite3_vfs_unregister(&own_);
  sqlite3_vfs_register(real_, 1);
  now_ = nullptr;
}

int SqliteShim::Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  const int status = now_->real_->xOpen(now_->real_, name, file, flags, outFlags);
  if (status != SQLITE_OK) return status;
  if ((flags & SQLITE_OPEN_MAIN_DB) != 0) {
    now_->realDatabase_ = file->pMethods;
    now_->database_ = *file->pMethods;
    now_->database_.xShmLock = Lock;
    file->pMethods = &now_->database_;
  } else if ((flags & SQLITE_OPEN_WAL) != 0) {
    now_->realLog_ = file->pMethods;
    now_->log_ = *file->pMethods;
    now_->log_.xWrite = Write;
    now_->log_.xSync = Sync;
    file->pMethods = &now_->log_;
  }
  return SQLITE_OK;
}

int SqliteShim::Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
  const int status = now_->writing();
  return status != SQLITE_OK ? status : now_->realLog_->xWrite(file, bytes, count, at);
}

int SqliteShim::Sync(sqlite3_file* file, int flags) {
  const int status = now_->syncing();
  return status != SQLITE_OK ? status : now_->realLog_->xSync(file, flags);
}

int SqliteShim::Lock(sqlite3_file* file, int place, int count, int flags) {
  const int status = now_->realDatabase_->xShmLock(file, place, count, flags);
  if (status != SQLITE_OK || count != 1 || (flags & SQLITE_SHM_EXCLUSIVE) == 0) return status;
  const bool isTaken = (flags & SQLITE_SHM_LOCK) != 0;
  if (place == kWriting) now_->writersHeld_ += isTaken ? 1 : -1;
  if (place == kCheckpointing && isTaken) {
    ++now_->checkpoints;
    now_->unguarded += now_->writersHeld_ == 0 ? 1 : 0;
  }
  return status;
}

}  // namespace services

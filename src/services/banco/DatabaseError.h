#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace services {

/// What can be wrong between the services and their database, whichever engine it is; the value is
/// the error number that the operator sees.
enum class Trouble : std::int32_t {
  kConnectionLost = 3001,  ///< Inside a transaction: nothing of the operation was kept.
  kInDoubt = 3002,         ///< Lost while it was being kept; whether it stands is not known.
  kBusy = 3003,
  kConflict = 3004,  ///< Two transactions in each other's way; worth another try.
  kConstraint = 3005,
  kOutOfRange = 3006,
  kFull = 3007,
  kReadOnly = 3008,
  kStorage = 3009,
  kCorrupt = 3010,
  kNotADatabase = 3011,
  kNoPermission = 3012,
  kSchema = 3013,
  kReadFailed = 3014,  ///< The connection fell, or no answer came in time, while reading.
  kFileGone = 3015,    ///< The file was deleted, replaced or cut while it was open.
  kUnderWay = 3016,    ///< Asked while an earlier call still waits for its answer.
  kOther = 3099,
};

/// The Portuguese sentence for the operator: what happened, and what to do.
std::string_view Sentence(Trouble trouble);

/// A statement that the database did not carry out. `what()` is the sentence, followed by the
/// engine's own words in brackets.
class DatabaseError : public std::runtime_error {
 public:
  DatabaseError(Trouble trouble, std::string_view detail);

  Trouble What() const { return trouble_; }
  /// The engine's own words, or the operation that failed; may be empty, may be several lines.
  const std::string& Detail() const { return detail_; }

 private:
  Trouble trouble_;
  std::string detail_;
};

/// By an extended result code of SQLite.
Trouble TroubleOfSqlite(int extendedCode);
/// By a five-character SQLSTATE; an empty one is a lost connection.
Trouble TroubleOfSqlState(std::string_view state);

}  // namespace services

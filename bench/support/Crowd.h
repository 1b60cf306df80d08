#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Processes of their own that do an operation at once, each again and again, as the computers of a
/// clinic do. Between two slices of time they wait. They end with the object, and with this
/// process.
class Crowd {
 public:
  /// Gives a number that tells what it did.
  using Operation = std::function<std::int64_t()>;
  /// Makes the operation of a process, counted from 0, in that process: whatever it connects to is
  /// its own.
  using Start = std::function<Operation(int process)>;

  struct Done {
    std::int64_t number = 0;
    double seconds = 0;
  };
  struct Slice {
    std::vector<Done> done;  ///< By all processes.
    double seconds = 0;      ///< From the start until the last of them was through.
  };

  /// No connection may be open here: the processes would have it too.
  Crowd(int processes, const Start& start);
  ~Crowd();
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;

  /// Lets all of them work for so long; what one has begun it finishes, and each does it once at
  /// least. Throws std::runtime_error when one of them failed, with its words.
  Slice Work(double seconds);

 private:
  struct Member {
    pid_t process = -1;
    int line = -1;  ///< To talk with it.
  };

  void Add(int place, const Start& start);

  std::vector<Member> members_;
};

}  // namespace bench

#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>

namespace services {

/// What the system does to a process: the process asks to be watched, and comes to grief at one of
/// its calls that touch files or sockets.
class SystemCalls {
 public:
  enum class Deed {
    kDieBefore,  ///< Killed as it asks; the call is not carried out.
    kDieAfter,   ///< Killed before it hears that the call was carried out.
    kDiskError,  ///< The call fails: a broken disk, a connection that is reset.
    kDiskFull,   ///< The call fails: no space, or no memory for a socket.
  };

  /// False where processes cannot be watched so: another kind of machine, a closed-off one.
  static bool CanBeWatched();

  /// In the process: waits for the one that started it to watch.
  static void OfferToBeWatched();
  /// In the one that started it: does the deed at call number `at`, from 0, unless the process
  /// writes to `marker` before. The count of calls until then.
  static int Watch(pid_t process, int at, Deed deed, int marker);
};

}  // namespace services

#include "services/stands/SystemCalls.h"

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace services {

#ifdef __x86_64__
namespace {

using Deed = SystemCalls::Deed;
using Registers = user_regs_struct;

constexpr std::array kWritingCalls{SYS_write,     SYS_pwrite64,  SYS_openat,    SYS_open,
                                   SYS_fsync,     SYS_rename,    SYS_link,      SYS_mkdir,
                                   SYS_fdatasync, SYS_fallocate, SYS_ftruncate, SYS_renameat2};
constexpr std::array kLookingCalls{SYS_read,  SYS_pread64, SYS_stat,       SYS_lstat,
                                   SYS_fstat, SYS_access,  SYS_newfstatat, SYS_statx,
                                   SYS_chmod, SYS_fchmod,  SYS_unlink};
/// Never refused by a disk or a network: what is given back is given back.
constexpr std::array kCallsThatDoNotFail{SYS_close, SYS_fcntl};
constexpr std::array kSocketCalls{SYS_sendto,  SYS_recvfrom, SYS_sendmsg,
                                  SYS_recvmsg, SYS_connect,  SYS_socket};

template <std::size_t n>
bool IsOneOf(const std::array<int, n>& calls, unsigned long long call) {
  return std::ranges::find(calls, static_cast<int>(call)) != calls.end();
}

bool Counts(Deed deed, unsigned long long call) {
  if (IsOneOf(kWritingCalls, call) || IsOneOf(kSocketCalls, call)) return true;
  if (IsOneOf(kLookingCalls, call)) return deed != Deed::kDiskFull;
  return (deed == Deed::kDieBefore || deed == Deed::kDieAfter) &&
         IsOneOf(kCallsThatDoNotFail, call);
}

int ErrorOf(Deed deed, unsigned long long call) {
  if (IsOneOf(kSocketCalls, call)) return deed == Deed::kDiskFull ? ENOBUFS : ECONNRESET;
  return deed == Deed::kDiskFull ? ENOSPC : EIO;
}

Registers RegistersOf(pid_t process) {
  Registers registers{};
  ptrace(PTRACE_GETREGS, process, nullptr, &registers);
  return registers;
}

/// Lets the process run until its next call begins or ends; false once it is no more. Signals
/// reach it.
bool RunToTheNextStop(pid_t process) {
  long signal = 0;
  for (;;) {
    ptrace(PTRACE_SYSCALL, process, nullptr, signal);
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) return false;
    if (WSTOPSIG(status) == (SIGTRAP | 0x80)) return true;
    signal = WSTOPSIG(status);
  }
}

void Do(Deed deed, pid_t process, Registers registers) {
  const int error = ErrorOf(deed, registers.orig_rax);
  if (deed == Deed::kDiskError || deed == Deed::kDiskFull) {
    registers.orig_rax = static_cast<unsigned long long>(-1);  // Nothing is carried out.
    ptrace(PTRACE_SETREGS, process, nullptr, &registers);
  }
  if (deed == Deed::kDieBefore || !RunToTheNextStop(process)) {
    kill(process, SIGKILL);
    return;
  }
  if (deed == Deed::kDieAfter) {
    kill(process, SIGKILL);
    return;
  }
  registers = RegistersOf(process);
  registers.rax = static_cast<unsigned long long>(-error);
  ptrace(PTRACE_SETREGS, process, nullptr, &registers);
}

}  // namespace

bool SystemCalls::CanBeWatched() {
  const pid_t process = fork();
  if (process == 0) _exit(ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
  int status = 1;
  waitpid(process, &status, 0);
  return status == 0;
}

void SystemCalls::OfferToBeWatched() {
  ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
  raise(SIGSTOP);
}

int SystemCalls::Watch(pid_t process, int at, Deed deed, int marker) {
  int status = 0;
  if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) return 0;
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  int count = 0;
  bool isOver = false;
  while (!isOver) {
    if (!RunToTheNextStop(process)) return count;
    const Registers registers = RegistersOf(process);
    if (registers.orig_rax == SYS_write && static_cast<int>(registers.rdi) == marker) break;
    isOver = Counts(deed, registers.orig_rax) && count++ == at;
    if (isOver) {
      Do(deed, process, registers);
    } else if (!RunToTheNextStop(process)) {
      return count;
    }
  }
  ptrace(PTRACE_DETACH, process, nullptr, nullptr);
  return count;
}

#else

bool SystemCalls::CanBeWatched() {
  return false;
}

void SystemCalls::OfferToBeWatched() {}

int SystemCalls::Watch(pid_t, int, Deed, int) {
  return 0;
}

#endif

}  // namespace services

#include "tools/vitrine/Process.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace vitrine::process {

double SecondsSinceStart() {
  std::ifstream stat("/proc/self/stat");
  std::string text((std::istreambuf_iterator<char>(stat)), std::istreambuf_iterator<char>());
  // The name of the program, in brackets, may hold anything; the start is the 20th field after it.
  std::istringstream fields(text.substr(text.rfind(')') + 1));
  constexpr int kFieldsBefore = 19;
  std::string skipped;
  for (int i = 0; i < kFieldsBefore; ++i) fields >> skipped;
  double ticks = 0;
  fields >> ticks;
  double now = 0;
  std::ifstream("/proc/uptime") >> now;
  return now - ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

long PeakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss * 1024;  // Told in kilobytes.
}

}  // namespace vitrine::process

#include "support/Options.h"

#include <charconv>
#include <stdexcept>
#include <string_view>

namespace bench {
namespace {

constexpr std::int64_t kRowsOfAQuickRun = 700;
constexpr int kRoundsOfAQuickRun = 2;

Options chosen;

/// Whether the argument is this option; what stands behind its "=" goes to `value`.
bool Is(std::string_view argument, std::string_view name, std::string& value) {
  if (!argument.starts_with(name) || argument.substr(name.size(), 1) != "=") return false;
  value = argument.substr(name.size() + 1);
  return true;
}

std::int64_t NumberIn(const std::string& text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size() || number < kRowsOfAQuickRun) {
    throw std::runtime_error("--rows: a number from " + std::to_string(kRowsOfAQuickRun) + " on");
  }
  return number;
}

}  // namespace

int Options::Rounds(int usual) const {
  return quick ? kRoundsOfAQuickRun : usual;
}

const Options& Chosen() {
  return chosen;
}

void ReadOptions(int& argc, char** argv) {
  int kept = 1;
  std::string rows;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--quick") {
      chosen.quick = true;
      chosen.rows = kRowsOfAQuickRun;
    } else if (Is(argument, "--rows", rows)) {
      chosen.rows = NumberIn(rows);
    } else if (!Is(argument, "--folder", chosen.folder) &&
               !Is(argument, "--postgres", chosen.postgres)) {
      argv[kept++] = argv[i];
    }
  }
  argc = kept;
  argv[argc] = nullptr;
}

}  // namespace bench

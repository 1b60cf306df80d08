#include "tools/roteiro/Options.h"

#include <filesystem>

#include "base/Text.h"
#include "tools/roteiro/Json.h"

namespace roteiro {
namespace {

void TakeServices(Options& options, const std::string& value) {
  const bool known = value == "stub" || (value.starts_with("sqlite:") && value != "sqlite:") ||
                     value.starts_with("postgresql:");
  if (!known) throw UsageError("--services is stub, sqlite:FILE or postgresql:CONNINFO");
  options.database = value == "stub" ? "" : value;
}

void TakeFolder(Options& options, const std::string& value) {
  std::error_code failed;
  if (!std::filesystem::is_directory(value, failed)) {
    throw UsageError("--dir: there is no folder " + value);
  }
  options.folder = std::filesystem::absolute(value, failed).string();
  while (options.folder.size() > 1 && options.folder.ends_with('/')) options.folder.pop_back();
}

void TakeNow(Options& options, const std::string& value) {
  try {
    options.now = ToDateTime(value);
  } catch (const CannotDo& refusal) {
    throw UsageError(std::string("--now: ") + refusal.what());
  }
}

void TakeClock(Options& options, const std::string& value) {
  if (value != "virtual" && value != "real") throw UsageError("--clock is virtual or real");
  options.realClock = value == "real";
}

void TakePaper(Options& options, const std::string& value) {
  if (value != "a4" && value != "roll80") throw UsageError("--paper is a4 or roll80");
  options.paper = value == "a4" ? platform::kA4Paper : platform::kRoll80Paper;
}

void TakeExchange(Options& options, const std::string& value) {
  if (value.empty()) throw UsageError("--exchange needs a folder");
  options.exchange = std::filesystem::absolute(value).string();
}

void TakeComputer(Options& options, const std::string& value) {
  if (base::IsBlank(value)) throw UsageError("--computador needs a name");
  options.computer = value;
}

void TakeLog(Options& options, const std::string& value) {
  if (value.empty()) throw UsageError("--log needs a file");
  options.log = value;
}

struct Option {
  std::string_view name;
  void (*take)(Options& options, const std::string& value);
};

constexpr Option kOptions[] = {
    {"--services", TakeServices},   {"--dir", TakeFolder},  {"--now", TakeNow},
    {"--clock", TakeClock},         {"--paper", TakePaper}, {"--exchange", TakeExchange},
    {"--computador", TakeComputer}, {"--log", TakeLog},
};

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); i += 2) {
    const Option* found = nullptr;
    for (const Option& each : kOptions) {
      if (each.name == arguments[i]) found = &each;
    }
    if (found == nullptr) throw UsageError("unknown option " + arguments[i]);
    if (i + 1 == arguments.size()) throw UsageError(arguments[i] + " needs a value");
    found->take(options, arguments[i + 1]);
  }
  if (!options.exchange.empty() && options.database.empty()) {
    throw UsageError("--exchange needs a database: nothing is written with stand-ins");
  }
  return options;
}

}  // namespace roteiro

#include "tools/roteiro/Roteiro.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "frame/servicos/Servico.h"
#include "platform/Input.h"
#include "tools/roteiro/Commands.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Module.h"
#include "tools/roteiro/Options.h"
#include "tools/roteiro/Place.h"
#include "tools/roteiro/Session.h"
#include "tools/roteiro/StandIns.h"
#include "tools/roteiro/Timeline.h"

namespace roteiro {
namespace {

/// The module's folder: the one asked for, or one of our own that goes when we go.
class Folder {
 public:
  explicit Folder(const std::string& asked) : path_(asked), isOurs_(asked.empty()) {
    if (!isOurs_) return;
    path_ = (std::filesystem::temp_directory_path() / "caixa-roteiro-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  ~Folder() {
    std::error_code ignored;
    if (isOurs_) std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  bool isOurs_;
};

/// Takes the services away when the conversation ends: they hold on to what it is made of.
struct ServicesScope {
  ServicesScope() = default;
  ~ServicesScope() { servicos::EsquecerTodos(); }
  ServicesScope(const ServicesScope&) = delete;
  ServicesScope& operator=(const ServicesScope&) = delete;
};

base::DateTime LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  // A leap second has no place in a clock of 60 seconds.
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
}

void Converse(const Options& options, const Parts& parts) {
  std::ofstream log;
  if (!options.log.empty()) {
    log.open(options.log);
    if (!log) throw std::runtime_error("--log: cannot write " + options.log);
  }
  const Folder folder(options.folder);
  Timeline timeline(options.realClock ? Timeline::Mode::kReal : Timeline::Mode::kVirtual,
                    options.now.value_or(LocalTime()));
  Conversation conversation({STDIN_FILENO, std::cout, options.log.empty() ? nullptr : &log},
                            timeline);
  StandIns standIns([&](Json event) { conversation.Tell(std::move(event)); });
  const ServicesScope services;
  Session session;
  HeadlessDesktop desktop(conversation, timeline, folder.Path(), options.computer);
  desktop.PrintOn(options.paper);
  std::function<void()> care;
  if (options.database.empty()) {
    RegisterBusinessStandIns(standIns);
    RegisterScreenStandIns(standIns);
    RegisterEffectStandIns(standIns);
  } else {
    care = parts.useDatabase(options, standIns, desktop);
    standIns.BusinessIsReal();
  }
  const std::unique_ptr<Module> module = parts.makeModule();
  Stage stage{conversation, timeline, desktop, standIns, session, *module};
  conversation.Attach([&](const Json& command) { return CarryOut(stage, command); },
                      [&] { return PlaceOf(desktop.Held()); });
  conversation.AtRest([&] {
    if (care && desktop.Held() == nullptr) platform::input::Run(care);
  });
  conversation.Serve([] { return false; });
  // The host goes: the loops have unwound, and nobody else frees the customer that is held here.
  platform::input::Run([&] {
    const std::int32_t customer = module->LockedCustomer();
    if (customer != 0) module->LockOrUnlock(customer, 2);
  });
  desktop.CloseWindows();
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const Parts& parts) {
  try {
    Converse(ReadOptions(arguments), parts);
    return 0;
  } catch (const UsageError& error) {
    std::cerr << "caixa-roteiro: " << error.what() << '\n' << kUsage;
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "caixa-roteiro: " << error.what() << '\n';
    return 1;
  }
}

}  // namespace roteiro

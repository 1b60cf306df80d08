#include <sys/utsname.h>

#include <fstream>

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_SO.clsObterVersaoDoSO.h"
#include "services/contrato/Fabricas.h"

namespace services {
namespace {

/// The system's own name for itself, as in "Debian GNU/Linux 12 (bookworm)".
std::string NameOfSystem() {
  constexpr std::string_view kKey = "PRETTY_NAME=";
  std::ifstream file("/etc/os-release");
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with(kKey)) continue;
    std::string name = base::Replace(line.substr(kKey.size()), "\"", "");
    if (!name.empty()) return name;
  }
  utsname system{};
  if (uname(&system) != 0) return "Linux";
  return std::string(system.sysname) + ' ' + system.release;
}

class clsObterVersaoDoSO : public servicos::ZOVA_N_SO::clsObterVersaoDoSO {
 public:
  std::string ObterversaoDoSO() override {
    static const std::string name = NameOfSystem();
    return name;
  }
};

}  // namespace

ServicoNovo NovoClsObterVersaoDoSO(const std::shared_ptr<Banco>&) {
  return std::make_unique<clsObterVersaoDoSO>();
}

}  // namespace services

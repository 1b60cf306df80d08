#include "services/Banco.h"

#include "services/Session.h"

namespace services {

Banco::Banco(std::unique_ptr<Session> sessao, const base::Clock& relogio, std::string computador)
    : sessao_(std::move(sessao)),
      relogio_(relogio),
      computador_(computador.empty() ? "N" : std::move(computador)) {}

Banco::~Banco() = default;

}  // namespace services

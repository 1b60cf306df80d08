#include "services/Banco.h"

#include "services/Session.h"

namespace services {

Banco::Banco(std::unique_ptr<Session> sessao, const base::Clock& relogio, std::string computador,
             std::string marca)
    : sessao_(std::move(sessao)),
      relogio_(relogio),
      computador_(computador.empty() ? "N" : std::move(computador)),
      marca_(std::move(marca)) {}

Banco::~Banco() = default;

void Banco::Avisar(const std::string& frase) {
  if (aoAvisar_) aoAvisar_(frase);
}

}  // namespace services

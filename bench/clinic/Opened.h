#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "clinic/Clinic.h"
#include "clinic/Clock.h"
#include "frame/servicos/Servico.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/contrato/RegistrarServicos.h"
#include "support/TemporaryFolder.h"

namespace bench {

/// The business services over a database, found by their identifiers while it lives.
class Opened {
 public:
  explicit Opened(const Database& database, const std::string& computer = "BALCAO-1") {
    banco_ = services::AbrirBanco(database.Address(), clock_, computer);
    // As the program does it: what is being registered is noted on this workstation's disk.
    banco_->LembrarRegistros(settings_.Path().string(), database.Address());
    services::RegistrarServicos(banco_);
  }
  ~Opened() { servicos::EsquecerTodos(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  services::Banco& Bank() { return *banco_; }
  services::Session& Session() { return banco_->Sessao(); }
  const std::shared_ptr<services::Banco>& Shared() const { return banco_; }

 private:
  StandingClock clock_;
  support::TemporaryFolder settings_;
  std::shared_ptr<services::Banco> banco_;
};

/// Throws std::runtime_error unless the operation of a service answered that it succeeded.
template <class Service>
void Require(bool succeeded, Service& service) {
  if (succeeded) return;
  throw std::runtime_error(service.DescricaoDoErro() + service.DescricaoDaFalha());
}

/// Opens a register with nothing in its drawer, as the services do it.
void OpenRegister(std::int32_t number);

}  // namespace bench

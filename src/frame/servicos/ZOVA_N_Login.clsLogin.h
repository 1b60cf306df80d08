#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Login {

/// Authentication. ResultadoDaSelecaoEmRecordSet is then the user, indexed by right name.
class clsLogin : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Login.clsLogin";
  static constexpr std::string_view kMembros = "NomeDeUsuario SenhaDoUsuario Autenticar";

  virtual void NomeDeUsuario(std::string_view) { Ausente(); }
  virtual void SenhaDoUsuario(std::string_view) { Ausente(); }
  virtual std::int16_t Autenticar() { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Login

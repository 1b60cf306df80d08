#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Administrativo {

/// The locks that keep two computers from serving one customer.
class clsAdministrativo : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Administrativo.clsAdministrativo";
  static constexpr std::string_view kMembros =
      "NomeDoComputador SelecionarClientesComTransacoesBloqueadas BloquearCliente "
      "DesbloquearCliente";

  virtual void NomeDoComputador(std::string_view) { Ausente(); }
  /// NomeDoComputador, NomeDoUsuario of who holds the customer.
  virtual std::int16_t SelecionarClientesComTransacoesBloqueadas(std::int32_t, std::int16_t,
                                                                 double& /*codigo*/, std::int16_t) {
    Ausente();
  }
  virtual std::int16_t BloquearCliente(std::int16_t, double& /*codigo*/, std::int16_t) {
    Ausente();
  }
  virtual std::int16_t DesbloquearCliente(std::int16_t, double& /*codigo*/, std::int16_t) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_Administrativo

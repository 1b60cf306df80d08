#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_ClientAnim {

/// The customers, their discounts and credit.
class clsClientes : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_ClientAnim.clsClientes";
  static constexpr std::string_view kMembros = "Selecionar RetornarInformacoesDoLimiteDeCredito";

  /// By any of code and names (fourth argument), or by part of a name (fifth), or by code (sixth).
  virtual std::int16_t Selecionar(std::int32_t, std::int16_t, std::int32_t,
                                  std::string_view /*textoDeQualquerCampo*/, std::string& /*nome*/,
                                  double& /*codigo*/, std::string_view, std::string_view,
                                  std::string_view, double, std::string_view) {
    Ausente();
  }
  virtual std::int16_t RetornarInformacoesDoLimiteDeCredito(double& /*codigo*/,
                                                            base::Currency& /*limite*/,
                                                            base::Currency& /*utilizado*/,
                                                            base::Currency& /*disponivel*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_ClientAnim

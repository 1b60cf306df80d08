#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_ClientAnim {

/// The customers' animals.
class clsAnimais : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_ClientAnim.clsAnimais";
  static constexpr std::string_view kMembros = "SelecionarParaComboBoxFiltradoPorCliente";

  /// Nome, Codigo.
  virtual std::int16_t SelecionarParaComboBoxFiltradoPorCliente(double& /*codigo*/, std::int16_t) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_ClientAnim

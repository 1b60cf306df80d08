#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixas {

/// The cash registers.
class clsCaixas : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixas.clsCaixas";
  static constexpr std::string_view kMembros = "SelecionarParaComboBox";

  /// Numero, LocalDeAtendimento, Status: 1 open, 2 closed, 3 not operable.
  virtual std::int16_t SelecionarParaComboBox() { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Caixas

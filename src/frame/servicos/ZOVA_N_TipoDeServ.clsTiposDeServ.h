#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_TipoDeServ {

/// The types of service.
class clsTiposDeServ : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_TipoDeServ.clsTiposDeServ";
  static constexpr std::string_view kMembros = "SelecionarParaComboBox";

  /// Numero, Nome.
  virtual std::int16_t SelecionarParaComboBox(double&) { Ausente(); }
};

}  // namespace servicos::ZOVA_N_TipoDeServ

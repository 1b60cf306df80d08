#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Empresa {

/// The one company record, with the settings of the cash desk.
class clsEmpresa : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Empresa.clsEmpresa";
  static constexpr std::string_view kMembros = "Selecionar";

  virtual std::int16_t Selecionar(std::int32_t, std::int32_t) { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Empresa

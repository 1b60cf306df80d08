#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Funcionarios {

/// The employees and their commissions. Selecionar answers true on a fault.
class clsFuncionarios : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Funcionarios.clsFuncionarios";
  static constexpr std::string_view kMembros = "Selecionar";

  /// All of them, or the one of a code other than 0.
  virtual bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view,
                          std::string_view, double& /*codigo*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_Funcionarios

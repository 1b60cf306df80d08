#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixa {

/// A customer's overdue receivables; only their number is read.
class clsDebitosVencCliente : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixa.clsDebitosVencCliente";
  static constexpr std::string_view kMembros = "Selecionar";

  /// " WHERE [ContasAReceber.CodigoDoCliente]=N".
  virtual std::int16_t Selecionar(std::int16_t, std::string_view /*condicao*/) { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Caixa

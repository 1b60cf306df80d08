#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixa {

/// The movements of a customer's credit.
class clsCreditosDoCliente : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixa.clsCreditosDoCliente";
  static constexpr std::string_view kMembros = "Selecionar";

  /// DataEHoraDoLancamento, Moeda, NomeDoOperador, Observacao, Valor.
  virtual std::int16_t Selecionar(std::string_view /*codigoDoCliente*/) { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Caixa

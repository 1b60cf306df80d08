#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixa {

/// A customer's open pre-sale: services done and products reserved elsewhere in the suite.
class clsServicosEProdutos : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixa.clsServicosEProdutos";
  static constexpr std::string_view kMembros =
      "ServicosEfetuadosEProdutosReservados SelecionarServicosEfetuados "
      "SelecionarProdutosReservados";

  /// Twenty fields in the column order of a sale line, each already in its text form.
  virtual std::int16_t ServicosEfetuadosEProdutosReservados(double& /*codigoDoCliente*/) {
    Ausente();
  }
  /// " WHERE ServicosEfetuados.NumeroDeLancamento = N ".
  virtual std::int16_t SelecionarServicosEfetuados(std::int16_t, std::int16_t,
                                                   std::string_view /*condicao*/) {
    Ausente();
  }
  /// " WHERE ProdutosReservados.NumeroDeLancamento = N ".
  virtual std::int16_t SelecionarProdutosReservados(std::int16_t, std::int16_t,
                                                    std::string_view /*condicao*/) {
    Ausente();
  }
};

}  // namespace servicos::ZOVA_N_Caixa

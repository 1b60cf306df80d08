#pragma once

#include <cstdint>
#include <string_view>

#include "base/DateTime.h"
#include "frame/servicos/Servico.h"

namespace siblings::dados {

/// What a customer has bought. Numbered status.
class clsHistorico : public servicos::ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "siblings.clsHistorico";

  /// The sales of a period, both days included, the latest first: Numero, DataEHora, Caixa,
  /// Operador, ValorBruto, Descontos, ValorLiquido, Situacao ("Efetuada", "Cancelada"),
  /// Pagamentos (text), ChaveSAT, DescontoNosItens and DescontoDaVenda, which together are what
  /// lies between gross and net; Descontos is the figure that the checkout handed over. Of very
  /// many only the latest come; DescricaoDaFalha then says so.
  virtual std::int16_t SelecionarVendas(double /*codigoDoCliente*/, base::DateTime /*de*/,
                                        base::DateTime /*ate*/) {
    Ausente();
  }
  /// The lines of one sale: Codigo, Nome, Animal, Profissional, Quantidade, Unidade, ValorUnitario,
  /// Desconto, ValorTotal.
  virtual std::int16_t SelecionarItens(std::int32_t /*numeroDaVenda*/) { Ausente(); }
};

}  // namespace siblings::dados

#pragma once

#include <cstdint>
#include <string_view>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Servico.h"

namespace siblings::dados {

/// Who stands on a printed document. Numbered status.
class clsDocumentos : public servicos::ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "siblings.clsDocumentos";

  /// The company, no row when none is registered: NomeFantasia, RazaoSocial, CNPJ, Endereco,
  /// Municipio, UF, Telefone.
  virtual std::int16_t SelecionarEmpresa() { Ausente(); }
  /// A customer, no row for an unknown one: Codigo, Nome, CPFCNPJ, Endereco, Contato.
  virtual std::int16_t SelecionarCliente(double /*codigoDoCliente*/) { Ausente(); }
  /// The instalment that a promissory note stands for: the customer's latest one of that due date
  /// and value that was made on the day of `emissao`; no row when there is none: NumeroDaVenda,
  /// NumeroDaParcela, NumeroDeParcelas.
  virtual std::int16_t SelecionarParcela(double /*codigoDoCliente*/, base::DateTime /*emissao*/,
                                         base::DateTime /*vencimento*/, base::Currency /*valor*/) {
    Ausente();
  }
};

}  // namespace siblings::dados

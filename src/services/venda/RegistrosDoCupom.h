#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"

namespace services {

struct Venda;

/// What the texts of a coupon tell of its sale.
struct RegistrosDoCupom {
  std::int32_t caixa = 0;
  /// How the coupon names the consumer: identification, code and document, as they stand.
  std::string consumidor;
  std::int32_t codigoDoCliente = 0;  ///< 0 where the coupon does not name them.
  /// The items and payments of this try, by which the same sale is known again.
  std::string conteudo;
  base::Currency valor;  ///< What its products come to.
};

/// The checkout adds the records of a try to those of the tries before: this one's are the last
/// ones that begin at the first sequence.
RegistrosDoCupom LerRegistrosDoCupom(std::string_view cabecalho, std::string_view itens,
                                     std::string_view pagamentos);

/// Whether these records list just the products of the sale.
bool SaoOsProdutosDe(const std::string& conteudo, const Venda& venda);

}  // namespace services

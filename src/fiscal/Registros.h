#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/DateTime.h"

/// The text that the outside fiscal application reads to issue a coupon (CF-e SAT): a header, then
/// an item for each product sold, then a payment for each tender. Registros.cpp draws the records.
namespace fiscal {

/// How the coupon names the consumer.
enum Identificacao : std::int16_t {
  kNaoIdentificado = 1,
  kDocumentoInformado = 2,  ///< By the CPF or CNPJ told at the register.
  kClienteCadastrado = 3,   ///< By their code in the clinic's records.
};

struct Cabecalho {
  std::int16_t tipoDeIdentificacao = kNaoIdentificado;
  std::string_view documento;        ///< With the punctuation of its mask, or empty.
  std::string_view codigoDoCliente;  ///< Read for kClienteCadastrado alone.
  std::int32_t numeroDoCaixa = 0;
  std::string_view imprimir;  ///< kImprimir or kNaoImprimir.
};

inline constexpr std::string_view kImprimir = "N";
inline constexpr std::string_view kNaoImprimir = " ";

/// A line of the sale, each field as the text of its cell.
struct Item {
  std::string_view sequencia, codigo, quantidade, valorUnitario, desconto, valorTotal;
};

/// A tender, with what its share in the coupon is reckoned from. Texts are those of the cells.
struct Pagamento {
  std::string_view sequencia;
  std::int16_t forma = 0;  ///< servicos::pagamento::Codigo.
  std::string_view valor;
  std::string_view vencimento;    ///< A date dd/mm/yyyy; any other text stands for `hoje`.
  std::string_view valorDaVenda;  ///< What the whole sale comes to, services included.
  base::Currency totalDeProdutos;
  base::DateTime hoje;
};

/// The header record with its line break.
std::string RegistroDeCabecalho(const Cabecalho& cabecalho);
/// Appends the record with its line break. A number that cannot be read counts as zero.
void AcrescentarItem(std::string& registros, const Item& item);
/// Appends the record with its line break; error 6 when the share exceeds what a currency holds.
void AcrescentarPagamento(std::string& registros, const Pagamento& pagamento);

}  // namespace fiscal

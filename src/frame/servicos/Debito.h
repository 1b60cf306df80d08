#pragma once

#include <cstdint>
#include <string_view>

/// The debt: one row of the grid of a customer's receivables, every cell a text. The service gives
/// columns 1 to 23 by position, from its first field on, and takes the whole grid back when debts
/// are settled or renegotiated.
namespace servicos::debito {

/// The column that the services of a customer's debts are asked by: " WHERE [column]=code".
inline constexpr std::string_view kColunaDoCliente = "ContasAReceber.CodigoDoCliente";

enum Coluna : std::int32_t {
  kPagar = 0,  ///< kMarcado or kDesmarcado.
  kLancamento = 1,
  kCodigoDoCliente = 2,
  kApelidoDoCliente = 3,
  kNomeDoCliente = 4,
  kNumeroDaVenda = 5,
  kDataDaVenda = 6,
  kValorDaVenda = 7,
  kValorRecebidoAVista = 8,
  kPercentualRecebidoAVista = 9,
  kNumeroDaParcela = 10,
  kNumeroDeParcelas = 11,
  kNumeroDeParcelasAnterior = 12,  ///< Before the receipt.
  kHistorico = 13,                 ///< Free text, its lines parted by character 160.
  kVencimento = 14,
  kValor = 15,  ///< The field ValorDoDocumento.
  kDesconto = 16,
  kJuros = 17,
  kDataDeRecebimento = 18,
  kValorRecebido = 19,
  kInclusao = 20,  ///< Day and time; the user follows.
  kUsuarioDaInclusao = 21,
  kAlteracao = 22,
  kUsuarioDaAlteracao = 23,
  kAtraso = 24,         ///< The screen's: how late the debt is, in words.
  kDataInvertida = 25,  ///< The screen's: a date as yyyymmdd, to sort by.
};

inline constexpr std::int32_t kColunas = 26;

/// A ticked and an unticked debt: characters of the font Wingdings.
inline constexpr std::string_view kMarcado = "þ", kDesmarcado = "q";

}  // namespace servicos::debito

/// The instalment: one row of the grid of what debts are renegotiated into.
namespace servicos::parcela {

enum Coluna : std::int32_t {
  kColunaVencimento = 0,  ///< dd/mm/yyyy.
  kColunaValor = 1,       ///< "#,##.00".
};

}  // namespace servicos::parcela

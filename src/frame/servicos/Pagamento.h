#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The tender: one row of the grid of tenders of a sale or of a settlement, every cell a text, and
/// the kinds of tender.
namespace servicos::pagamento {

enum Coluna : std::int32_t {
  kColunaForma = 0,               ///< The kind's text, which begins with its code.
  kColunaValor = 1,               ///< "#,##0.00"; never negative.
  kColunaVencimento = 2,          ///< dd/mm/yyyy, or "__/__/____" where there is none.
  kColunaNumeroDoLancamento = 3,  ///< The services' own; empty as the screens hand it over.
};

/// The kinds, by the first character of their texts. MOEDA of a movement is one of these too.
enum Codigo : std::int16_t {
  kDinheiro = 1,
  kCheque = 2,
  kCartaoDeCredito = 3,
  kCartaoDeDebito = 4,
  kBoleto = 5,
  kACredito = 6,  ///< Sale on credit ("fiado"), or instalments where debts are settled.
  kCreditoDoCliente = 7,
  kPix = 8,
};

struct Forma {
  Codigo codigo{};
  std::string_view texto;
};

/// The kinds of a sale, in the order in which they are offered.
inline constexpr std::array<Forma, 8> kFormas{{
    {kDinheiro, "1-Dinheiro"},
    {kCheque, "2-Cheque"},
    {kCartaoDeCredito, "3-Cartão de crédito"},
    {kCartaoDeDebito, "4-Cartão de débito"},
    {kBoleto, "5-Boleto"},
    {kACredito, "6-A crédito (Fiado)"},
    {kCreditoDoCliente, "7-Crédito do cliente"},
    {kPix, "8-PIX"},
}};

/// The code that a tender's text begins with; 0 for a text that begins with no digit.
constexpr std::int16_t CodigoDa(std::string_view texto) {
  const bool numero = !texto.empty() && texto.front() >= '0' && texto.front() <= '9';
  return static_cast<std::int16_t>(numero ? texto.front() - '0' : 0);
}
constexpr bool Existe(std::int32_t codigo) {
  return codigo >= kDinheiro && codigo <= kPix;
}
/// The name of a kind without its code, as in "Boleto"; empty for no kind.
constexpr std::string_view NomeDa(std::int32_t codigo) {
  constexpr std::size_t kCodigoETraco = 2;
  for (const Forma& forma : kFormas) {
    if (forma.codigo == codigo) return forma.texto.substr(kCodigoETraco);
  }
  return {};
}

}  // namespace servicos::pagamento

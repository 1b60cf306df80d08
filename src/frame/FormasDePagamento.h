#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/ZVComboBox.h"

/// The ways to pay. A tender is told by its code, which is the first character of its text on every
/// screen and in every grid that reaches the services.
namespace frame {

enum CodigoDeForma : std::int16_t {
  kDinheiro = 1,
  kCheque = 2,
  kCartaoDeCredito = 3,
  kCartaoDeDebito = 4,
  kBoleto = 5,
  kACredito = 6,  ///< Sale on credit ("fiado"), or an instalment plan where debts are settled.
  kCreditoDoCliente = 7,
  kPix = 8,
};

struct FormaDePagamento {
  std::int16_t codigo = 0;
  std::string_view texto;
};

/// The tenders of a sale, in the order in which they are offered.
inline constexpr std::array<FormaDePagamento, 8> kFormasDePagamento{{
    {kDinheiro, "1-Dinheiro"},
    {kCheque, "2-Cheque"},
    {kCartaoDeCredito, "3-Cartão de crédito"},
    {kCartaoDeDebito, "4-Cartão de débito"},
    {kBoleto, "5-Boleto"},
    {kACredito, "6-A crédito (Fiado)"},
    {kCreditoDoCliente, "7-Crédito do cliente"},
    {kPix, "8-PIX"},
}};

/// The code that a tender's text begins with; 0 for a text that begins with none.
std::int16_t CodigoDaForma(std::string_view texto);

/// Offers the tenders in a combo, the code as item data, with nothing chosen. Customer's credit is
/// left out of the list of a customer who has none.
void OferecerFormasDePagamento(platform::ZVComboBox& combo,
                               std::span<const FormaDePagamento> formas, bool clienteTemCredito);

}  // namespace frame

#pragma once

#include <cstdint>
#include <string_view>

/// The numbers by which screens and services tell kinds and states to each other. What an operation
/// answers, and the failure numbers of a register, stand beside the services themselves
/// (Servico.h).
namespace servicos {

/// What a sale line is: the last column of the line.
enum TipoDeLancamento : std::int16_t { kServico = 1, kProduto = 2 };

/// Where a sale line comes from: the last column but one. A pre-sale line belongs to the record
/// that it was entered in, and the counter may not touch it.
enum TipoDeVenda : std::int32_t { kVendaDeBalcao = 1, kPreVenda = 2 };

/// The types of service, which discounts and commissions go by.
enum TipoDeServico : std::int32_t {
  kClinico = 1,
  kCirurgiaSimples = 2,
  kCirurgiaMedia = 3,
  kCirurgiaComplexa = 4,
  kBanhosTosasEEsteticas = 5,
  kHospedagem = 6,
  kAdestramento = 7,
  kOutros = 99,
};

/// Whether only the veterinarian may change a service of this type once it is in a sale.
constexpr bool EhClinicoOuCirurgico(std::int32_t tipoDeServico) {
  return tipoDeServico <= kCirurgiaComplexa;
}

/// What a register is to the workstation that looks at it.
enum SituacaoDoCaixa : std::int32_t {
  kCaixaAberto = 1,
  kCaixaFechado = 2,
  kCaixaForaDeOperacao = 3,
};

/// Customers who cannot be served; any other number can.
enum SituacaoDoCliente : std::int32_t {
  kClienteInativo = 2,
  kClienteBloqueado = 3,
  kClienteExcluido = 4,
};

/// What moved the money of a register.
enum TipoDeMovimento : std::int32_t {
  kAbertura = 1,
  kFechamento = 2,
  kEntrada = 3,
  kSaida = 4,
  kRecebimento = 5,  ///< A tender of a sale.
  kTroco = 6,        ///< Change given on a sale.
  kEstorno = 7,      ///< Takes another movement of a sale back: cancelled, or restored.
  kAcerto = 8,       ///< A tender for debts that are settled, or the change given on it.
  kCreditoAdicionado = 9,
  kCreditoDevolvido = 10,
};

/// What a sale or a movement is: it stands, or was taken back.
inline constexpr std::string_view kEfetuada = "F", kCancelada = "C";

/// What moved a customer's credit.
enum TipoDeCredito : std::int32_t {
  kCreditoInicial = 0,    ///< Brought in by no operation of the cash desk.
  kCreditoUsado = 1,      ///< Paid a sale.
  kCreditoMantido = 2,    ///< Change of a sale that the customer left.
  kCreditoAcrescido = 3,  ///< Paid in.
  kCreditoRetirado = 4,   ///< Paid out.
  kCreditoRevertido = 5,  ///< Given back or taken back with a sale that was cancelled or restored.
  kCreditoEmAcerto = 6,   ///< Settled debts.
};

/// What became of a receivable, and where it comes from.
inline constexpr std::string_view kContaAberta = "aberta", kContaRecebida = "recebida",
                                  kContaCancelada = "cancelada", kContaRenegociada = "renegociada";
inline constexpr std::string_view kDeVenda = "venda", kDeAcerto = "acerto", kDeFora = "fora";

}  // namespace servicos

#pragma once

#include <cstdint>
#include <string_view>

#include "base/Currency.h"
#include "base/GradeLida.h"
#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixa {

/// The register: every movement of money. Inputs are written first, then one of the operations
/// registers all of it or nothing, and answers a numbered status (Servico.h).
class clsCaixa : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixa.clsCaixa";
  static constexpr std::string_view kMembros =
      "NumeroDoCaixa LocalDeAtendimentoDoCaixa Operador Situacao Observacao GradeDeItensDaVenda "
      "Descricao MOEDA ValorDoLancamento ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente "
      "CodigoDoCliente NumeroDaFichaClinica ValorBruto ValorTotalDeDescontos ValorLiquido Custo "
      "Comissao LucroEmValor LucroEmPercentual CreditoAnteriorDoCliente CreditoParaOCliente Troco "
      "GradeDePagamentosEfetuados ChaveSAT RegistrarAbertura RegistrarFechamento RegistrarEntrada "
      "RegistrarSaida RegistrarPagamento AdicionarCreditoParaCliente EstornarCreditoDoCliente "
      "CancelarVenda DesfazerCancelamento PesquisarVendaDoDia PesquisarItensDaVenda "
      "SelecionarItensDeVenda NumeroDaVenda";

  // Inputs common to all that registers.
  virtual void NumeroDoCaixa(std::int32_t) { Ausente(); }
  virtual void LocalDeAtendimentoDoCaixa(std::string_view) { Ausente(); }
  virtual void Operador(std::string_view) { Ausente(); }
  virtual void Situacao(std::string_view) { Ausente(); }
  virtual void Observacao(std::string_view) { Ausente(); }
  /// The 20 columns of a sale line; discounts negative as the counter holds them, or positive as in
  /// its discounted copy. Null for a movement without items.
  virtual void GradeDeItensDaVenda(const base::GradeLida*) { Ausente(); }

  // Inputs of a movement.
  virtual void Descricao(std::string_view) { Ausente(); }
  /// The tender code, 1 for cash.
  virtual void MOEDA(std::int16_t) { Ausente(); }
  virtual void ValorDoLancamento(std::string_view) { Ausente(); }
  /// A closing passes the money taken out, negative.
  virtual void ValorDoLancamento(double) { Ausente(); }

  // Inputs of a sale.
  virtual void ApelidoOuNomeFantasiaDoCliente(std::string_view) { Ausente(); }
  virtual void NomeOuRazaoSocialDoCliente(std::string_view) { Ausente(); }
  virtual void CodigoDoCliente(std::string_view) { Ausente(); }
  virtual void CodigoDoCliente(double) { Ausente(); }
  virtual void NumeroDaFichaClinica(std::int32_t) { Ausente(); }
  virtual void ValorBruto(base::Currency) { Ausente(); }
  virtual void ValorTotalDeDescontos(base::Currency) { Ausente(); }
  virtual void ValorLiquido(base::Currency) { Ausente(); }
  virtual void Custo(base::Currency) { Ausente(); }
  virtual void Comissao(base::Currency) { Ausente(); }
  virtual void LucroEmValor(base::Currency) { Ausente(); }
  virtual void LucroEmPercentual(base::Currency) { Ausente(); }
  virtual void CreditoAnteriorDoCliente(base::Currency) { Ausente(); }
  virtual void CreditoParaOCliente(base::Currency) { Ausente(); }
  virtual void CreditoAnteriorDoCliente(std::string_view) { Ausente(); }
  /// The change given, negative, or 0; 0 also where the change was below 1,00.
  virtual void Troco(base::Currency) { Ausente(); }
  /// Method of payment, value, due date, entry number; the method begins with its code.
  virtual void GradeDePagamentosEfetuados(const base::GradeLida*) { Ausente(); }
  /// The key of the fiscal coupon; written only when there is one.
  virtual void ChaveSAT(std::string_view) { Ausente(); }

  // Operations.
  virtual std::int16_t RegistrarAbertura() { Ausente(); }
  virtual std::int16_t RegistrarFechamento() { Ausente(); }
  virtual std::int16_t RegistrarEntrada() { Ausente(); }
  virtual std::int16_t RegistrarSaida() { Ausente(); }
  virtual std::int16_t RegistrarPagamento() { Ausente(); }
  virtual std::int16_t AdicionarCreditoParaCliente() { Ausente(); }
  virtual std::int16_t EstornarCreditoDoCliente() { Ausente(); }
  virtual std::int16_t CancelarVenda(double /*numeroDaVenda*/, std::string_view /*motivo*/) {
    Ausente();
  }
  virtual std::int16_t DesfazerCancelamento(double /*numeroDaVenda*/, std::string_view /*motivo*/) {
    Ausente();
  }
  /// The sales of today on a register: "F" for those that stand, "C" for the cancelled ones.
  virtual std::int16_t PesquisarVendaDoDia(std::string_view /*situacao*/,
                                           std::int32_t& /*numeroDoCaixa*/, std::int32_t,
                                           std::int16_t) {
    Ausente();
  }
  virtual std::int16_t PesquisarItensDaVenda(double /*numeroDaVenda*/) { Ausente(); }
  /// For the receipts: " WHERE ItensDeVendas.NumeroDaVenda = N ".
  virtual std::int16_t SelecionarItensDeVenda(std::string_view /*condicao*/) { Ausente(); }
  /// The number of the sale that RegistrarPagamento has registered.
  virtual std::int32_t NumeroDaVenda() { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Caixa

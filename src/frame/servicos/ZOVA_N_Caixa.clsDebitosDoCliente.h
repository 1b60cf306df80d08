#pragma once

#include <cstdint>
#include <string_view>

#include "base/Currency.h"
#include "base/GradeLida.h"
#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_Caixa {

/// A customer's receivables, and their settlement or renegotiation.
class clsDebitosDoCliente : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_Caixa.clsDebitosDoCliente";
  static constexpr std::string_view kMembros =
      "Selecionar NumeroDoCaixa LocalDeAtendimentoDoCaixa CodigoDoCliente "
      "ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente CreditoAtualDoCliente "
      "ValorRecebido DescontoAbatimento ValorTotalDePrevisaoDeRecebimento "
      "GerarInformacoesDePagamento GerarInformacoesDeReparcelamento GradeDeDebitosDoCliente "
      "GradeDePagamentos GradeDeReparcelamento RegistrarPagamentoEOuReparcelamento";

  /// " WHERE [ContasAReceber.CodigoDoCliente]=N": 23 fields in the column order of the debt list.
  virtual std::int16_t Selecionar(std::int16_t, std::string_view /*condicao*/) { Ausente(); }

  // Inputs of a settlement.
  virtual void NumeroDoCaixa(std::int32_t) { Ausente(); }
  virtual void LocalDeAtendimentoDoCaixa(std::string_view) { Ausente(); }
  virtual void CodigoDoCliente(std::int32_t) { Ausente(); }
  virtual void ApelidoOuNomeFantasiaDoCliente(std::string_view) { Ausente(); }
  virtual void NomeOuRazaoSocialDoCliente(std::string_view) { Ausente(); }
  virtual void CreditoAtualDoCliente(std::string_view) { Ausente(); }
  virtual void ValorRecebido(std::string_view) { Ausente(); }
  virtual void DescontoAbatimento(double) { Ausente(); }
  virtual void ValorTotalDePrevisaoDeRecebimento(base::Currency) { Ausente(); }
  virtual void GerarInformacoesDePagamento(bool) { Ausente(); }
  virtual void GerarInformacoesDeReparcelamento(bool) { Ausente(); }
  virtual void GradeDeDebitosDoCliente(const base::GradeLida*) { Ausente(); }
  virtual void GradeDePagamentos(const base::GradeLida*) { Ausente(); }
  virtual void GradeDeReparcelamento(const base::GradeLida*) { Ausente(); }

  virtual std::int16_t RegistrarPagamentoEOuReparcelamento() { Ausente(); }
};

}  // namespace servicos::ZOVA_N_Caixa

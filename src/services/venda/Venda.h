#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Pagamento.h"

namespace services {

namespace pagamento = servicos::pagamento;

/// A sale as it is written: read from what the checkout hands over, with every amount settled.
struct Venda {
  struct Item {
    std::int32_t tipoDeLancamento = 0;  ///< servicos::TipoDeLancamento.
    std::int32_t tipoDeVenda = 0;       ///< servicos::TipoDeVenda.
    std::int32_t tipoDeServico = 0;     ///< 0 for a product.
    std::string codigoDeBarras;
    std::int32_t codigo = 0;
    std::string nome;
    std::int32_t codigoDoAnimal = 0;  ///< 0 for none, as for the employee.
    std::string nomeDoAnimal;
    std::int32_t codigoDoFuncionario = 0;
    std::string nomeDoFuncionario;
    base::Currency quantidade, valorUnitario;
    base::Currency descontoEmPercentual, descontoEmValor;  ///< Never negative.
    base::Currency valorTotal, custo, percentualDeComissao, valorDaComissao;
    std::int32_t numeroDeLancamento = 0;  ///< Of the pre-sale line that it settles; 0 for none.
    std::string unidade;
    std::int32_t numeroDaVendaCancelada = 0;
  };
  struct Recebimento {
    std::int32_t moeda = 0;
    base::Currency valor;
    std::optional<base::DateTime> vencimento;  ///< Of a tender on credit, and always there then.
  };

  std::int64_t operacao = 0;  ///< Tells this attempt from every other one.
  base::DateTime quando;
  std::int32_t numeroDoCaixa = 0;
  std::string operador;
  std::int32_t codigoDoCliente = 0;
  std::string apelidoDoCliente, nomeDoCliente;
  std::int32_t numeroDaFichaClinica = 0;
  base::Currency valorBruto, totalDeDescontos, valorLiquido;
  base::Currency custo, comissao, lucroEmValor, lucroEmPercentual;
  base::Currency creditoAnterior;
  std::string observacao, chaveSat;
  bool alemDoLimite = false;  ///< Who sells may let the customer owe more than their limit.
  std::int32_t cupom = 0;     ///< That it was to have, by its number in `cupons`; 0 for none.
  std::vector<Item> itens;
  std::vector<Recebimento> recebimentos;

  // Worked out of the tenders. totalRecebido - troco - creditoMantido is valorLiquido.
  base::Currency totalRecebido;
  base::Currency troco;           ///< Handed over, never negative.
  base::Currency creditoUsado;    ///< The tenders in the customer's credit.
  base::Currency creditoMantido;  ///< Change that the customer leaves as credit.

  /// The tenders of one kind.
  base::Currency RecebidoEm(std::int32_t moeda) const {
    base::Currency total;
    for (const Recebimento& each : recebimentos) {
      if (each.moeda == moeda) total += each.valor;
    }
    return total;
  }
  /// What the limit of the customer's credit has to cover.
  base::Currency SujeitoAoLimite() const {
    return alemDoLimite ? base::Currency() : RecebidoEm(pagamento::kACredito);
  }
  /// By how much the money in the drawer grows.
  base::Currency VariacaoDoDinheiro() const { return RecebidoEm(pagamento::kDinheiro) - troco; }
  std::vector<std::int32_t> PreVendas() const {
    std::vector<std::int32_t> numbers;
    for (const Item& item : itens) {
      if (item.numeroDeLancamento != 0) numbers.push_back(item.numeroDeLancamento);
    }
    return numbers;
  }
};

}  // namespace services

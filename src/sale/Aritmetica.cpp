#include "sale/Aritmetica.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "sale/LinhaDeVenda.h"

namespace sale {

using base::Currency;
using base::FormatMoney;
using base::ToCurrency;
using base::ToDouble;

namespace {

constexpr double kCem = 100.0;

Currency Celula(const base::GradeLida& grade, std::int32_t linha, std::int32_t coluna) {
  const std::string& texto = grade.TextMatrix(linha, coluna);
  return texto.empty() ? Currency() : ToCurrency(texto);
}

}  // namespace

double Dividir(double dividendo, double divisor) {
  if (divisor == 0) throw base::RuntimeError(base::Fault::kDivisionByZero);
  return dividendo / divisor;
}

Currency Arredondar(Currency valor) {
  return ToCurrency(FormatMoney(valor));
}
Currency Arredondar(double valor) {
  return ToCurrency(FormatMoney(valor));
}

SomaDasLinhas SomarLinhas(const base::GradeLida& grade) {
  SomaDasLinhas soma;
  for (std::int32_t linha = 1; linha < grade.Rows(); ++linha) {
    const Currency quantidade = Celula(grade, linha, kQuantidade);
    soma.bruto += quantidade * Celula(grade, linha, kValorUnitario);
    soma.descontos += Celula(grade, linha, kDescontoEmValor);
    soma.custo += quantidade * Celula(grade, linha, kCusto);
    const Currency comissao = Celula(grade, linha, kValorDaComissao);
    soma.comissoes += comissao;
    soma.comissaoArredondada = Arredondar(soma.comissaoArredondada + comissao);
  }
  return soma;
}

Lucro CalcularLucro(Currency liquido, Currency custo, Currency comissoes) {
  Lucro lucro{.valor = Arredondar(liquido - custo - comissoes), .percentual = {}};
  if (!liquido.IsZero() && !lucro.valor.IsZero()) {
    lucro.percentual = Arredondar(ToDouble(lucro.valor) / ToDouble(liquido));
  }
  return lucro;
}

std::string ValorDoPercentual(Currency sobre, double percentual) {
  return FormatMoney(ToDouble(sobre) * (percentual / kCem));
}

std::string PercentualDoDesconto(Currency desconto, double quantidade, double valorUnitario) {
  const double vezesCem = ToDouble(desconto * ToCurrency(100));
  return FormatMoney(Dividir(Dividir(vezesCem, quantidade), valorUnitario));
}

Currency CalcularLiquido(Currency bruto, double descontosDosItens, Currency descontoDaVenda) {
  return bruto - ToCurrency(descontosDosItens * -1.0) - descontoDaVenda;
}

Currency TotalDaLinha(double quantidade, double valorUnitario, double desconto) {
  return ToCurrency(quantidade * valorUnitario - desconto);
}

Currency ComissaoDaLinha(Currency percentual, Currency total) {
  return ToCurrency(ToDouble(percentual * total) / kCem);
}

Currency DistribuirDesconto(const base::GradeLida& grade, Currency bruto, Currency liquido,
                            platform::MSFlexGrid& copia) {
  const Currency pago = ToCurrency(Dividir(ToDouble(liquido), ToDouble(bruto)) * kCem);
  const Currency percentual = Arredondar(ToCurrency(100) - pago);
  const frame::SemRedesenho semRedesenho(copia);
  copia.Clear();
  copia.Rows(grade.Rows());
  copia.Cols(grade.Cols());
  Currency comissoes;
  for (std::int32_t linha = 0; linha < grade.Rows(); ++linha) {
    for (std::int32_t coluna = 0; coluna < grade.Cols(); ++coluna) {
      copia.TextMatrix(linha, coluna, grade.TextMatrix(linha, coluna));
    }
    if (linha == 0) continue;
    const Currency valor = Celula(copia, linha, kQuantidade) * Celula(copia, linha, kValorUnitario);
    const Currency desconto = Arredondar(ToDouble(valor) * (ToDouble(percentual) / kCem));
    const Currency total = Arredondar(valor - desconto);
    const Currency comissionado = Celula(grade, linha, kPercentualDeComissao);
    const Currency comissao = Arredondar(ToDouble(total * comissionado) / kCem);
    copia.TextMatrix(linha, kDescontoEmPercentual, base::ToText(percentual));
    copia.TextMatrix(linha, kDescontoEmValor, base::ToText(desconto));
    copia.TextMatrix(linha, kValorTotal, base::ToText(total));
    copia.TextMatrix(linha, kPercentualDeComissao, base::ToText(comissionado));
    copia.TextMatrix(linha, kValorDaComissao, base::ToText(comissao));
    comissoes = Arredondar(comissoes + comissao);
  }
  return comissoes;
}

}  // namespace sale

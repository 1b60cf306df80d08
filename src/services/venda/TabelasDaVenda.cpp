#include "services/venda/TabelasDaVenda.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "services/venda/Contas.h"
#include "services/venda/Creditos.h"
#include "services/venda/Lancamentos.h"

namespace services {
namespace {

constexpr ColunaDe<Venda> kVenda[] = {
    {"operacao", "bigint", [](const Venda& v) -> Param { return v.operacao; }},
    {"data_e_hora", "timestamp", [](const Venda& v) -> Param { return v.quando; }},
    {"operador", "text", [](const Venda& v) -> Param { return v.operador; }},
    {"apelido_do_cliente", "text", [](const Venda& v) -> Param { return v.apelidoDoCliente; }},
    {"nome_do_cliente", "text", [](const Venda& v) -> Param { return v.nomeDoCliente; }},
    {"numero_da_ficha_clinica", "integer",
     [](const Venda& v) -> Param { return v.numeroDaFichaClinica; }},
    {"valor_bruto", "bigint", [](const Venda& v) -> Param { return v.valorBruto; }},
    {"total_de_descontos", "bigint", [](const Venda& v) -> Param { return v.totalDeDescontos; }},
    {"valor_liquido", "bigint", [](const Venda& v) -> Param { return v.valorLiquido; }},
    {"total_recebido", "bigint", [](const Venda& v) -> Param { return v.totalRecebido; }},
    {"troco", "bigint", [](const Venda& v) -> Param { return v.troco; }},
    {"credito_anterior", "bigint", [](const Venda& v) -> Param { return v.creditoAnterior; }},
    {"credito_usado", "bigint", [](const Venda& v) -> Param { return v.creditoUsado; }},
    {"credito_mantido", "bigint", [](const Venda& v) -> Param { return v.creditoMantido; }},
    {"custo", "bigint", [](const Venda& v) -> Param { return v.custo; }},
    {"comissao", "bigint", [](const Venda& v) -> Param { return v.comissao; }},
    {"lucro_em_valor", "bigint", [](const Venda& v) -> Param { return v.lucroEmValor; }},
    {"lucro_em_percentual", "bigint", [](const Venda& v) -> Param { return v.lucroEmPercentual; }},
    {"numero_de_itens", "integer", [](const Venda& v) -> Param { return v.itens.size(); }},
    {"situacao", "text", [](const Venda&) -> Param { return servicos::kEfetuada; }},
    {"observacao", "text", [](const Venda& v) -> Param { return v.observacao; }},
    {"chave_sat", "text", [](const Venda& v) -> Param { return v.chaveSat; }},
};

/// A line of a sale, and its number in it from 1.
struct ItemNumerado {
  std::size_t numero;
  const Venda::Item& item;
};

constexpr ColunaDe<ItemNumerado> kItens[] = {
    {"item", "integer", [](const ItemNumerado& i) -> Param { return i.numero; }},
    {"tipo_de_lancamento", "integer",
     [](const ItemNumerado& i) -> Param { return i.item.tipoDeLancamento; }},
    {"tipo_de_venda", "integer", [](const ItemNumerado& i) -> Param { return i.item.tipoDeVenda; }},
    {"tipo_de_servico", "integer",
     [](const ItemNumerado& i) -> Param { return NumeroOuNulo(i.item.tipoDeServico); }},
    {"codigo_de_barras", "text",
     [](const ItemNumerado& i) -> Param { return i.item.codigoDeBarras; }},
    {"codigo_do_item", "integer", [](const ItemNumerado& i) -> Param { return i.item.codigo; }},
    {"nome_do_item", "text", [](const ItemNumerado& i) -> Param { return i.item.nome; }},
    {"codigo_do_animal", "integer",
     [](const ItemNumerado& i) -> Param { return NumeroOuNulo(i.item.codigoDoAnimal); }},
    {"nome_do_animal", "text", [](const ItemNumerado& i) -> Param { return i.item.nomeDoAnimal; }},
    {"codigo_do_funcionario", "integer",
     [](const ItemNumerado& i) -> Param { return NumeroOuNulo(i.item.codigoDoFuncionario); }},
    {"nome_do_funcionario", "text",
     [](const ItemNumerado& i) -> Param { return i.item.nomeDoFuncionario; }},
    {"quantidade", "bigint", [](const ItemNumerado& i) -> Param { return i.item.quantidade; }},
    {"valor_unitario", "bigint",
     [](const ItemNumerado& i) -> Param { return i.item.valorUnitario; }},
    {"desconto_em_percentual", "bigint",
     [](const ItemNumerado& i) -> Param { return i.item.descontoEmPercentual; }},
    {"desconto_em_valor", "bigint",
     [](const ItemNumerado& i) -> Param { return i.item.descontoEmValor; }},
    {"valor_total", "bigint", [](const ItemNumerado& i) -> Param { return i.item.valorTotal; }},
    {"custo", "bigint", [](const ItemNumerado& i) -> Param { return i.item.custo; }},
    {"percentual_de_comissao", "bigint",
     [](const ItemNumerado& i) -> Param { return i.item.percentualDeComissao; }},
    {"valor_da_comissao", "bigint",
     [](const ItemNumerado& i) -> Param { return i.item.valorDaComissao; }},
    {"numero_de_lancamento", "integer",
     [](const ItemNumerado& i) -> Param { return i.item.numeroDeLancamento; }},
    {"unidade", "text", [](const ItemNumerado& i) -> Param { return i.item.unidade; }},
    {"numero_da_venda_cancelada", "integer",
     [](const ItemNumerado& i) -> Param { return i.item.numeroDaVendaCancelada; }},
};

std::vector<Params> Lancamentos(const Venda& venda) {
  std::vector<Params> rows;
  const auto add = [&](servicos::TipoDeMovimento tipo, std::int32_t moeda, base::Currency valor,
                       const char* descricao) {
    rows.push_back(LinhaDoLancamento({.operacao = venda.operacao,
                                      .numeroDoCaixa = venda.numeroDoCaixa,
                                      .quando = venda.quando,
                                      .tipo = tipo,
                                      .moeda = moeda,
                                      .valor = valor,
                                      .descricao = descricao,
                                      .operador = venda.operador,
                                      .observacao = venda.observacao}));
  };
  for (const Venda::Recebimento& tender : venda.recebimentos) {
    add(servicos::kRecebimento, tender.moeda, tender.valor, "Venda");
  }
  if (!venda.troco.IsZero()) {
    add(servicos::kTroco, pagamento::kDinheiro, -venda.troco, "Troco de venda");
  }
  return rows;
}

/// The lines of a receivable's history are parted by no-break spaces.
std::string Historico(const Venda& venda) {
  constexpr std::string_view kLineEnd = "\u00A0";
  const std::string note =
      base::Replace(base::Replace(venda.observacao, "\r\n", "\n"), "\n", kLineEnd);
  return "Venda a crédito (fiado)" + std::string(kLineEnd) + note;
}

std::vector<Params> Contas(const Venda& venda) {
  std::vector<Params> rows;
  const base::Currency aCredito = venda.RecebidoEm(pagamento::kACredito);
  if (aCredito.IsZero()) return rows;
  const base::Currency aVista =
      aCredito < venda.valorLiquido ? venda.valorLiquido - aCredito : base::Currency();
  const base::Currency percentual = base::ToCurrency(
      venda.valorLiquido.IsZero()
          ? 0.0
          : base::Round(base::ToDouble(aVista) / base::ToDouble(venda.valorLiquido) * 100.0, 2));
  std::int32_t parcelas = 0;
  for (const Venda::Recebimento& each : venda.recebimentos) parcelas += each.vencimento ? 1 : 0;
  for (const Venda::Recebimento& tender : venda.recebimentos) {
    if (!tender.vencimento) continue;
    rows.push_back(LinhaDaConta({.codigoDoCliente = venda.codigoDoCliente,
                                 .apelidoDoCliente = venda.apelidoDoCliente,
                                 .nomeDoCliente = venda.nomeDoCliente,
                                 .dataDaVenda = venda.quando,
                                 .valorDaVenda = venda.valorLiquido,
                                 .recebidoAVista = aVista,
                                 .percentualRecebidoAVista = percentual,
                                 .parcela = static_cast<std::int32_t>(rows.size()) + 1,
                                 .parcelas = parcelas,
                                 .parcelasAnteriores = parcelas,
                                 .historico = Historico(venda),
                                 .vencimento = *tender.vencimento,
                                 .valor = tender.valor,
                                 .incluidaEm = venda.quando,
                                 .incluidaPor = venda.operador,
                                 .origem = servicos::kDeVenda,
                                 .operacao = venda.operacao}));
  }
  return rows;
}

std::vector<Params> Creditos(const Venda& venda) {
  std::vector<Params> rows;
  const auto add = [&](servicos::TipoDeCredito tipo, std::int32_t moeda, base::Currency valor,
                       const std::string& what) {
    if (valor.IsZero()) return;
    rows.push_back(LinhaDoCredito({.codigoDoCliente = venda.codigoDoCliente,
                                   .quando = venda.quando,
                                   .tipo = tipo,
                                   .moeda = moeda,
                                   .valor = valor,
                                   .operador = venda.operador,
                                   .observacao = what,
                                   .operacao = venda.operacao}));
  };
  add(servicos::kCreditoUsado, pagamento::kCreditoDoCliente, -venda.creditoUsado,
      "Crédito usado em venda");
  add(servicos::kCreditoMantido, pagamento::kDinheiro, venda.creditoMantido,
      "Troco de venda deixado como crédito");
  return rows;
}

}  // namespace

const std::vector<Coluna>& ColunasDaVenda() {
  static const auto colunas = NomesETipos(kVenda);
  return colunas;
}

Params LinhaDaVenda(const Venda& venda) {
  return Valores(kVenda, venda);
}

std::vector<Params> ItensDaVenda(const Venda& venda) {
  std::vector<Params> rows;
  rows.reserve(venda.itens.size());
  for (const Venda::Item& item : venda.itens) {
    rows.push_back(Valores(kItens, {.numero = rows.size() + 1, .item = item}));
  }
  return rows;
}

const std::vector<TabelaDaVenda>& TabelasDaVenda() {
  static const std::vector<TabelaDaVenda> tabelas{
      {"itens_de_venda", NomesETipos(kItens), ItensDaVenda},
      {"lancamentos_de_caixa", ColunasDoLancamento(), Lancamentos},
      {"contas_a_receber", ColunasDaConta(), Contas},
      {"creditos_do_cliente", ColunasDoCredito(), Creditos},
  };
  return tabelas;
}

}  // namespace services

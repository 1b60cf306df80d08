#include "services/venda/TabelasDaVenda.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"

namespace services {
namespace {

constexpr Coluna kVenda[] = {
    {"operacao", "bigint"},
    {"data_e_hora", "timestamp"},
    {"operador", "text"},
    {"apelido_do_cliente", "text"},
    {"nome_do_cliente", "text"},
    {"numero_da_ficha_clinica", "integer"},
    {"valor_bruto", "bigint"},
    {"total_de_descontos", "bigint"},
    {"valor_liquido", "bigint"},
    {"total_recebido", "bigint"},
    {"troco", "bigint"},
    {"credito_anterior", "bigint"},
    {"credito_usado", "bigint"},
    {"credito_mantido", "bigint"},
    {"custo", "bigint"},
    {"comissao", "bigint"},
    {"lucro_em_valor", "bigint"},
    {"lucro_em_percentual", "bigint"},
    {"numero_de_itens", "integer"},
    {"situacao", "text"},
    {"observacao", "text"},
    {"chave_sat", "text"},
};

constexpr Coluna kItens[] = {
    {"item", "integer"},
    {"tipo_de_lancamento", "integer"},
    {"tipo_de_venda", "integer"},
    {"tipo_de_servico", "integer"},
    {"codigo_de_barras", "text"},
    {"codigo_do_item", "integer"},
    {"nome_do_item", "text"},
    {"codigo_do_animal", "integer"},
    {"nome_do_animal", "text"},
    {"codigo_do_funcionario", "integer"},
    {"nome_do_funcionario", "text"},
    {"quantidade", "bigint"},
    {"valor_unitario", "bigint"},
    {"desconto_em_percentual", "bigint"},
    {"desconto_em_valor", "bigint"},
    {"valor_total", "bigint"},
    {"custo", "bigint"},
    {"percentual_de_comissao", "bigint"},
    {"valor_da_comissao", "bigint"},
    {"numero_de_lancamento", "integer"},
    {"unidade", "text"},
    {"numero_da_venda_cancelada", "integer"},
};

/// Null where there is none.
Param CodeOrNull(std::int32_t code) {
  return code == 0 ? Param() : Param(code);
}

constexpr Coluna kLancamentos[] = {
    {"operacao", "bigint"}, {"numero_do_caixa", "integer"}, {"data_e_hora", "timestamp"},
    {"tipo", "integer"},    {"moeda", "integer"},           {"valor", "bigint"},
    {"descricao", "text"},  {"operador", "text"},           {"situacao", "text"},
    {"observacao", "text"},
};

std::vector<Params> Lancamentos(const Venda& venda) {
  std::vector<Params> rows;
  const auto add = [&](servicos::TipoDeMovimento tipo, std::int32_t moeda, base::Currency valor,
                       const char* descricao) {
    rows.push_back({venda.operacao, venda.numeroDoCaixa, venda.quando, std::int32_t{tipo}, moeda,
                    valor, descricao, venda.operador, servicos::kEfetuada, venda.observacao});
  };
  for (const Venda::Recebimento& tender : venda.recebimentos) {
    add(servicos::kRecebimento, tender.moeda, tender.valor, "Venda");
  }
  if (!venda.troco.IsZero()) {
    add(servicos::kTroco, pagamento::kDinheiro, -venda.troco, "Troco de venda");
  }
  return rows;
}

constexpr Coluna kContas[] = {
    {"codigo_do_cliente", "integer"},
    {"apelido_do_cliente", "text"},
    {"nome_do_cliente", "text"},
    {"data_da_venda", "date"},
    {"valor_da_venda", "bigint"},
    {"recebido_a_vista", "bigint"},
    {"percentual_recebido_a_vista", "bigint"},
    {"numero_da_parcela", "integer"},
    {"numero_de_parcelas", "integer"},
    {"numero_de_parcelas_anterior", "integer"},
    {"historico", "text"},
    {"data_de_vencimento", "date"},
    {"valor_do_documento", "bigint"},
    {"incluido_em", "timestamp"},
    {"incluido_por", "text"},
    {"origem", "text"},
    {"operacao", "bigint"},
};

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
    rows.push_back({venda.codigoDoCliente, venda.apelidoDoCliente, venda.nomeDoCliente,
                    Param::Date(venda.quando), venda.valorLiquido, aVista, percentual,
                    rows.size() + 1, parcelas, parcelas, Historico(venda),
                    Param::Date(*tender.vencimento), tender.valor, venda.quando, venda.operador,
                    servicos::kDeVenda, venda.operacao});
  }
  return rows;
}

constexpr Coluna kCreditos[] = {
    {"codigo_do_cliente", "integer"},
    {"data_e_hora", "timestamp"},
    {"moeda", "integer"},
    {"valor", "bigint"},
    {"operador", "text"},
    {"observacao", "text"},
    {"tipo", "integer"},
    {"operacao", "bigint"},
};

std::vector<Params> Creditos(const Venda& venda) {
  std::vector<Params> rows;
  const auto add = [&](servicos::TipoDeCredito tipo, std::int32_t moeda, base::Currency valor,
                       const std::string& what) {
    if (valor.IsZero()) return;
    rows.push_back({venda.codigoDoCliente, venda.quando, moeda, valor, venda.operador, what,
                    std::int32_t{tipo}, venda.operacao});
  };
  add(servicos::kCreditoUsado, pagamento::kCreditoDoCliente, -venda.creditoUsado,
      "Crédito usado em venda");
  add(servicos::kCreditoMantido, pagamento::kDinheiro, venda.creditoMantido,
      "Troco de venda deixado como crédito");
  return rows;
}

constexpr TabelaDaVenda kTabelas[] = {
    {"itens_de_venda", kItens, ItensDaVenda},
    {"lancamentos_de_caixa", kLancamentos, Lancamentos},
    {"contas_a_receber", kContas, Contas},
    {"creditos_do_cliente", kCreditos, Creditos},
};

}  // namespace

std::span<const Coluna> ColunasDaVenda() {
  return kVenda;
}

Params LinhaDaVenda(const Venda& venda) {
  return ParamsOf(venda.operacao, venda.quando, venda.operador, venda.apelidoDoCliente,
                  venda.nomeDoCliente, venda.numeroDaFichaClinica, venda.valorBruto,
                  venda.totalDeDescontos, venda.valorLiquido, venda.totalRecebido, venda.troco,
                  venda.creditoAnterior, venda.creditoUsado, venda.creditoMantido, venda.custo,
                  venda.comissao, venda.lucroEmValor, venda.lucroEmPercentual, venda.itens.size(),
                  servicos::kEfetuada, venda.observacao, venda.chaveSat);
}

std::vector<Params> ItensDaVenda(const Venda& venda) {
  std::vector<Params> rows;
  rows.reserve(venda.itens.size());
  for (const Venda::Item& item : venda.itens) {
    rows.push_back(ParamsOf(
        rows.size() + 1, item.tipoDeLancamento, item.tipoDeVenda, CodeOrNull(item.tipoDeServico),
        item.codigoDeBarras, item.codigo, item.nome, CodeOrNull(item.codigoDoAnimal),
        item.nomeDoAnimal, CodeOrNull(item.codigoDoFuncionario), item.nomeDoFuncionario,
        item.quantidade, item.valorUnitario, item.descontoEmPercentual, item.descontoEmValor,
        item.valorTotal, item.custo, item.percentualDeComissao, item.valorDaComissao,
        item.numeroDeLancamento, item.unidade, item.numeroDaVendaCancelada));
  }
  return rows;
}

std::span<const TabelaDaVenda> TabelasDaVenda() {
  return kTabelas;
}

std::string Nomes(std::span<const Coluna> colunas) {
  std::string nomes;
  for (const Coluna& coluna : colunas) {
    if (!nomes.empty()) nomes += ", ";
    nomes += coluna.nome;
  }
  return nomes;
}

}  // namespace services

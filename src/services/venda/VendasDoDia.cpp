#include "services/venda/VendasDoDia.h"

#include <iterator>
#include <string>

#include "services/banco/Cells.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

using Form = Cell::Form;

constexpr Cell kSales[] = {
    {"NumeroDaVenda", Form::kAsIs, "v.numero"},
    {"Data", Form::kDay, "v.data_e_hora"},
    {"Hora", Form::kTime, "v.data_e_hora"},
    {"Operador", Form::kAsIs, "v.operador"},
    {"Cliente", Form::kAsIs, "v.apelido_do_cliente"},
    {"ValorBruto", Form::kMoney, "v.valor_bruto"},
    {"ValorTotalDeDescontos", Form::kMoney, "v.valor_bruto - v.valor_liquido"},
    {"ValorLiquido", Form::kMoney, "v.valor_liquido"},
    {"ChaveSAT", Form::kAsIs, "v.chave_sat"},
    {"ValorRecebido", Form::kMoney,
     "v.valor_liquido - coalesce((SELECT CAST(sum(l.valor) AS bigint) FROM lancamentos_de_caixa l"
     " WHERE l.numero_da_venda = v.numero AND l.tipo = {recebimento} AND l.moeda = {aCredito}), "
     "0)"},
    {"CodigoDoCliente", Form::kAsIs, "v.codigo_do_cliente"},
    {"NomeOuRazaoSocialDoCliente", Form::kAsIs, "v.nome_do_cliente"},
    {"EnderecoCompleto", Form::kAsIs, "c.endereco_completo"},
    {"TiposECanaisDeComunicacao", Form::kAsIs, "c.canais_de_comunicacao"},
};

/// What the line is stands behind them, unseen.
constexpr Cell kItems[] = {
    {"Item", Form::kAsIs, "item"},
    {"ServicoOuProduto", Form::kAsIs, "nome_do_item"},
    {"Animal", Form::kAsIs, "nome_do_animal"},
    {"Comissionado", Form::kAsIs, "nome_do_funcionario"},
    {"Quantidade", Form::kQuantity, "quantidade"},
    {"Unidade", Form::kAsIs, "unidade"},
    {"ValorUnitario", Form::kMoney, "valor_unitario"},
    {"PercentualDeDesconto", Form::kMoney, "desconto_em_percentual"},
    {"ValorDeDesconto", Form::kMoney, "desconto_em_valor"},
    {"ValorLiquido", Form::kMoney, "valor_total"},
};
constexpr int kKind = std::size(kItems);

}  // namespace

base::RecordSetPtr VendasDoDia(Session& session, std::string_view situacao,
                               std::int32_t numeroDoCaixa, base::DateTime dia) {
  static const Statement select(
      ComCodigos("SELECT " + ColumnsOf(kSales) +
                 " FROM vendas v JOIN clientes c ON c.codigo = v.codigo_do_cliente"
                 " WHERE v.numero_do_caixa = $1 AND v.data_e_hora >= $2 AND v.data_e_hora < $3"
                 " AND v.situacao = $4 ORDER BY v.numero DESC"));
  const base::DateTime day = dia.Date();
  return SelectCells(session, kSales, select, {numeroDoCaixa, day, day.PlusDays(1), situacao});
}

base::RecordSetPtr ItensDeUmaVenda(Session& session, std::int32_t numeroDaVenda) {
  static const Statement select("SELECT " + ColumnsOf(kItems) +
                                ", tipo_de_lancamento FROM itens_de_venda"
                                " WHERE numero_da_venda = $1 ORDER BY item");
  return SelectCells(session, kItems, select, {numeroDaVenda}, kKind);
}

}  // namespace services

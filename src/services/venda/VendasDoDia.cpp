#include "services/venda/VendasDoDia.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "frame/servicos/Codigos.h"
#include "services/banco/Session.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

/// How a column becomes the text of a cell.
enum class Form { kAsIs, kDay, kTime, kMoney, kQuantity };

struct Cell {
  std::string_view name;
  Form form;
  std::string_view column;
};

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

/// The last column is not shown: what the line is decides the form of its quantity.
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

std::string ColumnsOf(std::span<const Cell> cells) {
  std::string columns;
  for (const Cell& cell : cells) {
    if (!columns.empty()) columns += ", ";
    columns += cell.column;
  }
  return columns;
}

std::string TextOf(const Row& row, int column, Form form) {
  constexpr std::size_t kDateLength = 10;
  switch (form) {
    case Form::kDay:
      return base::Format(row.Moment(column), base::DateMask::kDayMonthYear);
    case Form::kTime:
      return row.Text(column).substr(kDateLength + 1);
    case Form::kMoney:
      return base::FormatMoney(row.Money(column));
    case Form::kQuantity:
      return base::Format(row.Money(column),
                          row.Integer(kKind) == servicos::kServico ? "0" : base::kMoneyMask);
    case Form::kAsIs:
      break;
  }
  return row.Text(column);
}

base::RecordSetPtr Select(Session& session, std::span<const Cell> cells, const Statement& select,
                          const Params& params) {
  std::vector<std::string> names;
  for (const Cell& cell : cells) names.emplace_back(cell.name);
  const auto rows = std::make_shared<base::RecordSet>(std::move(names));
  session.Select(select, params, [&](const Row& row) {
    std::vector<base::Value> texts;
    texts.reserve(cells.size());
    int column = 0;
    for (const Cell& cell : cells) {
      texts.emplace_back(TextOf(row, column, cell.form));
      ++column;
    }
    rows->Append(std::move(texts));
  });
  rows->MoveFirst();
  return rows;
}

}  // namespace

base::RecordSetPtr VendasDoDia(Session& session, std::string_view situacao,
                               std::int32_t numeroDoCaixa, base::DateTime dia) {
  static const Statement select(
      ComCodigos("SELECT " + ColumnsOf(kSales) +
                 " FROM vendas v JOIN clientes c ON c.codigo = v.codigo_do_cliente"
                 " WHERE v.numero_do_caixa = $1 AND v.data_e_hora >= $2 AND v.data_e_hora < $3"
                 " AND v.situacao = $4 ORDER BY v.numero DESC"));
  const base::DateTime day = dia.Date();
  return Select(session, kSales, select, {numeroDoCaixa, day, day.PlusDays(1), situacao});
}

base::RecordSetPtr ItensDeUmaVenda(Session& session, std::int32_t numeroDaVenda) {
  static const Statement select("SELECT " + ColumnsOf(kItems) +
                                ", tipo_de_lancamento FROM itens_de_venda"
                                " WHERE numero_da_venda = $1 ORDER BY item");
  return Select(session, kItems, select, {numeroDaVenda});
}

}  // namespace services

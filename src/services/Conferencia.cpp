#include <deque>

#include "base/Numbers.h"
#include "base/Text.h"
#include "services/Banco.h"
#include "services/Session.h"
#include "services/VendasRegistradas.h"

namespace services {
namespace {

enum class Of { kMoney, kCount };

/// One rule of the books: what has a number n, and two figures a and b that must be the same.
struct Rule {
  Of what;
  const char* selection;
  const char* sentence;  ///< With {n}, {a} and {b}.
};

constexpr Rule kRules[] = {
    {Of::kMoney,
     "SELECT numero AS n, total_recebido - troco - credito_mantido AS a, valor_liquido AS b"
     " FROM vendas",
     "Venda {n}: o recebido menos o troco e o crédito mantido é {a}, e o líquido é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(l.soma, 0) AS a, v.total_recebido AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = 5 GROUP BY numero_da_venda) l"
     " ON l.numero_da_venda = v.numero",
     "Venda {n}: os recebimentos lançados somam {a}, e o total recebido é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(l.soma, 0) AS a, -v.troco AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = 6 GROUP BY numero_da_venda) l"
     " ON l.numero_da_venda = v.numero",
     "Venda {n}: o troco lançado é {a}, e deveria ser {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(r.soma, 0) AS a, coalesce(l.soma, 0) AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor_do_documento) AS bigint) AS soma"
     " FROM contas_a_receber GROUP BY numero_da_venda) r ON r.numero_da_venda = v.numero"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = 5 AND moeda = 6 GROUP BY numero_da_venda) l"
     " ON l.numero_da_venda = v.numero",
     "Venda {n}: as contas a receber somam {a}, e o pagamento a crédito (fiado) é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(c.soma, 0) AS a, v.credito_mantido - v.credito_usado AS b"
     " FROM vendas v LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM creditos_do_cliente GROUP BY numero_da_venda) c ON c.numero_da_venda = v.numero",
     "Venda {n}: o crédito do cliente mudou {a}, e deveria mudar {b}."},
    {Of::kCount,
     "SELECT v.numero AS n, coalesce(i.soma, 0) AS a, v.numero_de_itens AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, count(*) AS soma FROM itens_de_venda"
     " GROUP BY numero_da_venda) i ON i.numero_da_venda = v.numero",
     "Venda {n}: há {a} itens gravados, e a venda tem {b}."},
    {Of::kCount,
     "SELECT v.numero AS n, coalesce(p.soma, 0) AS a, v.itens_de_pre_venda AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, count(*) AS soma FROM pre_vendas"
     " GROUP BY numero_da_venda) p ON p.numero_da_venda = v.numero",
     "Venda {n}: há {a} itens de pré-venda baixados, e a venda tem {b}."},
    {Of::kMoney,
     "SELECT x.numero AS n, x.dinheiro AS a, coalesce(l.soma, 0) AS b FROM caixas x"
     " LEFT JOIN (SELECT numero_do_caixa, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE moeda = 1 GROUP BY numero_do_caixa) l"
     " ON l.numero_do_caixa = x.numero",
     "Caixa {n}: o dinheiro na gaveta é {a}, e os lançamentos somam {b}."},
    {Of::kMoney,
     "SELECT x.codigo AS n, x.credito AS a, coalesce(c.soma, 0) AS b FROM clientes x"
     " LEFT JOIN (SELECT codigo_do_cliente, CAST(sum(valor) AS bigint) AS soma"
     " FROM creditos_do_cliente GROUP BY codigo_do_cliente) c ON c.codigo_do_cliente = x.codigo",
     "Cliente {n}: o crédito é {a}, e os movimentos somam {b}."},
};

/// The selections of what breaks the rules, in their order.
const std::deque<Statement>& Breaches() {
  static const auto statements = [] {
    std::deque<Statement> all;
    for (const Rule& rule : kRules) {
      all.emplace_back("SELECT n, a, b FROM (" + std::string(rule.selection) +
                       ") r WHERE a <> b ORDER BY n");
    }
    return all;
  }();
  return statements;
}

std::string Told(const Rule& rule, const Row& row) {
  const auto figure = [&](int column) {
    return rule.what == Of::kMoney ? base::FormatMoney(row.Money(column)) : row.Text(column);
  };
  const std::string sentence = base::Replace(rule.sentence, "{n}", std::to_string(row.Integer(0)));
  return base::Replace(base::Replace(sentence, "{a}", figure(1)), "{b}", figure(2));
}

}  // namespace

std::vector<std::string> Conferir(Banco& banco) {
  std::vector<std::string> findings;
  auto breach = Breaches().begin();
  for (const Rule& rule : kRules) {
    banco.Sessao().Select(*breach++, {},
                          [&](const Row& row) { findings.push_back(Told(rule, row)); });
  }
  return findings;
}

}  // namespace services

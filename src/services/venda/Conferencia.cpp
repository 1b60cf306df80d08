#include "services/venda/Conferencia.h"

#include <deque>

#include "base/Numbers.h"
#include "base/Text.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Integridade.h"
#include "services/banco/Session.h"
#include "services/banco/SqliteSession.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

enum class Of { kMoney, kCount };

/// One rule of the books: what has a number n, and two figures a and b that must be the same, or
/// not farther apart than the column t.
struct Rule {
  Of what;
  /// With the names of ComCodigos, and {wide} for a number that products of amounts fit into.
  const char* selection;
  const char* sentence;  ///< With {n}, {a} and {b}.
  const char* tolerance = "0";
};

// Quantities times prices are looked at as the screen adds them up: each line's from what it shows,
// to the cent. The line's own total was worked out before its quantity was rounded to what it
// shows. A discount on the whole sale was spread over the lines by a percentage of two decimals.
constexpr Rule kRules[] = {
    {Of::kMoney,
     "SELECT v.numero AS n, v.valor_bruto AS b, coalesce(i.soma, 0) AS a FROM vendas v LEFT JOIN"
     " (SELECT numero_da_venda, round(sum(CAST(quantidade AS {wide}) * valor_unitario) / 10000)"
     " AS soma FROM itens_de_venda GROUP BY numero_da_venda) i ON i.numero_da_venda = v.numero",
     "Venda {n}: os itens somam {a} antes dos descontos, e o valor bruto é {b}.", "100"},
    {Of::kMoney,
     "SELECT numero_da_venda AS n, valor_total AS a, round(CAST(quantidade AS {wide})"
     " * valor_unitario / 10000) - desconto_em_valor AS b, 100 + valor_unitario / 200 AS t"
     " FROM itens_de_venda",
     "Venda {n}: um item tem o total de {a}, e a quantidade vezes o preço menos o desconto é {b}.",
     "t"},
    {Of::kMoney,
     "SELECT v.numero AS n, v.valor_bruto - coalesce(i.soma, 0) AS a, v.valor_liquido AS b,"
     " CASE WHEN CAST(v.valor_bruto AS {wide}) + v.total_de_descontos = v.valor_liquido THEN 100"
     " ELSE 100 + 50 * v.numero_de_itens + v.valor_bruto / 20000 END AS t FROM vendas v LEFT JOIN"
     " (SELECT numero_da_venda, sum(desconto_em_valor) AS soma FROM itens_de_venda"
     " GROUP BY numero_da_venda) i ON i.numero_da_venda = v.numero",
     "Venda {n}: o bruto menos os descontos dos itens é {a}, e o líquido é {b}.", "t"},
    {Of::kMoney,
     "SELECT numero AS n, abs(descontos) AS a, menos AS b,"
     " CASE WHEN abs(descontos) <= menos THEN menos - abs(descontos) ELSE 100 END AS t FROM"
     " (SELECT numero, CAST(total_de_descontos AS {wide}) AS descontos,"
     " CAST(valor_bruto AS {wide}) - valor_liquido AS menos FROM vendas) v",
     "Venda {n}: os descontos são {a}, e o bruto menos o líquido é {b}.", "t"},
    {Of::kCount, "SELECT min(numero) AS n, count(*) AS a, 1 AS b FROM vendas GROUP BY operacao",
     "Venda {n}: há {a} vendas com o número de operação dela."},
    {Of::kCount,
     "SELECT v.numero AS n, count(*) AS a, 0 AS b FROM vendas v JOIN lancamentos_de_caixa l"
     " ON l.numero_da_venda = v.numero WHERE l.tipo IN ({recebimento}, {troco})"
     " AND l.operacao <> v.operacao AND v.operacao <> -4611686018427387904 - v.numero GROUP BY "
     "v.numero",
     "Venda {n}: {a} lançamentos têm outro número de operação."},
    {Of::kCount,
     "SELECT numero_da_venda AS n, count(*) AS a, 0 AS b FROM itens_de_venda"
     " WHERE tipo_de_lancamento NOT IN ({servico}, {produto})"
     " OR tipo_de_venda NOT IN ({balcao}, {preVenda}) GROUP BY numero_da_venda",
     "Venda {n}: {a} itens são de um tipo que não existe."},
    {Of::kCount,
     "SELECT numero_do_caixa AS n, count(*) AS a, 0 AS b FROM lancamentos_de_caixa"
     " WHERE tipo NOT IN ({qualquerMovimento}) OR moeda NOT IN ({qualquerMoeda})"
     " GROUP BY numero_do_caixa",
     "Caixa {n}: {a} lançamentos são de um tipo ou uma moeda que não existe."},
    {Of::kCount,
     "SELECT min(numero_do_caixa) AS n, count(*) AS a, 1 AS b FROM lancamentos_de_caixa"
     " WHERE numero_da_venda IS NULL AND tipo <> {acerto} GROUP BY operacao",
     "Caixa {n}: há {a} lançamentos com o mesmo número de operação."},
    {Of::kCount,
     "SELECT v.numero AS n, count(*) AS a, 0 AS b FROM vendas v JOIN lancamentos_de_caixa l"
     " ON l.numero_da_venda = v.numero WHERE l.tipo IN ({recebimento}, {troco})"
     " AND (l.data_e_hora <> v.data_e_hora OR l.numero_do_caixa <> v.numero_do_caixa OR l.operador "
     "<> v.operador) GROUP BY v.numero",
     "Venda {n}: {a} lançamentos não são do caixa, do operador ou da hora dela."},
    {Of::kCount,
     "SELECT v.numero AS n, count(*) AS a, 0 AS b FROM vendas v JOIN contas_a_receber c"
     " ON c.numero_da_venda = v.numero WHERE c.codigo_do_cliente <> v.codigo_do_cliente"
     " OR c.valor_da_venda <> v.valor_liquido GROUP BY v.numero",
     "Venda {n}: {a} contas a receber não são do cliente ou do valor dela."},
    {Of::kCount,
     "SELECT v.numero AS n, count(*) AS a, 0 AS b FROM vendas v JOIN creditos_do_cliente c"
     " ON c.numero_da_venda = v.numero WHERE c.codigo_do_cliente <> v.codigo_do_cliente"
     " OR (c.tipo IN ({creditoUsado}, {creditoMantido}) AND c.data_e_hora <> v.data_e_hora)"
     " GROUP BY v.numero",
     "Venda {n}: {a} movimentos de crédito não são do cliente ou da hora dela."},
    {Of::kMoney,
     "SELECT numero AS n, total_recebido - troco - credito_mantido AS a, valor_liquido AS b"
     " FROM vendas",
     "Venda {n}: o recebido menos o troco e o crédito mantido é {a}, e o líquido é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(l.soma, 0) AS a, v.total_recebido AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = {recebimento} GROUP BY numero_da_venda) l"
     " ON l.numero_da_venda = v.numero",
     "Venda {n}: os recebimentos lançados somam {a}, e o total recebido é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(l.soma, 0) AS a, -v.troco AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = {troco} GROUP BY numero_da_venda) l"
     " ON l.numero_da_venda = v.numero",
     "Venda {n}: o troco lançado é {a}, e deveria ser {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(r.soma, 0) AS a, coalesce(l.soma, 0) AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor_do_documento) AS bigint) AS soma"
     " FROM contas_a_receber GROUP BY numero_da_venda) r ON r.numero_da_venda = v.numero"
     " LEFT JOIN (SELECT numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE tipo = {recebimento} AND moeda = {aCredito}"
     " GROUP BY numero_da_venda) l ON l.numero_da_venda = v.numero",
     "Venda {n}: as contas a receber somam {a}, e o pagamento a crédito (fiado) é {b}."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(c.soma, 0) AS a, CASE WHEN v.situacao = {cancelada} THEN 0"
     " ELSE v.credito_mantido - v.credito_usado END AS b FROM vendas v LEFT JOIN (SELECT "
     "numero_da_venda, CAST(sum(valor) AS bigint) AS soma"
     " FROM creditos_do_cliente GROUP BY numero_da_venda) c ON c.numero_da_venda = v.numero",
     "Venda {n}: o crédito do cliente mudou {a}, e deveria mudar {b}."},
    {Of::kCount,
     "SELECT v.numero AS n, coalesce(i.soma, 0) AS a, v.numero_de_itens AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda, count(*) AS soma FROM itens_de_venda"
     " GROUP BY numero_da_venda) i ON i.numero_da_venda = v.numero",
     "Venda {n}: há {a} itens gravados, e a venda tem {b}."},
    {Of::kCount,
     "SELECT v.numero AS n, coalesce(p.soma, 0) AS a, CASE WHEN v.situacao = {cancelada} THEN 0"
     " ELSE v.itens_de_pre_venda END AS b FROM vendas v LEFT JOIN (SELECT numero_da_venda, "
     "count(*) AS soma FROM pre_vendas"
     " GROUP BY numero_da_venda) p ON p.numero_da_venda = v.numero",
     "Venda {n}: há {a} itens de pré-venda baixados, e a venda tem {b}."},
    {Of::kCount,
     "SELECT numero AS n, CASE WHEN situacao = {cancelada} THEN 1 ELSE 0 END AS a,"
     " CASE WHEN ultima = {cancelada} THEN 1 ELSE 0 END AS b FROM (SELECT v.numero, v.situacao,"
     " (SELECT c.situacao FROM cancelamentos_de_venda c WHERE c.numero_da_venda = v.numero"
     " ORDER BY c.numero DESC LIMIT 1) AS ultima FROM vendas v) s",
     "Venda {n}: a situação dela não é a do seu último cancelamento."},
    {Of::kMoney,
     "SELECT v.numero AS n, coalesce(l.estornos, 0) AS a,"
     " CASE WHEN v.situacao = {cancelada} THEN -coalesce(l.soma, 0) ELSE 0 END AS b FROM vendas v"
     " LEFT JOIN (SELECT numero_da_venda,"
     " CAST(sum(CASE WHEN tipo = {estorno} THEN valor ELSE 0 END) AS bigint) AS estornos,"
     " CAST(sum(CASE WHEN tipo IN ({recebimento}, {troco}) THEN valor ELSE 0 END) AS bigint)"
     " AS soma FROM lancamentos_de_caixa WHERE numero_da_venda IS NOT NULL"
     " AND moeda NOT IN ({aCredito}, {creditoDoCliente})"
     " GROUP BY numero_da_venda) l ON l.numero_da_venda = v.numero",
     "Venda {n}: os estornos somam {a}, e deveriam somar {b}."},
    {Of::kCount,
     "SELECT e.numero_da_venda AS n, count(*) AS a, 0 AS b FROM lancamentos_de_caixa e"
     " LEFT JOIN lancamentos_de_caixa l ON l.numero = e.estorna WHERE e.tipo = {estorno}"
     " AND (l.numero IS NULL OR l.numero_da_venda <> e.numero_da_venda OR l.moeda <> e.moeda"
     " OR l.valor <> -e.valor OR l.numero_do_caixa <> e.numero_do_caixa) GROUP BY"
     " e.numero_da_venda",
     "Venda {n}: {a} estornos não são o contrário do lançamento que estornam."},
    {Of::kCount,
     "SELECT codigo_do_cliente AS n, count(*) AS a, 0 AS b FROM contas_a_receber"
     " WHERE (situacao = {contaAberta}) <> (data_de_recebimento IS NULL)"
     " OR (situacao IN ({contaCancelada}, {contaRenegociada}) AND valor_recebido <> 0)"
     " GROUP BY codigo_do_cliente",
     "Cliente {n}: {a} contas a receber têm uma situação que o recebimento delas desmente."},
    {Of::kCount,
     "SELECT v.numero AS n, count(*) AS a, 0 AS b FROM vendas v JOIN contas_a_receber c"
     " ON c.numero_da_venda = v.numero AND c.origem = {deVenda}"
     " WHERE (v.situacao = {cancelada}) <> (c.situacao = {contaCancelada}) GROUP BY v.numero",
     "Venda {n}: {a} contas a receber não seguem o cancelamento dela."},
    {Of::kMoney,
     "SELECT x.numero AS n, x.dinheiro AS a, coalesce(l.soma, 0) AS b FROM caixas x"
     " LEFT JOIN (SELECT numero_do_caixa, CAST(sum(valor) AS bigint) AS soma"
     " FROM lancamentos_de_caixa WHERE moeda = {dinheiro} GROUP BY numero_do_caixa) l"
     " ON l.numero_do_caixa = x.numero",
     "Caixa {n}: o dinheiro na gaveta é {a}, e os lançamentos somam {b}."},
    {Of::kMoney,
     "SELECT x.codigo AS n, x.credito AS a, coalesce(c.soma, 0) AS b FROM clientes x"
     " LEFT JOIN (SELECT codigo_do_cliente, CAST(sum(valor) AS bigint) AS soma"
     " FROM creditos_do_cliente GROUP BY codigo_do_cliente) c ON c.codigo_do_cliente = x.codigo",
     "Cliente {n}: o crédito é {a}, e os movimentos somam {b}."},
    {Of::kCount,
     "SELECT min(numero) AS n, count(*) AS a, 1 AS b FROM vendas WHERE chave_sat <> ''"
     " GROUP BY chave_sat",
     "Venda {n}: a chave do seu cupom está em {a} vendas."},
    {Of::kCount,
     "SELECT v.numero AS n, k.numero_da_venda AS a, v.numero AS b FROM vendas v"
     " JOIN cupons k ON k.chave = v.chave_sat AND k.situacao = {cupomVendido}"
     " WHERE v.chave_sat <> ''",
     "Venda {n}: a chave do seu cupom foi pedida para a venda {a}."},
};

/// The selections of what breaks the rules, in their order.
const std::deque<Statement>& Breaches() {
  static const auto statements = [] {
    std::deque<Statement> all;
    for (const Rule& rule : kRules) {
      const std::string breaches =
          ComCodigos("SELECT n, a, b FROM (" + std::string(rule.selection) +
                     ") r WHERE abs(a - b) > " + rule.tolerance + " ORDER BY n");
      all.emplace_back(base::Replace(breaches, "{wide}", "double precision"),
                       base::Replace(breaches, "{wide}", "numeric"));
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
  const Unhurried withoutLimits(banco.Sessao());
  std::vector<std::string> findings;
  // What cannot even be read is a finding too.
  const auto look = [&](const auto& check) {
    try {
      check();
    } catch (const DatabaseError& error) {
      const Trouble trouble = error.What();
      if (trouble != Trouble::kCorrupt && trouble != Trouble::kOutOfRange &&
          trouble != Trouble::kStorage && trouble != Trouble::kOther) {
        throw;
      }
      findings.emplace_back(error.what());
    }
  };
  look([&] { findings = ConferirArmazenamento(banco.Sessao()); });
  auto breach = Breaches().begin();
  for (const Rule& rule : kRules) {
    look([&] {
      banco.Sessao().Select(*breach, {},
                            [&](const Row& row) { findings.push_back(Told(rule, row)); });
    });
    ++breach;
  }
  return findings;
}

std::string RegraDoLog(Banco& banco) {
  if (banco.Sessao().Kind() != Engine::kSqlite) return {};
  static const Statement version("SELECT sqlite_version()");
  std::string sentence = "SQLite ";
  banco.Sessao().Select(version, {}, [&](const Row& row) { sentence += row.Text(0); });
  return sentence +
         (SqliteSession::HoldsWritersAtCheckpoints()
              ? ": o log só passa para o arquivo com as gravações paradas, porque antes da "
                "versão 3.51.3 uma venda gravada ao mesmo tempo podia se perder."
              : ": o log passa para o arquivo durante as gravações, o que esta versão faz "
                "sem risco.");
}

}  // namespace services

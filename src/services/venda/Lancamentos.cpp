#include "services/venda/Lancamentos.h"

#include "base/Numbers.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Preenchimento.h"
#include "services/venda/Caixas.h"
#include "services/venda/Provas.h"

namespace services {
namespace {

constexpr ColunaDe<Lancamento> kColunas[] = {
    {"operacao", "bigint", [](const Lancamento& l) -> Param { return l.operacao; }},
    {"numero_do_caixa", "integer", [](const Lancamento& l) -> Param { return l.numeroDoCaixa; }},
    {"data_e_hora", "timestamp", [](const Lancamento& l) -> Param { return l.quando; }},
    {"tipo", "integer", [](const Lancamento& l) -> Param { return std::int32_t{l.tipo}; }},
    {"moeda", "integer", [](const Lancamento& l) -> Param { return l.moeda; }},
    {"valor", "bigint", [](const Lancamento& l) -> Param { return l.valor; }},
    {"descricao", "text", [](const Lancamento& l) -> Param { return l.descricao; }},
    {"operador", "text", [](const Lancamento& l) -> Param { return l.operador; }},
    {"situacao", "text", [](const Lancamento& l) -> Param { return l.situacao; }},
    {"observacao", "text", [](const Lancamento& l) -> Param { return l.observacao; }},
};

/// Throws the refusal for what the register's row would not let happen; returns when nothing is in
/// the way any more.
void Explain(Session& session, std::int32_t caixa, base::Currency cash, bool mustBeOpen) {
  static const Statement drawer("SELECT dinheiro FROM caixas WHERE numero = $1");
  ExigirCaixa(session, caixa, mustBeOpen);
  session.Select(drawer, {caixa}, [&](const Row& row) {
    if (row.Money(0) >= -cash) return;
    throw Refusal{.sentence = "Há " + base::FormatMoney(row.Money(0)) +
                              " em dinheiro neste caixa, menos do que os " +
                              base::FormatMoney(-cash) + " que sairiam. Informe um valor menor."};
  });
}

}  // namespace

const std::vector<Coluna>& ColunasDoLancamento() {
  static const auto colunas = NomesETipos(kColunas);
  return colunas;
}

Params LinhaDoLancamento(const Lancamento& lancamento) {
  return Valores(kColunas, lancamento);
}

void Lancar(Session& session, Transaction& transaction, std::int32_t numeroDoCaixa,
            const std::vector<Lancamento>& lancamentos, const Passagem& passagem) {
  static const Statement move(
      "UPDATE caixas SET aberto = $2, dinheiro = dinheiro + $3 WHERE numero = $1 AND ativo = 1"
      " AND aberto = $4 AND (CAST($3 AS bigint) >= 0 OR dinheiro + $3 >= 0)");
  static const Statement enter("INSERT INTO lancamentos_de_caixa (" + Nomes(ColunasDoLancamento()) +
                               ", numero_da_venda, estorna, consentido_por) VALUES (" +
                               Places(ColunasDoLancamento().size() + 3) + ")");
  base::Currency cash;
  std::vector<Request> requests;
  for (const Lancamento& each : lancamentos) {
    if (each.moeda == servicos::pagamento::kDinheiro) cash += each.valor;
    Params row = LinhaDoLancamento(each);
    row.push_back(NumeroOuNulo(each.numeroDaVenda));
    row.push_back(NumeroOuNulo(each.estorna));
    row.emplace_back(each.consentidoPor);
    requests.push_back({enter, std::move(row)});
    if (each.numeroDaVenda == 0 && each.tipo != servicos::kAcerto) {
      transaction.ProvedBy(ProvaDe(TipoDeRegistro::kMovimento), {each.operacao});
    }
  }
  const Params passing{numeroDoCaixa, passagem.ficaAberto, cash, passagem.exigeAberto};
  if (session.Run(move, passing) == 0) {
    Explain(session, numeroDoCaixa, cash, passagem.exigeAberto);
    throw DatabaseError(Trouble::kConflict, "caixas");
  }
  if (!requests.empty()) session.RunTogether(requests);
}

}  // namespace services

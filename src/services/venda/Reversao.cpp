#include "services/venda/Reversao.h"

#include <vector>

#include "services/Banco.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"
#include "services/venda/Caixas.h"
#include "services/venda/CodigosNoSql.h"
#include "services/venda/Contas.h"
#include "services/venda/Creditos.h"
#include "services/venda/Lancamentos.h"
#include "services/venda/Registros.h"

namespace services {
namespace {

std::string NameOf(const Reversao& reversal) {
  return "A venda " + std::to_string(reversal.numeroDaVenda);
}

/// Why the sale was not in the state that this needs; returns when it is by now.
void Explain(Session& session, const Reversao& reversal) {
  static const Statement select(
      "SELECT numero_do_caixa, situacao, data_e_hora FROM vendas WHERE numero = $1");
  ExigirCaixa(session, reversal.numeroDoCaixa, true);
  std::string reason = " não está registrada.";
  session.Select(select, {reversal.numeroDaVenda}, [&](const Row& row) {
    if (row.Number(0) != reversal.numeroDoCaixa) {
      reason = " é do caixa " + row.Text(0) + ". Faça isto nele.";
    } else if (row.Moment(2).Date() != reversal.quando.Date()) {
      reason = " não é de hoje. Só as vendas do dia podem ser canceladas ou restauradas.";
    } else if (row.Text(1) == servicos::kCancelada && !reversal.desfaz) {
      reason = " já está cancelada.";
    } else if (row.Text(1) != servicos::kCancelada && reversal.desfaz) {
      reason = " não está cancelada.";
    } else {
      reason.clear();
    }
  });
  if (!reason.empty()) throw Refusal{.sentence = NameOf(reversal) + reason};
}

/// The sale as far as reversing it needs it.
struct Sale {
  std::int32_t customer = 0;
  base::Currency credit;  ///< By how much it changes the customer's credit where it stands.
  std::int32_t preSaleLines = 0;
  std::vector<Lancamento> reversals;
  std::vector<Baixa> receivables;
  bool hasClosedReceivable = false;
};

/// The entry that takes back one of the sale: number, tender and value.
Lancamento ReversalOf(const Row& entry, const Reversao& reversal) {
  return {.operacao = reversal.operacao,
          .numeroDoCaixa = reversal.numeroDoCaixa,
          .quando = reversal.quando,
          .tipo = servicos::kEstorno,
          .moeda = entry.Number(1),
          .valor = -entry.Money(2),
          .descricao = reversal.desfaz ? "Cancelamento desfeito" : "Cancelamento de venda",
          .operador = reversal.operador,
          .observacao = reversal.motivo,
          .numeroDaVenda = reversal.numeroDaVenda,
          .estorna = entry.Number(0),
          .consentidoPor = reversal.consentidoPor};
}

/// Moves the sale from one state to the other, which holds it until the transaction ends: of two
/// who try, the second finds it moved. Each entry that nothing has reversed yet is to be reversed:
/// the tenders and the change of a sale that stands, the reversals of one that is cancelled. What
/// was bought on credit or paid with the customer's credit moved no money.
Sale Turn(Session& session, const Reversao& reversal) {
  static const Statement turn(
      "UPDATE vendas SET situacao = $5 WHERE numero = $1 AND numero_do_caixa = $2"
      " AND data_e_hora >= $3 AND data_e_hora < $4 AND situacao = $6");
  static const Statement read(
      "SELECT codigo_do_cliente, credito_mantido - credito_usado, itens_de_pre_venda FROM vendas"
      " WHERE numero = $1");
  static const Statement standing(
      ComCodigos("SELECT l.numero, l.moeda, l.valor FROM lancamentos_de_caixa l"
                 " WHERE l.numero_da_venda = $1 AND l.moeda NOT IN ({aCredito}, {creditoDoCliente})"
                 " AND NOT EXISTS (SELECT 1 FROM lancamentos_de_caixa e WHERE e.estorna = l.numero)"
                 " ORDER BY l.numero"));
  static const Statement receivables(
      ComCodigos("SELECT numero, valor_do_documento, situacao FROM contas_a_receber"
                 " WHERE numero_da_venda = $1 AND origem = {deVenda} ORDER BY numero"));
  const base::DateTime today = reversal.quando.Date();
  const auto from = reversal.desfaz ? servicos::kCancelada : servicos::kEfetuada;
  const auto to = reversal.desfaz ? servicos::kEfetuada : servicos::kCancelada;
  const Params number{reversal.numeroDaVenda};
  Sale sale;
  const auto counts = session.RunTogether(
      {{turn, {reversal.numeroDaVenda, reversal.numeroDoCaixa, today, today.PlusDays(1), to, from}},
       {read, number,
        [&](const Row& row) {
          sale.customer = row.Number(0);
          sale.credit = row.Money(1);
          sale.preSaleLines = row.Number(2);
        }},
       {standing, number,
        [&](const Row& row) { sale.reversals.push_back(ReversalOf(row, reversal)); }},
       {receivables, number, [&](const Row& row) {
          sale.hasClosedReceivable |= row.Text(2) != servicos::kContaAberta;
          sale.receivables.push_back({.numero = row.Number(0),
                                      .valor = row.Money(1),
                                      .situacao = servicos::kContaCancelada,
                                      .quando = reversal.quando,
                                      .operador = reversal.operador,
                                      .operacao = reversal.operacao});
        }}});
  if (counts.front() > 0) return sale;
  Explain(session, reversal);
  throw DatabaseError(Trouble::kConflict, "vendas");
}

void CloseReceivables(Session& session, Transaction& transaction, const Reversao& reversal,
                      const Sale& sale) {
  if (sale.hasClosedReceivable) {
    throw Refusal{.sentence = NameOf(reversal) +
                              " tem um débito que já foi recebido ou renegociado, e não pode ser "
                              "cancelada. Acerte com o cliente de outra forma."};
  }
  BaixarContas(session, transaction, sale.receivables);
}

/// Gives the customer's credit what the sale changed of it, or takes that away.
void MoveCredit(Session& session, const Reversao& reversal, const Sale& sale) {
  const base::Currency change = reversal.desfaz ? sale.credit : -sale.credit;
  if (change.IsZero()) return;
  MoverCredito(session, {.codigoDoCliente = sale.customer,
                         .quando = reversal.quando,
                         .tipo = servicos::kCreditoRevertido,
                         .moeda = servicos::pagamento::kCreditoDoCliente,
                         .valor = change,
                         .operador = reversal.operador,
                         .observacao = (reversal.desfaz ? "Desfeito o cancelamento da venda "
                                                        : "Cancelamento da venda ") +
                                       std::to_string(reversal.numeroDaVenda),
                         .operacao = reversal.operacao,
                         .numeroDaVenda = reversal.numeroDaVenda});
}

/// The lines of pre-sale of the sale, which are open again or settled again, and the record of who
/// did this, when and why.
void SettleAndKeep(Session& session, Transaction& transaction, const Reversao& reversal,
                   const Sale& sale) {
  static const Statement open(
      "UPDATE pre_vendas SET numero_da_venda = NULL WHERE numero_da_venda = $1");
  static const Statement settle(
      "UPDATE pre_vendas SET numero_da_venda = $1 WHERE numero_da_venda IS NULL"
      " AND codigo_do_cliente = $2 AND numero IN (SELECT numero_de_lancamento FROM itens_de_venda"
      " WHERE numero_da_venda = $1 AND numero_de_lancamento <> 0)");
  static const Statement keep(
      "INSERT INTO cancelamentos_de_venda (numero_da_venda, operacao, situacao, data_e_hora,"
      " numero_do_caixa, operador, consentido_por, motivo) VALUES ($1, $2, $3, $4, $5, $6, $7,"
      " $8)");
  std::vector<Request> requests;
  if (sale.preSaleLines > 0 && reversal.desfaz) {
    requests.push_back({settle, {reversal.numeroDaVenda, sale.customer}});
  } else if (sale.preSaleLines > 0) {
    requests.push_back({open, {reversal.numeroDaVenda}});
  }
  requests.push_back(
      {keep,
       {reversal.numeroDaVenda, reversal.operacao,
        reversal.desfaz ? servicos::kEfetuada : servicos::kCancelada, reversal.quando,
        reversal.numeroDoCaixa, reversal.operador, reversal.consentidoPor, reversal.motivo}});
  const auto counts = session.RunTogether(requests);
  if (sale.preSaleLines > 0 && counts.front() != sale.preSaleLines) {
    throw Refusal{.sentence = NameOf(reversal) +
                              " tem um item de pré-venda que já foi vendido em outra venda ou "
                              "retirado, e não pode ser restaurada. Registre uma venda nova."};
  }
  transaction.ProvedBy(ProvaDe(TipoDeRegistro::kCancelamento), {reversal.operacao});
}

void Write(Session& session, Transaction& transaction, const Reversao& reversal) {
  const Sale sale = Turn(session, reversal);
  Lancar(session, transaction, reversal.numeroDoCaixa, sale.reversals);
  MoveCredit(session, reversal, sale);
  if (!reversal.desfaz) {
    CloseReceivables(session, transaction, reversal, sale);
  } else if (!sale.receivables.empty()) {
    ReabrirContas(session, reversal.numeroDaVenda, reversal.quando, reversal.operador);
  }
  SettleAndKeep(session, transaction, reversal, sale);
}

/// The same for the same act alone, whenever it is done.
std::string ContentOf(const Reversao& reversal) {
  return ConteudoDe({{reversal.desfaz, reversal.numeroDaVenda, reversal.numeroDoCaixa,
                      reversal.operador, reversal.motivo}});
}

}  // namespace

void ReverterVenda(Banco& banco, const Reversao& reversao) {
  const std::string venda = "da venda " + std::to_string(reversao.numeroDaVenda);
  const Registro registro{
      .oQue = (reversao.desfaz ? "desfazimento do cancelamento " : "cancelamento ") + venda,
      .artigo = 'o',
      .tipo = TipoDeRegistro::kCancelamento,
      .quando = reversao.quando,
      .operacao = reversao.operacao,
      .conteudo = [&] { return ContentOf(reversao); }};
  banco.Registros().Registrar(registro, [&](std::int32_t&) {
    InTransaction(banco.Sessao(),
                  [&](Transaction& transaction) { Write(banco.Sessao(), transaction, reversao); });
  });
}

}  // namespace services

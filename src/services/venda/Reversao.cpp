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

/// Moves the sale from one state to the other, which holds it until the transaction ends: of two
/// who try, the second finds it moved.
void TurnState(Session& session, const Reversao& reversal) {
  static const Statement turn(
      "UPDATE vendas SET situacao = $5 WHERE numero = $1 AND numero_do_caixa = $2"
      " AND data_e_hora >= $3 AND data_e_hora < $4 AND situacao = $6");
  const base::DateTime today = reversal.quando.Date();
  const auto from = reversal.desfaz ? servicos::kCancelada : servicos::kEfetuada;
  const auto to = reversal.desfaz ? servicos::kEfetuada : servicos::kCancelada;
  if (session.Run(turn, {reversal.numeroDaVenda, reversal.numeroDoCaixa, today, today.PlusDays(1),
                         to, from}) > 0) {
    return;
  }
  Explain(session, reversal);
  throw DatabaseError(Trouble::kConflict, "vendas");
}

/// The sale as far as reversing it needs it.
struct Sale {
  std::int32_t customer = 0;
  base::Currency credit;  ///< By how much it changes the customer's credit where it stands.
  std::int32_t preSaleLines = 0;
};

Sale Read(Session& session, std::int32_t number) {
  static const Statement select(
      "SELECT codigo_do_cliente, credito_mantido - credito_usado, itens_de_pre_venda FROM vendas"
      " WHERE numero = $1");
  Sale sale;
  session.Select(select, {number}, [&](const Row& row) {
    sale = {.customer = row.Number(0), .credit = row.Money(1), .preSaleLines = row.Number(2)};
  });
  return sale;
}

/// Each entry that nothing has reversed yet is reversed by one of its own: the tenders and the
/// change of a sale that stands, the reversals of one that is cancelled. What was bought on credit
/// or paid with the customer's credit moved no money.
void ReverseEntries(Session& session, Transaction& transaction, const Reversao& reversal) {
  static const Statement standing(
      ComCodigos("SELECT l.numero, l.moeda, l.valor FROM lancamentos_de_caixa l"
                 " WHERE l.numero_da_venda = $1 AND l.moeda NOT IN ({aCredito}, {creditoDoCliente})"
                 " AND NOT EXISTS (SELECT 1 FROM lancamentos_de_caixa e WHERE e.estorna = l.numero)"
                 " ORDER BY l.numero"));
  std::vector<Lancamento> entries;
  session.Select(standing, {reversal.numeroDaVenda}, [&](const Row& row) {
    entries.push_back(
        {.operacao = reversal.operacao,
         .numeroDoCaixa = reversal.numeroDoCaixa,
         .quando = reversal.quando,
         .tipo = servicos::kEstorno,
         .moeda = row.Number(1),
         .valor = -row.Money(2),
         .descricao = reversal.desfaz ? "Cancelamento desfeito" : "Cancelamento de venda",
         .operador = reversal.operador,
         .observacao = reversal.motivo,
         .numeroDaVenda = reversal.numeroDaVenda,
         .estorna = row.Number(0),
         .consentidoPor = reversal.consentidoPor});
  });
  Lancar(session, transaction, reversal.numeroDoCaixa, entries);
}

void CloseReceivables(Session& session, Transaction& transaction, const Reversao& reversal) {
  static const Statement select(
      ComCodigos("SELECT numero, valor_do_documento, situacao FROM contas_a_receber"
                 " WHERE numero_da_venda = $1 AND origem = {deVenda} ORDER BY numero"));
  std::vector<Baixa> closings;
  session.Select(select, {reversal.numeroDaVenda}, [&](const Row& row) {
    if (row.Text(2) != servicos::kContaAberta) {
      throw Refusal{.sentence = NameOf(reversal) +
                                " tem um débito que já foi recebido ou renegociado, e não pode ser "
                                "cancelada. Acerte com o cliente de outra forma."};
    }
    closings.push_back({.numero = row.Number(0),
                        .valor = row.Money(1),
                        .situacao = servicos::kContaCancelada,
                        .quando = reversal.quando,
                        .operador = reversal.operador,
                        .operacao = reversal.operacao});
  });
  BaixarContas(session, transaction, closings);
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

void OpenPreSale(Session& session, const Reversao& reversal) {
  static const Statement open(
      "UPDATE pre_vendas SET numero_da_venda = NULL WHERE numero_da_venda = $1");
  session.Run(open, {reversal.numeroDaVenda});
}

void SettlePreSale(Session& session, const Reversao& reversal, const Sale& sale) {
  static const Statement settle(
      "UPDATE pre_vendas SET numero_da_venda = $1 WHERE numero_da_venda IS NULL"
      " AND codigo_do_cliente = $2 AND numero IN (SELECT numero_de_lancamento FROM itens_de_venda"
      " WHERE numero_da_venda = $1 AND numero_de_lancamento <> 0)");
  if (session.Run(settle, {reversal.numeroDaVenda, sale.customer}) == sale.preSaleLines) return;
  throw Refusal{.sentence = NameOf(reversal) +
                            " tem um item de pré-venda que já foi vendido em outra venda ou "
                            "retirado, e não pode ser restaurada. Registre uma venda nova."};
}

void Keep(Session& session, Transaction& transaction, const Reversao& reversal) {
  static const Statement keep(
      "INSERT INTO cancelamentos_de_venda (numero_da_venda, operacao, situacao, data_e_hora,"
      " numero_do_caixa, operador, consentido_por, motivo) VALUES ($1, $2, $3, $4, $5, $6, $7,"
      " $8)");
  session.Run(keep,
              {reversal.numeroDaVenda, reversal.operacao,
               reversal.desfaz ? servicos::kEfetuada : servicos::kCancelada, reversal.quando,
               reversal.numeroDoCaixa, reversal.operador, reversal.consentidoPor, reversal.motivo});
  transaction.ProvedBy(ProvaDe(TipoDeRegistro::kCancelamento), {reversal.operacao});
}

void Write(Session& session, Transaction& transaction, const Reversao& reversal) {
  ExigirCaixa(session, reversal.numeroDoCaixa, true);
  TurnState(session, reversal);
  const Sale sale = Read(session, reversal.numeroDaVenda);
  ReverseEntries(session, transaction, reversal);
  MoveCredit(session, reversal, sale);
  if (reversal.desfaz) {
    ReabrirContas(session, reversal.numeroDaVenda, reversal.quando, reversal.operador);
    SettlePreSale(session, reversal, sale);
  } else {
    CloseReceivables(session, transaction, reversal);
    OpenPreSale(session, reversal);
  }
  Keep(session, transaction, reversal);
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

#include "services/venda/Movimento.h"

#include "base/Numbers.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"
#include "services/venda/Caixas.h"
#include "services/venda/Registros.h"

namespace services {
namespace {

bool NeedsOpenRegister(servicos::TipoDeMovimento tipo) {
  return tipo != servicos::kAbertura;
}

bool LeavesRegisterOpen(servicos::TipoDeMovimento tipo) {
  return tipo != servicos::kFechamento;
}

/// Throws the refusal for what the register's row would not let happen; returns when nothing is in
/// the way any more.
void Explain(Session& session, const Movimento& movement) {
  static const Statement drawer("SELECT dinheiro FROM caixas WHERE numero = $1");
  ExigirCaixa(session, movement.numeroDoCaixa, NeedsOpenRegister(movement.tipo));
  session.Select(drawer, {movement.numeroDoCaixa}, [&](const Row& row) {
    if (row.Money(0) >= -movement.valor) return;
    throw Refusal{.sentence = "Há " + base::FormatMoney(row.Money(0)) +
                              " em dinheiro neste caixa, menos do que os " +
                              base::FormatMoney(-movement.valor) +
                              " que sairiam. Informe um valor menor."};
  });
}

Params RowOf(const Movimento& movement) {
  return {movement.operacao,           movement.numeroDoCaixa, movement.quando,
          std::int32_t{movement.tipo}, movement.moeda,         movement.valor,
          movement.descricao,          movement.operador,      movement.situacao,
          movement.observacao};
}

void Write(Session& session, const Movimento& movement, Transaction& transaction) {
  static const Statement move(
      "UPDATE caixas SET aberto = $2, dinheiro = dinheiro + $3 WHERE numero = $1 AND ativo = 1"
      " AND aberto = $4 AND (CAST($3 AS bigint) >= 0 OR dinheiro + $3 >= 0)");
  static const Statement enter(
      "INSERT INTO lancamentos_de_caixa (operacao, numero_do_caixa, data_e_hora, tipo, moeda,"
      " valor, descricao, operador, situacao, observacao)"
      " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10)");
  static const Statement proof(
      "SELECT 1 FROM lancamentos_de_caixa WHERE operacao = $1 AND numero_da_venda IS NULL");
  const base::Currency cash =
      movement.moeda == servicos::pagamento::kDinheiro ? movement.valor : base::Currency();
  if (session.Run(move, {movement.numeroDoCaixa, LeavesRegisterOpen(movement.tipo), cash,
                         NeedsOpenRegister(movement.tipo)}) == 0) {
    Explain(session, movement);
    throw DatabaseError(Trouble::kConflict, "caixas");
  }
  session.Run(enter, RowOf(movement));
  transaction.ProvedBy(proof, {movement.operacao});
}

/// How the operator is told of a movement.
Registro Told(const Movimento& movement) {
  const std::string drawer = "caixa " + std::to_string(movement.numeroDoCaixa);
  const std::string value = base::FormatMoney(base::Abs(movement.valor));
  Registro told{
      .oQue = "", .quando = movement.quando, .operacao = movement.operacao, .conteudo = {}};
  switch (movement.tipo) {
    case servicos::kAbertura:
      told.oQue = "abertura do " + drawer + " com " + value;
      break;
    case servicos::kFechamento:
      told.oQue = "fechamento do " + drawer + " com retirada de " + value;
      told.artigo = 'o';
      break;
    case servicos::kSaida:
      told.oQue = "saída de " + value + " do " + drawer;
      break;
    default:
      told.oQue = "entrada de " + value + " no " + drawer;
  }
  told.conteudo = [same = movement]() mutable {
    same.operacao = 0;
    same.quando = {};
    return ConteudoDe({RowOf(same)});
  };
  return told;
}

}  // namespace

void RegistrarMovimento(Banco& banco, const Movimento& movimento) {
  banco.Registros().Registrar(Told(movimento), [&](std::int32_t&) {
    InTransaction(banco.Sessao(),
                  [&](Transaction& transaction) { Write(banco.Sessao(), movimento, transaction); });
  });
}

}  // namespace services

#include "services/venda/Travas.h"

#include "base/Text.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Search.h"
#include "services/banco/Session.h"

namespace services {
namespace {

/// A condition or column with the two places that tell a workstation.
std::string Placed(std::string_view text, int name, int mark) {
  const auto place = [](int number) { return "CAST($" + std::to_string(number) + " AS text)"; };
  return base::Replace(base::Replace(text, "{nome}", place(name)), "{marca}", place(mark));
}

Refusal InService(const std::string& holder) {
  return {.sentence =
              "Este cliente está em atendimento com " + holder + ". Aguarde o fim do atendimento."};
}

}  // namespace

std::string DeOutraEstacao(int nome, int marca) {
  return Placed(
      "(travas_de_clientes.computador_busca <> {nome} OR (travas_de_clientes.marca <> ''"
      " AND {marca} NOT IN ('', travas_de_clientes.marca)))",
      nome, marca);
}

std::string NomeParaAEstacao(int nome, int marca) {
  return Placed("CASE WHEN computador_busca = {nome} AND ", nome, marca) +
         DeOutraEstacao(nome, marca) +
         " THEN nome_do_computador || ' (outro computador)' ELSE nome_do_computador END";
}

void TravarCliente(Banco& banco, std::int32_t codigo, const Estacao& estacao,
                   const std::string& usuario) {
  static const Statement take(
      "INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,"
      " marca, nome_do_usuario, data_e_hora) VALUES ($1, $2, $3, $4, $5, $6)"
      " ON CONFLICT (codigo_do_cliente) DO UPDATE SET"
      " nome_do_computador = excluded.nome_do_computador, marca = excluded.marca,"
      " nome_do_usuario = excluded.nome_do_usuario, data_e_hora = excluded.data_e_hora"
      " WHERE NOT " +
      DeOutraEstacao(3, 4));
  const Params params{codigo,        estacao.nome, ComputerForm(estacao.nome),
                      estacao.marca, usuario,      banco.Agora()};
  Session& session = banco.Sessao();
  try {
    InTransaction(session, [&](Transaction&) {
      if (session.Run(take, params) > 0) return;
      // The row stays locked though it was not written: the holder is there to be named.
      throw InService(OutroDetentor(session, codigo, estacao));
    });
  } catch (const DatabaseError& error) {
    // Only a customer who exists can be held.
    if (error.What() != Trouble::kConstraint) throw;
    throw Refusal{.sentence = "Não há cliente cadastrado com o código " + std::to_string(codigo) +
                              ". Selecione o cliente de novo."};
  }
}

void DestravarCliente(Banco& banco, std::int32_t codigo, const Estacao& estacao) {
  static const Statement free(
      "DELETE FROM travas_de_clientes WHERE codigo_do_cliente = $1 AND NOT " +
      DeOutraEstacao(2, 3));
  Session& session = banco.Sessao();
  InTransaction(session, [&](Transaction&) {
    if (session.Run(free, {codigo, ComputerForm(estacao.nome), estacao.marca}) > 0) return;
    const std::string holder = OutroDetentor(session, codigo, estacao);
    if (!holder.empty()) throw InService(holder);
  });
}

std::string OutroDetentor(Session& session, std::int32_t codigo, const Estacao& estacao) {
  static const Statement holder("SELECT nome_do_usuario, " + NomeParaAEstacao(2, 3) +
                                " FROM travas_de_clientes WHERE codigo_do_cliente = $1 AND " +
                                DeOutraEstacao(2, 3));
  std::string words;
  session.Select(holder, {codigo, ComputerForm(estacao.nome), estacao.marca},
                 [&](const Row& row) { words = row.Text(0) + " no computador " + row.Text(1); });
  return words;
}

std::vector<Trava> ListarTravas(Banco& banco) {
  static const Statement all(
      "SELECT t.codigo_do_cliente, c.apelido, t.nome_do_computador, t.nome_do_usuario,"
      " t.data_e_hora FROM travas_de_clientes t JOIN clientes c ON c.codigo = t.codigo_do_cliente"
      " ORDER BY t.data_e_hora, t.codigo_do_cliente");
  std::vector<Trava> travas;
  banco.Sessao().Select(all, {}, [&](const Row& row) {
    travas.push_back({.codigoDoCliente = row.Number(0),
                      .nomeDoCliente = row.Text(1),
                      .computador = row.Text(2),
                      .usuario = row.Text(3),
                      .desde = row.Moment(4)});
  });
  return travas;
}

bool LiberarTrava(Banco& banco, std::int32_t codigoDoCliente) {
  static const Statement free("DELETE FROM travas_de_clientes WHERE codigo_do_cliente = $1");
  bool wasHeld = false;
  InTransaction(banco.Sessao(),
                [&](Transaction&) { wasHeld = banco.Sessao().Run(free, {codigoDoCliente}) > 0; });
  return wasHeld;
}

}  // namespace services

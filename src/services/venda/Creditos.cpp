#include "services/venda/Creditos.h"

#include "base/Numbers.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Preenchimento.h"

namespace services {
namespace {

using Movimento = MovimentoDeCredito;

constexpr ColunaDe<Movimento> kColunas[] = {
    {"codigo_do_cliente", "integer", [](const Movimento& m) -> Param { return m.codigoDoCliente; }},
    {"data_e_hora", "timestamp", [](const Movimento& m) -> Param { return m.quando; }},
    {"moeda", "integer", [](const Movimento& m) -> Param { return m.moeda; }},
    {"valor", "bigint", [](const Movimento& m) -> Param { return m.valor; }},
    {"operador", "text", [](const Movimento& m) -> Param { return m.operador; }},
    {"observacao", "text", [](const Movimento& m) -> Param { return m.observacao; }},
    {"tipo", "integer", [](const Movimento& m) -> Param { return std::int32_t{m.tipo}; }},
    {"operacao", "bigint", [](const Movimento& m) -> Param { return m.operacao; }},
};

[[noreturn]] void Explain(Session& session, const Movimento& movement) {
  static const Statement credit("SELECT credito FROM clientes WHERE codigo = $1");
  base::Currency left;
  if (session.Select(credit, {movement.codigoDoCliente},
                     [&](const Row& row) { left = row.Money(0); }) == 0) {
    throw Refusal{.sentence = "O cliente de código " + std::to_string(movement.codigoDoCliente) +
                              " não está cadastrado. Nada foi registrado; selecione o cliente de "
                              "novo."};
  }
  if (left >= -movement.valor) throw DatabaseError(Trouble::kConflict, "clientes");
  throw Refusal{.sentence = "O crédito do cliente agora é de " + base::FormatMoney(left) +
                            " e não cobre os " + base::FormatMoney(-movement.valor) +
                            " que sairiam. Nada foi registrado; confira o crédito do cliente."};
}

}  // namespace

const std::vector<Coluna>& ColunasDoCredito() {
  static const auto colunas = NomesETipos(kColunas);
  return colunas;
}

Params LinhaDoCredito(const MovimentoDeCredito& movimento) {
  return Valores(kColunas, movimento);
}

void MoverCredito(Session& session, const MovimentoDeCredito& movimento) {
  static const Statement move(
      "UPDATE clientes SET credito = credito + $2 WHERE codigo = $1"
      " AND (CAST($2 AS bigint) >= 0 OR credito + $2 >= 0)");
  static const Statement enter("INSERT INTO creditos_do_cliente (" + Nomes(ColunasDoCredito()) +
                               ", numero_da_venda) VALUES (" +
                               Places(ColunasDoCredito().size() + 1) + ")");
  if (session.Run(move, {movimento.codigoDoCliente, movimento.valor}) == 0) {
    Explain(session, movimento);
  }
  Params row = LinhaDoCredito(movimento);
  row.push_back(NumeroOuNulo(movimento.numeroDaVenda));
  session.Run(enter, row);
}

}  // namespace services

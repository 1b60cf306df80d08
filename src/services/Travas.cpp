#include "services/Travas.h"

#include "services/Banco.h"
#include "services/Session.h"

namespace services {

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

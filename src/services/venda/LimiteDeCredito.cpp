#include "services/venda/LimiteDeCredito.h"

#include "services/banco/Session.h"

namespace services {

std::optional<LimiteDeCredito> LerLimiteDeCredito(Session& session, std::int32_t cliente) {
  static const Statement select(
      "SELECT limite_de_credito, (SELECT CAST(coalesce(sum(valor_do_documento), 0) AS bigint)"
      " FROM contas_a_receber r WHERE r.codigo_do_cliente = c.codigo"
      " AND r.data_de_recebimento IS NULL) FROM clientes c WHERE c.codigo = $1");
  std::optional<LimiteDeCredito> found;
  session.Select(select, {cliente}, [&](const Row& row) {
    found = LimiteDeCredito{.limite = row.Money(0), .utilizado = row.Money(1)};
  });
  return found;
}

}  // namespace services

#include "services/venda/LimiteDeCredito.h"

#include "services/banco/Session.h"

namespace services {
namespace {

/// What customer c owes.
constexpr const char* kUtilizado =
    "(SELECT CAST(coalesce(sum(r.valor_do_documento), 0) AS bigint) FROM contas_a_receber r"
    " WHERE r.codigo_do_cliente = c.codigo AND r.data_de_recebimento IS NULL)";

}  // namespace

std::optional<LimiteDeCredito> LerLimiteDeCredito(Session& session, std::int32_t cliente) {
  static const Statement select("SELECT limite_de_credito, " + std::string(kUtilizado) +
                                " FROM clientes c WHERE c.codigo = $1");
  std::optional<LimiteDeCredito> found;
  session.Select(select, {cliente}, [&](const Row& row) {
    found = LimiteDeCredito{.limite = row.Money(0), .utilizado = row.Money(1)};
  });
  return found;
}

std::string DentroDoLimite(const std::string& cliente, const std::string& valor) {
  const std::string value = "CAST(" + valor + " AS bigint)";
  return "(" + value + " = 0 OR NOT EXISTS (SELECT 1 FROM clientes c WHERE c.codigo = CAST(" +
         cliente + " AS integer) AND c.limite_de_credito > 0 AND c.limite_de_credito - " +
         kUtilizado + " < " + value + "))";
}

bool CabeNoLimite(Session& session, std::int32_t cliente, base::Currency valor) {
  static const Statement within("SELECT 1 WHERE " + DentroDoLimite("$1", "$2"));
  return valor.IsZero() || session.Select(within, {cliente, valor}, [](const Row&) {}) > 0;
}

}  // namespace services

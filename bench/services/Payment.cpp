#include <stdexcept>

#include "clinic/Opened.h"
#include "services/Cases.h"
#include "services/Checkout.h"
#include "services/RawSale.h"
#include "services/banco/Session.h"
#include "support/Bench.h"

namespace bench {
namespace {

constexpr std::int32_t kRegister = 1;

/// What the tables of sales hold, all rows added up.
std::string Books(services::Session& session) {
  static const services::Statement sums(
      "SELECT CAST((SELECT count(*) FROM vendas) AS text) || ' ' ||"
      " CAST((SELECT sum(valor_liquido + total_recebido + troco) FROM vendas) AS text) || ' ' ||"
      " CAST((SELECT count(*) FROM itens_de_venda) AS text) || ' ' ||"
      " CAST((SELECT sum(valor_total + custo) FROM itens_de_venda) AS text) || ' ' ||"
      " CAST((SELECT count(*) FROM lancamentos_de_caixa) AS text) || ' ' ||"
      " CAST((SELECT sum(valor) FROM lancamentos_de_caixa) AS text) || ' ' ||"
      " CAST((SELECT count(*) FROM contas_a_receber) AS text) || ' ' ||"
      " CAST((SELECT sum(dinheiro) FROM caixas) AS text)");
  std::string books;
  session.Select(sums, {}, [&](const services::Row& row) { books = row.Text(0); });
  return books;
}

/// A clinic with its register open and one sale in it.
Database ClinicWithASale(services::Engine engine, const std::string& name, const Checkout& checkout,
                         std::int32_t& sale) {
  Database clinic = NewClinic(engine, name);
  const Opened opened(clinic);
  OpenRegister(kRegister);
  sale = checkout.Register();
  return clinic;
}

void Measure(benchmark::State& state, services::Engine engine, int lines, Commit commit) {
  const Checkout checkout({.lines = lines, .cashRegister = kRegister});
  std::int32_t model = 0;
  // A database each: neither has to read again what the other has written.
  const Database twins = ClinicWithASale(engine, "vendas_gemeas", checkout, model);
  const Database clinic = ClinicWithASale(engine, "vendas", checkout, model);
  Opened opened(clinic);
  const ModelSale sale{model, checkout.Drawer(), kRegister};
  const RawSale raw = engine == services::Engine::kSqlite
                          ? RawSaleOnSqlite(twins.target, sale)
                          : RawSaleOnPostgres(twins.target, {sale}, commit);
  checkout.Register();
  raw();
  const std::int64_t before = opened.Session().Calls();
  checkout.Register();
  raw();
  state.counters["round_trips"] = static_cast<double>(opened.Session().Calls() - before);
  InTurn(
      state, [&] { return SecondsOf([&] { checkout.Register(); }); },
      [&] { return SecondsOf(raw); });
  const std::string books = Books(opened.Session());
  if (books != Books(Opened(twins).Session())) throw std::runtime_error("the twin's books differ");
}

}  // namespace

void AddPayments(services::Engine engine) {
  constexpr int kRounds = 2'000;
  const std::string name = "payment/" + NameOf(engine) + "/lines:";
  for (const int lines : {1, 10, 100}) {
    Add(name + std::to_string(lines), kRounds,
        [=](benchmark::State& state) { Measure(state, engine, lines, Commit::kAsOurs); });
  }
  if (engine == services::Engine::kSqlite) return;
  Add(name + "10/twin_of_one_trip", kRounds,
      [=](benchmark::State& state) { Measure(state, engine, 10, Commit::kByItself); });
}

}  // namespace bench

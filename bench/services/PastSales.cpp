#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "base/Record.h"
#include "clinic/Opened.h"
#include "clinic/Past.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "services/Cases.h"
#include "services/Checkout.h"
#include "services/RawRows.h"
#include "services/banco/Session.h"
#include "support/Bench.h"
#include "support/RawLink.h"

namespace bench {
namespace {

using servicos::ZOVA_N_Caixa::clsCaixa;
using servicos::ZOVA_N_RelFin::clsRelFin;

constexpr std::int32_t kRegister = 1;

/// Someone who may do everything.
class Marina final : public base::Record {
 public:
  base::Value Field(std::string_view name) const override {
    return name == "NomeDeUsuario" ? base::Value("marina") : base::Value(true);
  }
};

std::int64_t ListOfTheDay() {
  const auto caixa = servicos::CriarServico<clsCaixa>();
  std::int32_t number = kRegister;
  Require(caixa->PesquisarVendaDoDia("F", number, 0, 1) == servicos::kSucesso, *caixa);
  return caixa->ResultadoDaSelecaoEmRecordSet()->RecordCount();
}

/// The columns as the service reads them, without the texts that it makes of them.
constexpr const char* kRawList =
    "SELECT v.numero, v.valor_bruto, v.valor_bruto - v.valor_liquido, v.valor_liquido,"
    " v.valor_liquido - coalesce((SELECT CAST(sum(l.valor) AS bigint) FROM lancamentos_de_caixa l"
    " WHERE l.numero_da_venda = v.numero AND l.tipo = 5 AND l.moeda = 6), 0), v.codigo_do_cliente,"
    " v.data_e_hora, v.operador, v.apelido_do_cliente, v.chave_sat, v.nome_do_cliente,"
    " c.endereco_completo, c.canais_de_comunicacao"
    " FROM vendas v JOIN clientes c ON c.codigo = v.codigo_do_cliente WHERE v.numero_do_caixa = $1"
    " AND v.data_e_hora >= '2026-11-22' AND v.data_e_hora < '2026-11-23' AND v.situacao = 'F'"
    " ORDER BY v.numero DESC";

void MeasureList(benchmark::State& state, services::Engine engine) {
  const Database clinic = ClinicWithPast(engine);
  const Opened opened(clinic);
  const auto raw =
      RawRows::Over(clinic, kRawList, {.numbers = 6, .texts = 7}, RawRows::Plan::kOnce);
  const std::int64_t expected = std::min(kSalesOfADay, Chosen().rows);
  if (ListOfTheDay() != expected || raw("1") != expected) {
    throw std::runtime_error("not the sales of the day");
  }
  InTurn(
      state, [] { return SecondsOf(ListOfTheDay); }, [&] { return SecondsOf([&] { raw("1"); }); });
}

void Cancel(std::int32_t sale, const Marina& marina) {
  const auto caixa = servicos::CriarServico<clsCaixa>();
  caixa->NumeroDoCaixa(kRegister);
  caixa->DadosDoUsuario(&marina);
  Require(caixa->CancelarVenda(sale, "engano") == servicos::kSucesso, *caixa);
}

std::int64_t NumberOf(const std::string& text) {
  std::int64_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// What a cancellation of such a sale asks and writes, on the engine's own library.
class RawCancellation {
 public:
  explicit RawCancellation(const Database& database) : link_(RawLink::To(database)) {}

  void operator()(std::int32_t number) {
    const std::string sale = std::to_string(number);
    const std::string operation = std::to_string(-9'000'000'000 - number);
    link_->Begin();
    if (link_->Run(drawer_).size() != 1) throw std::runtime_error("the register is not open");
    link_->Run(turn_, {sale});
    link_->Run(read_, {sale});
    const auto entries = link_->Run(entries_, {sale});
    std::int64_t cash = 0;
    for (const RawLink::Row& entry : entries) {
      if (entry[1] == "1") cash -= NumberOf(entry[2]);
    }
    link_->Run(money_, {std::to_string(cash)});
    for (const RawLink::Row& entry : entries) {
      link_->Run(reverse_,
                 {operation, entry[1], std::to_string(-NumberOf(entry[2])), sale, entry[0]});
    }
    link_->Run(receivables_, {sale});
    link_->Run(preSale_, {sale});
    link_->Run(keep_, {sale, operation});
    link_->Commit();
  }

 private:
  std::size_t Kept(const char* sql) { return link_->Prepare(sql); }

  std::unique_ptr<RawLink> link_;
  std::size_t drawer_ = Kept("SELECT ativo, aberto FROM caixas WHERE numero = 1");
  std::size_t turn_ = Kept(
      "UPDATE vendas SET situacao = 'C' WHERE numero = $1 AND numero_do_caixa = 1"
      " AND data_e_hora >= '2026-11-22' AND data_e_hora < '2026-11-23' AND situacao = 'F'");
  std::size_t read_ = Kept(
      "SELECT codigo_do_cliente, credito_mantido - credito_usado, itens_de_pre_venda FROM vendas"
      " WHERE numero = $1");
  std::size_t entries_ = Kept(
      "SELECT l.numero, l.moeda, l.valor FROM lancamentos_de_caixa l WHERE l.numero_da_venda = $1"
      " AND l.moeda NOT IN (6, 7) AND NOT EXISTS (SELECT 1 FROM lancamentos_de_caixa e"
      " WHERE e.estorna = l.numero) ORDER BY l.numero");
  std::size_t money_ = Kept(
      "UPDATE caixas SET dinheiro = dinheiro + $1 WHERE numero = 1 AND ativo = 1 AND aberto = 1"
      " AND dinheiro + $1 >= 0");
  std::size_t reverse_ = Kept(
      "INSERT INTO lancamentos_de_caixa (operacao, numero_do_caixa, data_e_hora, tipo, moeda, "
      "valor,"
      " descricao, operador, situacao, observacao, numero_da_venda, estorna, consentido_por)"
      " VALUES ($1, 1, '2026-11-22 14:30:00', 7, $2, $3, 'Cancelamento de venda', 'marina', 'F',"
      " 'engano', $4, $5, '')");
  std::size_t receivables_ = Kept(
      "SELECT numero, valor_do_documento, situacao FROM contas_a_receber WHERE numero_da_venda = $1"
      " AND origem = 'venda' ORDER BY numero");
  std::size_t preSale_ =
      Kept("UPDATE pre_vendas SET numero_da_venda = NULL WHERE numero_da_venda = $1");
  std::size_t keep_ = Kept(
      "INSERT INTO cancelamentos_de_venda (numero_da_venda, operacao, situacao, data_e_hora,"
      " numero_do_caixa, operador, consentido_por, motivo) VALUES ($1, $2, 'C',"
      " '2026-11-22 14:30:00', 1, 'marina', '', 'engano')");
};

/// The books of both add up to the same.
std::string Books(services::Session& session) {
  static const services::Statement sums(
      "SELECT CAST((SELECT count(*) FROM cancelamentos_de_venda) AS text) || ' ' ||"
      " CAST((SELECT count(*) FROM lancamentos_de_caixa) AS text) || ' ' ||"
      " CAST((SELECT sum(valor) FROM lancamentos_de_caixa) AS text) || ' ' ||"
      " CAST((SELECT count(*) FROM vendas WHERE situacao = 'C') AS text) || ' ' ||"
      " CAST((SELECT sum(dinheiro) FROM caixas) AS text)");
  std::string books;
  session.Select(sums, {}, [&](const services::Row& row) { books = row.Text(0); });
  return books;
}

constexpr int kCancellations = 400;

/// The clinic with an open register, and fresh sales in it to be cancelled: the first one's number.
std::int32_t SellToCancel(const Database& clinic) {
  const Opened opened(clinic);
  OpenRegister(kRegister);
  const Checkout checkout({.lines = 3, .cashRegister = kRegister});
  const std::int32_t first = checkout.Register();
  // One to begin with, and one that stays, so that the drawer never lacks.
  for (int i = 0; i < Chosen().Rounds(kCancellations) + 1; ++i) checkout.Register();
  return first;
}

void MeasureCancellation(benchmark::State& state, services::Engine engine) {
  const Database past = ClinicWithPast(engine);
  const Database clinic = CopyOf(past, "cancelamentos");
  const Database twins = CopyOf(past, "cancelamentos_gemeos");
  std::int32_t ours = SellToCancel(clinic);
  std::int32_t theirs = SellToCancel(twins);
  const Marina marina;
  Opened opened(clinic);
  RawCancellation raw(twins);
  Cancel(ours++, marina);
  raw(theirs++);
  InTurn(
      state, [&] { return SecondsOf([&] { Cancel(ours++, marina); }); },
      [&] { return SecondsOf([&] { raw(theirs++); }); });
  const std::int64_t before = opened.Session().Calls();
  Cancel(ours, marina);
  raw(theirs);
  state.counters["round_trips"] = static_cast<double>(opened.Session().Calls() - before);
  const std::string books = Books(opened.Session());
  if (books != Books(Opened(twins).Session())) throw std::runtime_error("the twin's books differ");
}

void MeasureSummary(benchmark::State& state, services::Engine engine, const std::string& from) {
  const Database clinic = ClinicWithPast(engine);
  const Opened opened(clinic);
  Alone(state, [&] {
    std::string ofRegister;
    std::string ofPeriod =
        " LancamentosDeCaixas.DataDoLancamento Between #" + from + "# And #11/22/2026# ";
    return SecondsOf([&] {
      const auto reports = servicos::CriarServico<clsRelFin>();
      Require(reports->SelecionarResumoDeCaixas(ofRegister, ofPeriod) == servicos::kSucesso,
              *reports);
      benchmark::DoNotOptimize(reports->ResultadoDaSelecaoEmRecordSet()->RecordCount());
    });
  });
}

/// Registering among very many sales, beside the same in a clinic without any.
void MeasureSale(benchmark::State& state, services::Engine engine) {
  const Database large = CopyOf(ClinicWithPast(engine), "vendas_no_passado");
  const Database empty = NewClinic(engine, "vendas_sem_passado");
  const Checkout checkout({.lines = 3, .cashRegister = kRegister});
  for (const Database& each : {large, empty}) {
    const Opened opened(each);
    OpenRegister(kRegister);
    checkout.Register();
  }
  Opened here(large);
  Opened there(empty);
  const auto seconds = [&](Opened& opened) {
    services::RegistrarServicos(opened.Shared());
    return SecondsOf([&] { checkout.Register(); });
  };
  InTurn(
      state, [&] { return seconds(here); }, [&] { return seconds(there); });
}

}  // namespace

void AddPastSales(services::Engine engine) {
  constexpr int kRounds = 200, kSales = 2'000, kFew = 20;
  const std::string name = "past/" + NameOf(engine) + "/";
  Add(name + "list_of_day", kRounds, [=](benchmark::State& state) { MeasureList(state, engine); });
  Add(name + "cancellation", kCancellations,
      [=](benchmark::State& state) { MeasureCancellation(state, engine); });
  for (const auto& [period, from] :
       {std::pair("day", "11/22/2026"), {"month", "10/24/2026"}, {"year", "11/23/2025"}}) {
    Add(name + "summary_of_" + period, kFew,
        [=](benchmark::State& state) { MeasureSummary(state, engine, from); });
  }
  Add(name + "sale_against_empty", kSales,
      [=](benchmark::State& state) { MeasureSale(state, engine); });
}

}  // namespace bench

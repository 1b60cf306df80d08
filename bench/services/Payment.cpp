#include <stdexcept>
#include <vector>

#include "base/GradeLida.h"
#include "base/Numbers.h"
#include "clinic/Goods.h"
#include "clinic/Opened.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "services/Cases.h"
#include "services/RawSale.h"
#include "services/Session.h"
#include "support/Bench.h"

namespace bench {
namespace {

using base::Currency;
using servicos::ZOVA_N_Caixa::clsCaixa;

constexpr std::int32_t kRegister = 1;
constexpr std::int64_t kPrice = 259'000;   ///< Ten-thousandths, of every line.
constexpr std::int64_t kByCard = 150'000;  ///< Of the whole sale.
constexpr std::int64_t kChange = 41'000;   ///< Out of the drawer.

class Grid final : public base::GradeLida {
 public:
  explicit Grid(std::vector<std::vector<std::string>> rows) : rows_(std::move(rows)) {}
  std::int32_t Rows() const override { return static_cast<std::int32_t>(rows_.size()); }
  std::int32_t Cols() const override { return static_cast<std::int32_t>(rows_.front().size()); }
  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const override {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(col));
  }

 private:
  std::vector<std::vector<std::string>> rows_;
};

/// What the checkout hands over: so many products at the same price, a card and cash with change.
class Checkout {
 public:
  explicit Checkout(int lines)
      : net_(Currency::FromTenThousandths(kPrice * lines)),
        items_(Items(lines)),
        tenders_({{"", "", "", ""},
                  {"3-Cartão de crédito", Money(kByCard), "", "1"},
                  {"1-Dinheiro", Money(kPrice * lines - kByCard + kChange), "", "2"}}) {}

  /// By how much the register's money grows.
  std::int64_t Drawer() const { return net_.TenThousandths() - kByCard; }

  /// Registers the sale once more; its number.
  std::int32_t Register() const {
    const auto caixa = servicos::CriarServico<clsCaixa>();
    caixa->NumeroDoCaixa(kRegister);
    caixa->LocalDeAtendimentoDoCaixa("Recepção");
    caixa->Operador("marina");
    caixa->Situacao("F");
    caixa->Observacao("");
    caixa->ApelidoOuNomeFantasiaDoCliente("Ana Clara");
    caixa->NomeOuRazaoSocialDoCliente("Ana Clara Souza");
    caixa->CodigoDoCliente("2");
    caixa->NumeroDaFichaClinica(0);
    caixa->ValorBruto(net_);
    caixa->ValorTotalDeDescontos(Currency());
    caixa->ValorLiquido(net_);
    caixa->Custo(Currency());
    caixa->Comissao(Currency());
    caixa->LucroEmValor(net_);
    caixa->LucroEmPercentual(Currency::FromTenThousandths(10'000));
    caixa->CreditoAnteriorDoCliente(Currency());
    caixa->CreditoParaOCliente(Currency());
    caixa->Troco(Currency::FromTenThousandths(-kChange));
    caixa->GradeDeItensDaVenda(&items_);
    caixa->GradeDePagamentosEfetuados(&tenders_);
    Require(caixa->RegistrarPagamento() == servicos::kSucesso, *caixa);
    return caixa->NumeroDaVenda();
  }

 private:
  static std::string Money(std::int64_t tenThousandths) {
    return base::FormatMoney(Currency::FromTenThousandths(tenThousandths));
  }
  static Grid Items(int lines) {
    constexpr std::size_t kColumns = 20;
    std::vector<std::vector<std::string>> rows{std::vector<std::string>(kColumns)};
    for (int i = 0; i < lines; ++i) {
      rows.push_back({BarcodeAt(i),
                      std::to_string(i + 1),
                      ProductNameAt(i),
                      "",
                      "",
                      "0",
                      "",
                      "1,00",
                      Money(kPrice),
                      "0,00",
                      "0,00",
                      Money(kPrice),
                      "15,40",
                      "0,00",
                      "0,00",
                      "0",
                      "UN",
                      "0",
                      "1",
                      "2"});
    }
    return Grid(std::move(rows));
  }

  Currency net_;
  Grid items_;
  Grid tenders_;
};

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
  const Checkout checkout(lines);
  std::int32_t model = 0;
  // A database each: neither has to read again what the other has written.
  const Database twins = ClinicWithASale(engine, "vendas_gemeas", checkout, model);
  const Database clinic = ClinicWithASale(engine, "vendas", checkout, model);
  Opened opened(clinic);
  const ModelSale sale{model, checkout.Drawer(), kRegister};
  const RawSale raw = engine == services::Engine::kSqlite
                          ? RawSaleOnSqlite(twins.target, sale)
                          : RawSaleOnPostgres(twins.target, sale, commit);
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

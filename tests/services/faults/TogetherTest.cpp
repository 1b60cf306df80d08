#include <array>
#include <atomic>
#include <chrono>
#include <thread>

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "services/Database.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/SqliteSession.h"
#include "services/faults/Shared.h"

namespace services {
namespace {

constexpr int kCustomers = 3;

/// What processes tell each other past the database.
struct Counter {
  std::atomic<int> ready{0};
  std::array<std::atomic<int>, kCustomers> holders{};
  std::atomic<int> taken{0};
  std::atomic<int> refused{0};
  std::atomic<int> wrong{0};
};

/// A cash desk that takes customers and lets them go.
class LockingDesk {
 public:
  explicit LockingDesk(std::string computer) : computer_(std::move(computer)) {}

  const std::string& Computer() const { return computer_; }
  /// What the last refusal said.
  const std::string& Said() const { return said_; }

  std::int16_t Lock(double customer) { return Lock(computer_, customer); }
  std::int16_t Lock(const std::string& computer, double customer) {
    return Do(computer, [&](Service& service) { return service.BloquearCliente(1, customer, 2); });
  }
  std::int16_t Free(double customer) { return Free(computer_, customer); }
  std::int16_t Free(const std::string& computer, double customer) {
    return Do(computer,
              [&](Service& service) { return service.DesbloquearCliente(1, customer, 2); });
  }
  std::string Holder(double customer) {
    std::string holder = "nobody";
    Do(computer_, [&](Service& service) {
      const auto status = service.SelecionarClientesComTransacoesBloqueadas(2, 0, customer, 1);
      const auto rows = service.ResultadoDaSelecaoEmRecordSet();
      if (rows && rows->RecordCount() == 1) holder = base::ToText(rows->Fields("NomeDoComputador"));
      return status;
    });
    return holder;
  }

 private:
  using Service = servicos::ZOVA_N_Administrativo::clsAdministrativo;

  std::int16_t Do(const std::string& computer,
                  const std::function<std::int16_t(Service&)>& operation) {
    const auto service = servicos::CriarServico<Service>();
    service->NomeDoComputador(computer);
    service->DadosDoUsuario(&user_);
    const std::int16_t status = operation(*service);
    said_ = service->DescricaoDaFalha();
    if (status == servicos::kErro) fprintf(stderr, "%s\n", service->DescricaoDoErro().c_str());
    return status;
  }

  SessionRecord user_{"renata"};
  std::string computer_;
  std::string said_;
};

/// Takes a customer and lets them go, and counts what should not have happened.
void Serve(LockingDesk& desk, int customer, Counter& counter) {
  const auto expect = [&](bool right) { counter.wrong += right ? 0 : 1; };
  std::atomic<int>& holders = counter.holders.at(static_cast<std::size_t>(customer - 1));
  const std::int16_t status = desk.Lock(customer);
  if (status == servicos::kRecusa) {
    ++counter.refused;
    expect(desk.Said().starts_with("Este cliente está em atendimento com renata no computador "));
    // Somebody else's, or nobody's any more.
    expect(desk.Free(customer) != servicos::kErro);
    return;
  }
  expect(status == servicos::kSucesso);
  ++counter.taken;
  expect(++holders == 1);
  expect(desk.Holder(customer) == desk.Computer());
  expect(desk.Lock(base::Upper(desk.Computer()), customer) == servicos::kSucesso);
  expect(desk.Free("OUTRO", customer) == servicos::kRecusa);
  expect(desk.Holder(customer) == base::Upper(desk.Computer()));
  --holders;
  expect(desk.Free(customer) == servicos::kSucesso);
}

/// Several computers at the same work.
class TogetherTest : public OverDatabase {
 protected:
  /// Runs `work` in two processes at once; the sum of their answers.
  int TwoAtOnce(const std::function<int(int)>& work) {
    const pid_t first = Start("LOJA", [&] { return work(0); });
    const pid_t second = Start("BALCAO", [&] { return work(1); });
    return EndOf(first) + EndOf(second);
  }

  /// From now on `alheias` gets the number of every sale whose customer is held, when it is written
  /// for good, under another mark than the sale has for its operator.
  void NoteSalesOfOthersCustomers() {
    const std::string note =
        "INSERT INTO alheias SELECT new.numero FROM travas_de_clientes"
        " WHERE codigo_do_cliente = new.codigo_do_cliente AND marca <> new.operador;";
    Write("CREATE TABLE alheias (numero integer)");
    if (GetParam() == Engine::kSqlite) {
      Write("CREATE TRIGGER ao_fim AFTER INSERT ON vendas BEGIN " + note + " END");
      return;
    }
    Write("CREATE FUNCTION notar() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN " + note +
          " RETURN NULL; END';"
          "CREATE CONSTRAINT TRIGGER ao_fim AFTER INSERT ON vendas DEFERRABLE INITIALLY DEFERRED"
          " FOR EACH ROW EXECUTE FUNCTION notar()");
  }
};
OVER_BOTH_ENGINES(TogetherTest);

TEST_P(TogetherTest, TwoSellOnOneRegister) {
  constexpr int kSales = 60;
  const int registered = TwoAtOnce([](int) {
    int done = 0;
    for (int i = 0; i < kSales; ++i) {
      const NewSale sale({.lines = Grid({ProductLine("60,00"), ServiceLine("40,00")}),
                          .tenders = Grid({Tender("1-Dinheiro", "150,00")}),
                          .change = -49_brl,
                          .creditKept = 1_brl});
      done += sale->RegistrarPagamento() == 0 ? 1 : 0;
    }
    return done;
  });
  EXPECT_EQ(2 * kSales, registered);
  EXPECT_EQ(2 * kSales, Count("vendas"));
  EXPECT_EQ(2 * kSales, Count("(SELECT DISTINCT numero FROM vendas) n"));
  EXPECT_EQ(std::to_string((101_brl).TenThousandths() * 2 * kSales),
            Read("SELECT dinheiro FROM caixas WHERE numero = 1"));
  EXPECT_EQ(std::to_string((50_brl).TenThousandths() + (1_brl).TenThousandths() * 2 * kSales),
            Read("SELECT credito FROM clientes WHERE codigo = 5"));
  ExpectBooksBalance();
}

TEST_P(TogetherTest, OneCreditIsNotSpentTwice) {
  const int registered = TwoAtOnce([](int) {
    int done = 0;
    for (int i = 0; i < 10; ++i) {
      const NewSale sale({.lines = Grid({ProductLine("10,00")}),
                          .tenders = Grid({Tender("7-Crédito do cliente", "10,00")}),
                          .net = 10_brl});
      done += sale->RegistrarPagamento() == 0 ? 1 : 0;
    }
    return done;
  });
  EXPECT_EQ(5, registered) << "the customer has 50,00";
  EXPECT_EQ("0", Read("SELECT credito FROM clientes WHERE codigo = 5"));
  ExpectBooksBalance();
}

TEST_P(TogetherTest, OnePreSaleIsNotSoldTwice) {
  constexpr int kLines = 20;
  for (int number = 1; number <= kLines; ++number) {
    Write(
        "INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente,"
        " data_de_lancamento, codigo_do_item, nome_do_item, quantidade, valor_unitario,"
        " valor_total, incluido_em, incluido_por) VALUES (" +
        std::to_string(number) +
        ", 1, 5, '2026-11-20', 30, 'Banho', 10000, 500000, 500000,"
        " '2026-11-20 09:00:00', 'marina')");
  }
  // Each sells pairs of neighbours, one from the front and one from the back: pairs overlap.
  const int registered = TwoAtOnce([](int which) {
    int done = 0;
    for (int i = 1; i < kLines; ++i) {
      const int first = which == 0 ? i : kLines - i;
      const int second = which == 0 ? i + 1 : first + 1;
      const NewSale sale({.lines = Grid({PreSaleLine("50,00", which == 0 ? first : second),
                                         PreSaleLine("50,00", which == 0 ? second : first)})});
      const auto status = sale->RegistrarPagamento();
      if (status != 0 && status != servicos::kRecusa) return 100;
      done += status == 0 ? 1 : 0;
    }
    return done;
  });
  EXPECT_LE(registered, kLines / 2);
  EXPECT_EQ(registered, Count("vendas"));
  EXPECT_EQ(2 * registered, Count("pre_vendas WHERE numero_da_venda IS NOT NULL"));
  ExpectBooksBalance();
}

TEST_P(TogetherTest, OneRegisterIsOpenedOnce) {
  EXPECT_EQ(51, TwoAtOnce([](int) {
              const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
              service->NumeroDoCaixa(2);
              service->ValorDoLancamento("10,00");
              return int{service->RegistrarAbertura()};
            }));
  EXPECT_EQ(1, Count("lancamentos_de_caixa"));
}

TEST_P(TogetherTest, ACustomerHasOneHolderAtAnyMoment) {
  constexpr int kDesks = 4;
  constexpr int kRounds = 50;
  Write(
      "INSERT INTO clientes (codigo, apelido, nome, nome_busca) VALUES"
      " (1, 'Ana', 'Ana', ''), (2, 'Bia', 'Bia', ''), (3, 'Caio', 'Caio', '')");
  Shared<Counter> counter;
  std::vector<pid_t> desks;
  for (const char* computer : {"loja", "balcao", "caixa-3", "caixa-4"}) {
    desks.push_back(Start(computer, [&counter, computer] {
      LockingDesk desk(computer);
      ++counter->ready;
      for (int naps = 0; counter->ready < kDesks && naps < 5'000; ++naps) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
      for (int i = 0; i < kRounds; ++i) Serve(desk, 1 + i % kCustomers, *counter);
      return 0;
    }));
  }
  for (const pid_t desk : desks) EXPECT_EQ(0, EndOf(desk));
  EXPECT_EQ(0, counter->wrong);
  EXPECT_EQ(kDesks * kRounds, counter->taken + counter->refused);
  EXPECT_GT(counter->taken, 0);
  EXPECT_GT(counter->refused, 0) << "they were not in each other's way";
  EXPECT_EQ(0, Count("travas_de_clientes"));
}

TEST_P(TogetherTest, WhoIsServedTwiceAtOnceBuysOnceOnCredit) {
  constexpr int kDesks = 8;
  constexpr int kServed = 300;
  for (int code = 101; code <= 100 + kServed; ++code) {
    Write("INSERT INTO clientes (codigo, apelido, nome, nome_busca, limite_de_credito) VALUES (" +
          std::to_string(code) + ", '', '', '', 1000000)");
  }
  NoteSalesOfOthersCustomers();
  Shared<std::atomic<int>> arrived;
  std::vector<pid_t> desks;
  for (int desk = 0; desk < kDesks; ++desk) {
    // Two names, and computers of one name.
    const std::string computer = desk % 2 == 0 ? "LOJA" : "BALCAO";
    const auto serveAll = [&, desk, computer] {
      LockingDesk at(computer);
      int faults = 0;
      for (int served = 1; served <= kServed; ++served) {
        ++*arrived;
        for (int naps = 0; *arrived < kDesks * served && naps < 50'000; ++naps) {
          std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        // As on the screens, what it answers is ignored; an error on them frees the customer again.
        if (desk % 4 < 2) at.Lock(100 + served);
        const NewSale sale({.tenders = Grid({Tender("8-PIX", "40,00"),
                                             Tender("6-A crédito (Fiado)", "60,00", "28/02/2027")}),
                            .customer = std::to_string(100 + served)});
        sale->Operador(std::to_string(desk));
        faults += sale->RegistrarPagamento() == servicos::kErro ? 1 : 0;
        at.Free(100 + served);
      }
      return faults;
    };
    desks.push_back(Start(computer, serveAll, std::to_string(desk)));
  }
  for (const pid_t desk : desks) EXPECT_EQ(0, EndOf(desk));
  EXPECT_EQ(kServed, Count("vendas"));
  EXPECT_EQ(kServed, Count("(SELECT DISTINCT codigo_do_cliente FROM contas_a_receber) c"));
  EXPECT_EQ(0, Count("alheias"));
  EXPECT_EQ(0, Count("travas_de_clientes"));
  ExpectBooksBalance();
}

TEST_P(TogetherTest, GuessesAtOneComputerCountTogether) {
  constexpr int kGuesses = 3;
  const std::vector<std::string> names{"ana", "bia", "eva"};
  const auto guess = [&names] {
    int lookedAt = 0;
    for (int i = 0; i < kGuesses; ++i) {
      for (const std::string& name : names) {
        const auto login = servicos::CriarServico<servicos::ZOVA_N_Login::clsLogin>();
        login->NomeDeUsuario(name);
        login->SenhaDoUsuario("errada");
        if (login->Autenticar() != servicos::kRecusa) return 100;
        lookedAt += login->DescricaoDaFalha().starts_with("Usuário ou senha") ? 1 : 0;
      }
    }
    return lookedAt;
  };
  const pid_t first = Start("LOJA", guess);
  const pid_t second = Start("loja", guess);
  EXPECT_EQ(kGuesses * static_cast<int>(names.size()), EndOf(first) + EndOf(second))
      << "three for each name, whoever takes them";
  EXPECT_EQ(3, Count("tentativas_de_login WHERE falhas = 3"));
}

TEST_P(TogetherTest, WhatAnotherHoldsTooLongIsAFaultThatLeavesNothing) {
  const auto other = Another("LOJA");
  if (auto* const file = dynamic_cast<SqliteSession*>(&session())) {
    file->BePatientFor(std::chrono::milliseconds(20));
  } else {
    Write("SET lock_timeout = '20ms'");
  }
  other->Sessao().Begin();
  other->Sessao().RunScript("UPDATE caixas SET dinheiro = dinheiro WHERE numero = 1");
  const NewSale sale{Sale{}};
  EXPECT_EQ(servicos::kErro, sale->RegistrarPagamento());
  EXPECT_EQ(static_cast<std::int32_t>(Trouble::kBusy), sale->NumeroDoErro())
      << sale->DescricaoDoErro();
  EXPECT_EQ(0, Count("vendas"));
  other->Sessao().Rollback();
  EXPECT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDoErro();
  ExpectBooksBalance();
}

TEST_P(TogetherTest, ATransactionInTheWayOfAnotherIsTriedAgain) {
  int tries = 0;
  InTransaction(session(), [&](Transaction&) {
    session().RunScript("UPDATE caixas SET dinheiro = dinheiro + 1 WHERE numero = 1");
    if (++tries < 3) throw DatabaseError(Trouble::kConflict, "");
  });
  EXPECT_EQ("1", Read("SELECT dinheiro FROM caixas WHERE numero = 1"));
  EXPECT_THROW(
      InTransaction(session(), [](Transaction&) { throw DatabaseError(Trouble::kConflict, ""); }),
      DatabaseError);
}

TEST_P(TogetherTest, OfTwoWhoCancelTheSameSaleOneIsRefused) {
  for (int sale = 1; sale <= 20; ++sale) {
    const NewSale sold({});
    ASSERT_EQ(0, sold->RegistrarPagamento());
    Shared<Counter> counter;
    const int refusals = TwoAtOnce([&](int) {
      const SessionRecord marina("marina", true);
      const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
      service->NumeroDoCaixa(1);
      service->DadosDoUsuario(&marina);
      ++counter->ready;
      while (counter->ready < 2) std::this_thread::yield();
      return int{service->CancelarVenda(sale, "engano")};
    });
    EXPECT_EQ(servicos::kRecusa, refusals);
    EXPECT_EQ(sale, Count("cancelamentos_de_venda"));
  }
  ExpectBooksBalance();
}

}  // namespace
}  // namespace services

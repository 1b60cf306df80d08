#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "services/Database.h"
#include "services/DatabaseError.h"
#include "services/SqliteSession.h"

namespace services {
namespace {

/// Several computers at the same work.
class TogetherTest : public OverDatabase {
 protected:
  /// Runs `work` in two processes at once; the sum of their answers.
  int TwoAtOnce(const std::function<int(int)>& work) {
    const pid_t first = Start("LOJA", [&] { return work(0); });
    const pid_t second = Start("BALCAO", [&] { return work(1); });
    return EndOf(first) + EndOf(second);
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

TEST_P(TogetherTest, OneCustomerIsTakenByOneComputer) {
  EXPECT_EQ(servicos::kRecusa, TwoAtOnce([](int) {
              const SessionRecord user("renata");
              const auto service =
                  servicos::CriarServico<servicos::ZOVA_N_Administrativo::clsAdministrativo>();
              service->DadosDoUsuario(&user);
              double code = 5;
              return int{service->BloquearCliente(1, code, 2)};
            }));
  EXPECT_EQ(1, Count("travas_de_clientes"));
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

}  // namespace
}  // namespace services
